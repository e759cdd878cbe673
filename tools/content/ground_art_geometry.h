#pragma once

#include <array>
#include <cmath>

namespace morvane::art {

/// Pixels from the top left corner of a tile; anything beyond a side of the tile comes in at the other one.
struct Vector2 {
    float x = 0;
    float y = 0;
};

constexpr Vector2 operator+(Vector2 a, Vector2 b) {
    return {a.x + b.x, a.y + b.y};
}
constexpr Vector2 operator-(Vector2 a, Vector2 b) {
    return {a.x - b.x, a.y - b.y};
}
constexpr Vector2 operator*(Vector2 a, float factor) {
    return {a.x * factor, a.y * factor};
}
constexpr float dot(Vector2 a, Vector2 b) {
    return a.x * b.x + a.y * b.y;
}
constexpr float cross(Vector2 a, Vector2 b) {
    return a.x * b.y - a.y * b.x;
}
/// A quarter turn.
constexpr Vector2 perpendicular(Vector2 a) {
    return {-a.y, a.x};
}
inline float length(Vector2 a) {
    return std::sqrt(dot(a, a));
}
/// Length 1; a vector without length gives the x axis.
inline Vector2 unitVector(Vector2 a) {
    const float size = length(a);
    return size > 0 ? a * (1 / size) : Vector2{1, 0};
}

/// A rectangle in any direction; `along` has length 1.
struct Box {
    Vector2 centre;
    Vector2 along{1, 0};
    float halfLength = 0;
    float halfWidth = 0;
};

struct Disc {
    Vector2 centre;
    float radius = 0;
};

/// A convex figure of four corners, in either sense of rotation.
struct Quad {
    std::array<Vector2, 4> corners;

    /// A point inside: (0, 0) the first corner, (1, 0) the second, (1, 1) the third, (0, 1) the fourth.
    constexpr Vector2 at(float s, float t) const {
        const Vector2 top = corners[0] * (1 - s) + corners[1] * s;
        const Vector2 bottom = corners[3] * (1 - s) + corners[2] * s;
        return top * (1 - t) + bottom * t;
    }
    /// Mean lengths of the sides 0-1, 3-2 and of 0-3, 1-2.
    Vector2 size() const { return {length(at(1, 0.5f) - at(0, 0.5f)), length(at(0.5f, 1) - at(0.5f, 0))}; }
    /// Directions of the mid lines, length 1.
    Vector2 along() const { return unitVector(at(1, 0.5f) - at(0, 0.5f)); }
    Vector2 across() const { return unitVector(at(0.5f, 1) - at(0.5f, 0)); }
    /// The slice between two shares of the way from side 0-3 to 1-2, or (`lengthwise` false) from 0-1 to 3-2.
    constexpr Quad slice(bool lengthwise, float from, float to) const {
        if (lengthwise) return {{at(from, 0), at(to, 0), at(to, 1), at(from, 1)}};
        return {{at(0, from), at(1, from), at(1, to), at(0, to)}};
    }
    /// The quad with each side moved inward by so many pixels, as far as that goes.
    Quad inset(float pixels) const {
        const Vector2 sides = size();
        const float s = std::fmin(pixels / std::fmax(sides.x, 1.0f), 0.49f);
        const float t = std::fmin(pixels / std::fmax(sides.y, 1.0f), 0.49f);
        return {{at(s, t), at(1 - s, t), at(1 - s, 1 - t), at(s, 1 - t)}};
    }
};

} // namespace morvane::art
