#include "ui/controls/slider_painting.h"

#include "ui/controls/palette.h"

#include <QLinearGradient>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace morvane {

namespace {

constexpr double railThickness = 4, tickLength = 3, tickGap = 2, indexLength = 10;

struct RailEdge {
    SliderRail rail;
    QRgb topLine, footLine;
};

constexpr RailEdge railEdges[] = {
    {SliderRail::sunken, palette::railShade, palette::rail},
    {SliderRail::raised, palette::hair, palette::railShade},
    {SliderRail::sunkenOuter, palette::rule, palette::rail},
    {SliderRail::sunkenInner, palette::rule, palette::hair},
    {SliderRail::noEdge, palette::rail, palette::rail},
};

const RailEdge& edgeOf(SliderRail rail) {
    const auto* edge = std::ranges::find(railEdges, rail, &RailEdge::rail);
    return edge == std::end(railEdges) ? railEdges[0] : *edge;
}

/// A rectangle told along and across the rail, as the control has it.
QRectF oriented(const SliderLook& look, double along, double across, double length, double thickness) {
    if (look.orientation == SliderOrientation::horizontal) return {along, across, length, thickness};
    return {across, along, thickness, length};
}

struct RailMeasures {
    double length, top, thumbCentre;
};

RailMeasures measuresOf(const SliderLook& look) {
    if (look.orientation == SliderOrientation::horizontal)
        return {look.control.width(), (look.control.height() - railThickness) / 2, look.thumb.center().x()};
    return {look.control.height(), (look.control.width() - railThickness) / 2, look.thumb.center().y()};
}

void fill(QPainter& painter, const QRectF& place, QRgb colour) {
    painter.fillRect(place, QColor::fromRgba(colour));
}

void paintRailBody(QPainter& painter, const SliderLook& look, const RailMeasures& rail) {
    const RailEdge& edge = edgeOf(look.rail);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(palette::rail));
    painter.drawRoundedRect(oriented(look, 0, rail.top, rail.length, railThickness), 2, 2);
    painter.restore();
    fill(painter, oriented(look, 1, rail.top, rail.length - 2, 1), edge.topLine);
    fill(painter, oriented(look, 1, rail.top + railThickness - 1, rail.length - 2, 1), edge.footLine);
}

} // namespace

void paintSliderRail(QPainter& painter, const SliderLook& look) {
    const RailMeasures rail = measuresOf(look);
    const double middle = rail.length / 2;
    paintRailBody(painter, look, rail);
    const double low = std::min(middle, rail.thumbCentre), high = std::max(middle, rail.thumbCentre);
    fill(painter, oriented(look, low, rail.top, high - low, railThickness),
         look.isEnabled ? palette::accentOnPaper : palette::railShade);
    const double tick = std::floor(middle);
    for (double across : {rail.top - tickGap - tickLength, rail.top + railThickness + tickGap})
        fill(painter, oriented(look, tick, across, 1, tickLength), palette::markLine);
}

void paintSliderThumb(QPainter& painter, const SliderLook& look) {
    const QRectF& thumb = look.thumb;
    QLinearGradient ground(thumb.topLeft(), thumb.bottomLeft());
    ground.setColorAt(0, QColor::fromRgb(palette::thumbTop));
    ground.setColorAt(1, QColor::fromRgb(palette::thumbFoot));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor::fromRgb(palette::outline));
    painter.setBrush(ground);
    painter.drawRoundedRect(thumb.adjusted(.5, .5, -.5, -.5), 2.5, 2.5);
    if (look.hasFocus) {
        painter.setPen(QColor::fromRgb(palette::accentOnPaper));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(thumb.adjusted(-.5, -.5, .5, .5), 3.5, 3.5);
    }
    painter.restore();
    painter.fillRect(QRectF(thumb.left() + 2, thumb.top() + 1, thumb.width() - 4, 1),
                     QColor(255, 255, 255, 64));
    const QPointF centre = thumb.center();
    const bool isAcross = look.orientation == SliderOrientation::horizontal;
    const QSizeF index = isAcross ? QSizeF(1, indexLength) : QSizeF(indexLength, 1);
    fill(painter, QRectF(centre - QPointF(index.width(), index.height()) / 2, index),
         look.isEnabled ? palette::accent : palette::textOff);
}

} // namespace morvane
