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
/// So a painter must take the same number of draws in every season.
struct Scene {
    const BaseImage& image;
    std::uint64_t seed;
    Palette palette;
    RandomStream random;
    Canvas canvas;

    BaseImageSeason season() const { return image.season; }
    bool isWinter() const { return image.season == BaseImageSeason::winter; }
    /// A noise of its own for each salt.
    NoiseField noise(NoiseShape shape, unsigned salt) const {
        return {shape, scrambled(seed ^ salt * 77747u)};
    }
    Vector2 anywhere() { return {random.between(0, canvasSide), random.between(0, canvasSide)}; }
    /// A direction of length 1, all alike likely.
    Vector2 anyDirection();
};

/// Gives every pixel the colour that `colorOf(index)` returns.
template <class ColorOf>
void cover(Scene& scene, ColorOf colorOf) {
    for (int index = 0; index < Canvas::pixelCount; ++index)
        scene.canvas.color(index) = colorOf(index);
}

} // namespace morvane::art
