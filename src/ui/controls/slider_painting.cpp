#include "ui/controls/slider_painting.h"

#include "ui/controls/palette.h"

#include <QLinearGradient>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace morvane {

namespace {

constexpr double railThickness = 4, tickLength = 3, tickGap = 2, indexLength = 10;

void fill(QPainter& painter, const QRectF& place, QRgb colour) {
    painter.fillRect(place, QColor::fromRgba(colour));
}

double railTop(const SliderLook& look) {
    return (look.control.height() - railThickness) / 2;
}

/// Sunken: shade above, light below.
void paintRailBody(QPainter& painter, const SliderLook& look) {
    const double length = look.control.width(), top = railTop(look);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(palette::now(paper::rail)));
    painter.drawRoundedRect(QRectF(0, top, length, railThickness), 2, 2);
    painter.restore();
    fill(painter, {1, top, length - 2, 1}, palette::now(paper::railTop));
    fill(painter, {1, top + railThickness - 1, length - 2, 1}, palette::now(paper::rail));
}

} // namespace

void paintSliderRail(QPainter& painter, const SliderLook& look) {
    paintRailBody(painter, look);
    const double middle = look.control.width() / 2, thumb = look.thumb.center().x(), top = railTop(look);
    const double low = std::min(middle, thumb), high = std::max(middle, thumb);
    fill(painter, {low, top, high - low, railThickness},
         look.isEnabled ? palette::now(paper::accent) : palette::now(paper::railTop));
    for (double across : {top - tickGap - tickLength, top + railThickness + tickGap})
        fill(painter, {std::floor(middle), across, 1, tickLength}, palette::now(paper::markLine));
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
        painter.setPen(QColor::fromRgb(palette::now(paper::accent)));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(thumb.adjusted(-.5, -.5, .5, .5), 3.5, 3.5);
    }
    painter.restore();
    painter.fillRect(QRectF(thumb.left() + 2, thumb.top() + 1, thumb.width() - 4, 1),
                     QColor::fromRgba(palette::thumbLight));
    const QPointF centre = thumb.center();
    constexpr QSizeF index(1, indexLength);
    fill(painter, QRectF(centre - QPointF(index.width(), index.height()) / 2, index),
         look.isEnabled ? palette::accent : palette::textOff);
}

} // namespace morvane
