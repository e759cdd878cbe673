#pragma once

#include <QPainterPath>

namespace morvane::skin {

/// A line drawing: paths to stroke and dots to fill.
struct Strokes {
    QPainterPath lines;
    QPainterPath dots;
};

/// Reads a drawing written as letters and numbers, all divided by blanks:
/// M x y           start of a line
/// L x y           straight on
/// C x y x y x y   on in a curve: two control points and the end
/// Z               back to the start
/// A x y r s t     arc round a centre: radius, start and sweep in degrees, 0 to the right, positive upward
/// O x y r         circle
/// E x y r s       ellipse with its two radii
/// R x y w h r     rectangle with round corners
/// D x y r         dot, filled
/// Raises "Invalid procedure call" for another letter: the drawings are the tool's own.
Strokes strokesFrom(const char* text);

} // namespace morvane::skin
