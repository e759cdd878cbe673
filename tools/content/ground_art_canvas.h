#pragma once

#include "ground_art_color.h"
#include "ground_art_geometry.h"
#include "imaging/picture.h"

#include <algorithm>
#include <vector>

namespace morvane::art {

/// Pixels of a side of every ground texture.
constexpr int canvasSide = 256;

/// Index of a pixel, taken around the edges of the tile.
constexpr int wrappedIndex(int x, int y) {
    return (y & (canvasSide - 1)) * canvasSide + (x & (canvasSide - 1));
}

/// One pixel that a figure covers. `u` and `v` are pixels from the figure's centre along its own axes (for a
/// quad from its first corner).
struct Touch {
    int index;
    float coverage;
    float u;
    float v;
};

constexpr float clampedToUnit(float value) {
    return value < 0 ? 0 : value > 1 ? 1 : value;
}

namespace detail {

/// Calls `visit(x, y, offset)` for the pixels around a centre; `offset` leads from the centre to the pixel.
template <class Visit>
void visitAround(Vector2 centre, Vector2 reach, Visit visit) {
    const int left = static_cast<int>(std::floor(centre.x - reach.x));
    const int right = static_cast<int>(std::ceil(centre.x + reach.x));
    const int top = static_cast<int>(std::floor(centre.y - reach.y));
    const int bottom = static_cast<int>(std::ceil(centre.y + reach.y));
    for (int y = top; y <= bottom; ++y)
        for (int x = left; x <= right; ++x)
            visit(x, y, Vector2{static_cast<float>(x) + 0.5f, static_cast<float>(y) + 0.5f} - centre);
}

} // namespace detail

template <class Visit>
void visitBox(const Box& box, Visit visit) {
    const Vector2 reach{std::fabs(box.along.x) * box.halfLength + std::fabs(box.along.y) * box.halfWidth + 1,
                        std::fabs(box.along.y) * box.halfLength + std::fabs(box.along.x) * box.halfWidth + 1};
    detail::visitAround(box.centre, reach, [&](int x, int y, Vector2 offset) {
        const float u = dot(offset, box.along);
        const float v = cross(box.along, offset);
        const float coverage = clampedToUnit(box.halfLength - std::fabs(u) + 0.5f) *
                               clampedToUnit(box.halfWidth - std::fabs(v) + 0.5f);
        if (coverage > 0) visit(Touch{wrappedIndex(x, y), coverage, u, v});
    });
}

template <class Visit>
void visitDisc(const Disc& disc, Visit visit) {
    detail::visitAround(disc.centre, {disc.radius + 1, disc.radius + 1}, [&](int x, int y, Vector2 offset) {
        const float coverage = clampedToUnit(disc.radius - length(offset) + 0.5f);
        if (coverage > 0) visit(Touch{wrappedIndex(x, y), coverage, offset.x, offset.y});
    });
}

template <class Visit>
void visitQuad(const Quad& quad, Visit visit) {
    const auto& corners = quad.corners;
    const float sense = cross(corners[2] - corners[0], corners[3] - corners[1]) < 0 ? -1.0f : 1.0f;
    std::array<Vector2, 4> inward;
    for (std::size_t i = 0; i < 4; ++i)
        inward[i] = perpendicular(unitVector(corners[(i + 1) % 4] - corners[i])) * sense;
    const Vector2 centre = quad.at(0.5f, 0.5f);
    Vector2 reach{1, 1};
    for (const Vector2& corner : corners) {
        reach.x = std::max(reach.x, std::fabs(corner.x - centre.x) + 1);
        reach.y = std::max(reach.y, std::fabs(corner.y - centre.y) + 1);
    }
    const Vector2 along = quad.along();
    detail::visitAround(centre, reach, [&](int x, int y, Vector2 offset) {
        float coverage = 1;
        for (std::size_t i = 0; i < 4 && coverage > 0; ++i)
            coverage *= clampedToUnit(dot(centre + offset - corners[i], inward[i]) + 0.5f);
        if (coverage <= 0) return;
        const Vector2 place = centre + offset - corners[0];
        visit(Touch{wrappedIndex(x, y), coverage, dot(place, along), cross(along, place)});
    });
}

/// The sun stands in the north-west, as on every shaded map: lit from below, hills would look like hollows.
struct Sun {
    /// Pixels that a shadow's edge sinks over one pixel of the diagonal.
    float descent = 1.3f;
    /// 0: shadows don't show, 1: they are black.
    float shadowDepth = 0.45f;
    /// How strongly slopes show.
    float relief = 0.28f;
};

/// A tile under work: for each pixel its colour and its height above the ground, in pixels. All figures wrap
/// around the edges, so that a finished tile meets itself without a seam.
class Canvas {
public:
    Canvas()
        : colors_(static_cast<std::size_t>(canvasSide * canvasSide)),
          heights_(static_cast<std::size_t>(canvasSide * canvasSide), 0.0f) {}

    static constexpr int pixelCount = canvasSide * canvasSide;

    Color& color(int index) { return colors_[static_cast<std::size_t>(index)]; }
    float& height(int index) { return heights_[static_cast<std::size_t>(index)]; }

    void paint(const Touch& touch, Color color, float opacity = 1) {
        Color& target = this->color(touch.index);
        target = mix(target, color, touch.coverage * opacity);
    }
    /// Gives a mostly covered pixel its height.
    void raise(const Touch& touch, float height) {
        if (touch.coverage > 0.5f) this->height(touch.index) = height;
    }
    void paintBox(const Box& box, Color color, float opacity = 1);
    void paintDisc(const Disc& disc, Color color, float opacity = 1);
    void paintQuad(const Quad& quad, Color color, float opacity = 1);
    /// A straight line with blunt ends.
    void paintLine(Vector2 from, Vector2 to, float width, Color color, float opacity = 1);

    /// The finished tile: shaded by its heights and the shadows that they cast.
    Picture lit(const Sun& sun) const;

private:
    std::vector<Color> colors_;
    std::vector<float> heights_;
};

} // namespace morvane::art
