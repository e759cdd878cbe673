#pragma once

#include <QPainter>
#include <QPainterPath>

namespace morvane::skin {

/// The one outline of all windows in its measures: a body with round corners and above it, in the middle, a
/// raised lip on two curved shoulders.
struct WindowOutline {
    QSizeF size;
    qreal bodyTop = 0;
    qreal cornerRadius = 0;
    /// Width of the lip's flat top and of each shoulder beside it.
    qreal lipTop = 0;
    qreal shoulder = 0;
};

QPainterPath outlinePath(const WindowOutline& outline);

/// Fills the whole picture with the bezel; its header's gradient ends at `headerFoot`.
void drawBezel(QPainter& painter, const WindowOutline& outline, qreal headerFoot);

/// The dark line along the outline and the light one inside it.
void drawBezelEdge(QPainter& painter, const WindowOutline& outline);

/// A horizon line with the aircraft mark in its middle.
struct Horizon {
    QPointF middle;
    /// Half the line, and the half of it that the mark leaves free.
    qreal reach = 0;
    qreal gap = 0;
    /// Size of the mark; 1 in the main windows.
    qreal markScale = 1;
};

void drawHorizon(QPainter& painter, const Horizon& horizon);

/// The dark frame of a page or paper that lies in `place`, with the light line outside it.
void drawPageFrame(QPainter& painter, const QRectF& place);

} // namespace morvane::skin
