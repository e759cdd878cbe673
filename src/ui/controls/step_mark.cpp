#include "ui/controls/step_mark.h"

#include "ui/controls/palette.h"

#include <QPainter>
#include <utility>

namespace morvane {

namespace {

constexpr QRectF ring{2.5, 2.5, 15, 15};
constexpr qreal ringWidth = 1.6;

QPen penOf(QRgb colour, qreal width = ringWidth) {
    return {QColor::fromRgb(colour), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void drawWarning(QPainter& painter) {
    painter.drawPolyline(QPolygonF{{10, 3}, {18, 17}, {2, 17}, {10, 3}});
    painter.drawLine(QPointF(10, 8), QPointF(10, 12));
    painter.drawPoint(QPointF(10, 14.6));
}

} // namespace

StepMark::StepMark(QWidget* parent) : QWidget(parent) {
    resize(20, 20);
}

void StepMark::setSign(Sign sign, double percent) {
    const bool isNew = std::exchange(sign_, sign) != sign;
    if (isNew || std::exchange(percent_, percent) != percent) update();
}

void StepMark::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isPale = sign_ == Sign::empty || sign_ == Sign::share;
    painter.setPen(penOf(!isPale                ? palette::now(paper::text)
                         : sign_ == Sign::share ? palette::now(paper::rule)
                                                : palette::now(paper::markLine)));
    if (sign_ == Sign::warning) return drawWarning(painter);
    painter.drawEllipse(ring);
    if (sign_ == Sign::tick) painter.drawPolyline(QPolygonF{{6.4, 10.2}, {9, 12.8}, {13.8, 7.4}});
    if (sign_ == Sign::line) painter.drawLine(QPointF(6.5, 10), QPointF(13.5, 10));
    if (sign_ != Sign::share) return;
    constexpr int top = 90 * 16, wholeTurn = 360 * 16;
    painter.setPen(penOf(palette::now(paper::accent), 2.2));
    painter.drawArc(ring, top, -static_cast<int>(wholeTurn * percent_ / 100));
}

} // namespace morvane
