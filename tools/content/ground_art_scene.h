#pragma once

#include "base_image_list.h"
#include "ground_art_canvas.h"
#include "ground_art_noise.h"
#include "ground_art_palette.h"
#include "ground_art_random.h"

namespace morvane::art {

/// A base image under work: what to paint, with which colours and draws, and on what.
///
/// The draws depend on class, letter and number but not on the season: a field stays where it is all year.
/// So a painter must take the same number of draws in every season. And it takes at most one draw among the
/// arguments of a call: compilers are free to work them out in any order.
struct Scene {
    const BaseImage& image;
    std::uint64_t seed;
    Palette palette;
    RandomStream random;
    Canvas canvas;

    BaseImageSeason season() const { return image.season; }
    bool isWinter() const { return image.season == BaseImageSeason::winter; }
    /// The colour of something on which so much of the snow stays that lies on open ground.
    Color snowed(Color color, float share) const {
        return mix(color, palette.snow, palette.snowCover * share);
    }
    /// A noise of its own for each salt.
    NoiseField noise(NoiseShape shape, unsigned salt) const {
        return {shape, scrambled(seed ^ salt * 77747u)};
    }
    Vector2 anywhere() { return {random.between(0, canvasSide), random.between(0, canvasSide)}; }
    Vector2 anywhereIn(const Quad& quad);
    /// A direction of length 1, all alike likely.
    Vector2 anyDirection();
    /// One of the colours, lightened or darkened by a factor of that range.
    template <class Array>
    Color anyShade(const Array& colors, float low, float high) {
        const Color color = random.pick(colors);
        return scaled(color, random.between(low, high));
    }
};

/// Gives every pixel the colour that `colorOf(index)` returns.
template <class ColorOf>
void cover(Scene& scene, ColorOf colorOf) {
    for (int index = 0; index < Canvas::pixelCount; ++index)
        scene.canvas.color(index) = colorOf(index);
}

} // namespace morvane::art
