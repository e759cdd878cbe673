#include "skin_outlines.h"

#include "skin_drawing.h"
#include "skin_palette.h"

namespace morvane::skin {

namespace {

void addCorner(QPainterPath& path, QPointF centre, qreal radius, qreal startAngle) {
    path.arcTo(QRectF(centre - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius)), startAngle, -90);
}

/// From the picture's middle, the sign leads to the left or the right half.
QPainterPath halfMark(qreal sign) {
    QPainterPath path(QPointF(sign * 26, 1));
    path.lineTo(sign * 14, 1);
    path.lineTo(sign * 10, 6);
    return path;
}

} // namespace

QPainterPath outlinePath(const WindowOutline& outline) {
    const qreal width = outline.size.width(), height = outline.size.height(), radius = outline.cornerRadius;
    const qreal left = (width - outline.lipTop) / 2, right = (width + outline.lipTop) / 2;
    const qreal half = outline.shoulder / 2, top = outline.bodyTop;
    QPainterPath path(QPointF(0, top + radius));
    addCorner(path, {radius, top + radius}, radius, 180);
    path.lineTo(left - outline.shoulder, top);
    path.cubicTo(left - half, top, left - half, 0, left, 0);
    path.lineTo(right, 0);
    path.cubicTo(right + half, 0, right + half, top, right + outline.shoulder, top);
    addCorner(path, {width - radius, top + radius}, radius, 90);
    addCorner(path, {width - radius, height - radius}, radius, 0);
    addCorner(path, {radius, height - radius}, radius, -90);
    path.closeSubpath();
    return path;
}

void drawBezel(QPainter& painter, const WindowOutline& outline, qreal headerFoot) {
    QLinearGradient header(0, 0, 0, headerFoot);
    header.setColorAt(0, bezelTop);
    header.setColorAt(0.35, bezelMiddle);
    header.setColorAt(1, bezel);
    painter.fillRect(QRectF(QPointF(0, 0), outline.size), header);
}

void drawBezelEdge(QPainter& painter, const WindowOutline& outline) {
    const QPainterPath path = outlinePath(outline);
    QLinearGradient light(0, 0, 0, outline.size.height());
    light.setColorAt(0, faded(white, 0.30));
    light.setColorAt(0.2, faded(white, 0.12));
    light.setColorAt(1, faded(white, 0.05));
    // Without a clip: what lies outside the outline is cut away afterwards, and a clip would blend the edge.
    painter.strokePath(path, QPen(light, 4));
    painter.strokePath(path, QPen(outlineColour, 2));
}

void drawHorizon(QPainter& painter, const Horizon& horizon) {
    painter.save();
    painter.translate(horizon.middle);
    for (const qreal sign : {-1.0, 1.0}) {
        QLinearGradient fading(sign * horizon.reach, 0, sign * horizon.gap, 0);
        fading.setColorAt(0, faded(accent, 0));
        fading.setColorAt(1, accent);
        const qreal left = sign < 0 ? -horizon.reach : horizon.gap;
        painter.fillRect(QRectF(left, 0, horizon.reach - horizon.gap, 1), fading);
    }
    painter.scale(horizon.markScale, 1);
    const QPen pen(textBright, 2, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
    painter.strokePath(halfMark(-1), pen);
    painter.strokePath(halfMark(1), pen);
    painter.fillRect(QRectF(-1.5, -1, 3, 3), textBright);
    painter.restore();
}

void drawPageFrame(QPainter& painter, const QRectF& place) {
    painter.fillPath(roundedPath(place.adjusted(-3, -3, 3, 3), 9), faded(white, 0.07));
    painter.fillPath(roundedPath(place.adjusted(-2, -2, 2, 2), 8), lineColour);
}

} // namespace morvane::skin
