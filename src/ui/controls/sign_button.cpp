#include "ui/controls/sign_button.h"

#include "ui/controls/palette.h"
#include "ui/controls/wrapped_tip.h"

#include <QPainter>

namespace morvane {

namespace {

/// An open ring, turning left, with its head at the upper left.
void paintReset(QPainter& painter, const QPointF& centre) {
    constexpr double radius = 4.2;
    const QRectF ring(centre - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius));
    painter.drawArc(ring, 150 * 16, -300 * 16);
    const QPointF tip = centre + QPointF(-3.7, -2.1);
    painter.drawPolyline(QPolygonF({tip + QPointF(-.6, -3.1), tip, tip + QPointF(3.1, -.4)}));
}

} // namespace

SignButton::SignButton(ButtonSign sign, const QString& tip, QWidget* parent)
    : QPushButton(parent), sign_(sign) {
    setAccessibleName(tip);
    setToolTip(wrappedTip(tip));
}

void SignButton::paintEvent(QPaintEvent* event) {
    QPushButton::paintEvent(event);
    QPainter painter(this);
    const QPointF centre(width() / 2.0, height() / 2.0);
    const QColor colour = QColor::fromRgb(palette::now(isEnabled() ? paper::text : paper::textOff));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (sign_ == ButtonSign::reset) return paintReset(painter, centre);
    painter.drawLine(centre - QPointF(4, 0), centre + QPointF(4, 0));
    if (sign_ == ButtonSign::plus) painter.drawLine(centre - QPointF(0, 4), centre + QPointF(0, 4));
}

} // namespace morvane
