#include "ground_art_canvas.h"

namespace morvane::art {

namespace {

/// Heights above this many pixels of shadow run are not cut off at the tile's upper edge.
constexpr int longestShadow = 40;

std::uint8_t toByte(float value) {
    // NOLINTNEXTLINE(bugprone-incorrect-roundings): never negative
    return static_cast<std::uint8_t>(std::clamp(value, 0.0f, 255.0f) + 0.5f);
}

/// Sinks the shadow edge one step to the south-east and lifts it to the ground that rises above it.
void advanceShadow(std::vector<float>& edge, const float* heights, float descent) {
    const float corner = edge.back();
    for (std::size_t x = canvasSide - 1; x > 0; --x)
        edge[x] = std::max(heights[x], edge[x - 1] - descent);
    edge[0] = std::max(heights[0], corner - descent);
}

Color shaded(Color color, float slope, float shadow, const Sun& sun) {
    const float light = std::clamp(1 + sun.relief * slope, 0.5f, 1.5f);
    const float dark = shadow * sun.shadowDepth;
    // The sky lights the shadows: they keep more of the blue.
    return tinted(color, {light * (1 - dark), light * (1 - dark * 0.95f), light * (1 - dark * 0.8f)});
}

} // namespace

void Canvas::paintBox(const Box& box, Color color, float opacity) {
    visitBox(box, [&](const Touch& touch) { paint(touch, color, opacity); });
}

void Canvas::paintDisc(const Disc& disc, Color color, float opacity) {
    visitDisc(disc, [&](const Touch& touch) { paint(touch, color, opacity); });
}

void Canvas::paintQuad(const Quad& quad, Color color, float opacity) {
    visitQuad(quad, [&](const Touch& touch) { paint(touch, color, opacity); });
}

void Canvas::paintLine(Vector2 from, Vector2 to, float width, Color color, float opacity) {
    const Box box{(from + to) * 0.5f, unitVector(to - from), length(to - from) / 2, width / 2};
    paintBox(box, color, opacity);
}

Picture Canvas::lit(const Sun& sun) const {
    Picture picture{canvasSide, canvasSide, {}};
    const int rowBytes = bytesPerRow(canvasSide);
    picture.rows.resize(static_cast<std::size_t>(rowBytes * canvasSide));
    std::vector<float> shadowEdge(canvasSide, 0.0f);
    for (int y = -longestShadow; y < canvasSide; ++y) {
        advanceShadow(shadowEdge, &heights_[static_cast<std::size_t>(wrappedIndex(0, y))], sun.descent);
        if (y < 0) continue;
        std::uint8_t* target = &picture.rows[static_cast<std::size_t>((canvasSide - 1 - y) * rowBytes)];
        for (int x = 0; x < canvasSide; ++x, target += 3) {
            const float here = heights_[static_cast<std::size_t>(wrappedIndex(x, y))];
            const float slope = heights_[static_cast<std::size_t>(wrappedIndex(x + 1, y + 1))] -
                                heights_[static_cast<std::size_t>(wrappedIndex(x - 1, y - 1))];
            const float shadow = clampedToUnit(shadowEdge[static_cast<std::size_t>(x)] - here);
            const Color color =
                shaded(colors_[static_cast<std::size_t>(wrappedIndex(x, y))], slope, shadow, sun);
            target[0] = toByte(color.blue);
            target[1] = toByte(color.green);
            target[2] = toByte(color.red);
        }
    }
    return picture;
}

} // namespace morvane::art
