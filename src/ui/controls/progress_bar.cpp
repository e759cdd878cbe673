#include "ui/controls/progress_bar.h"

#include "core/literals.h"
#include "ui/controls/palette.h"

#include <QPainter>
#include <algorithm>

namespace morvane {

SkinnedProgressBar::SkinnedProgressBar(QWidget* parent) : QWidget(parent) {
    setAccessibleName(u"Progress"_s);
}

void SkinnedProgressBar::setValue(double value) {
    value_ = std::clamp(value, 0.0, 100.0);
    setAccessibleDescription(QString::number(static_cast<int>(value_)) + u" %"_s);
    update();
}

void SkinnedProgressBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(palette::line));
    painter.drawRoundedRect(rect(), height() / 2.0, height() / 2.0);
    const double inset = height() > 12 ? 3 : 2;
    QRectF fill = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    fill.setWidth(fill.width() * value_ / 100);
    // Narrower than it is high it could not be round.
    if (fill.width() < 1) return;
    QLinearGradient light(fill.topLeft(), fill.bottomLeft());
    light.setColorAt(0, QColor::fromRgb(palette::progressTop));
    light.setColorAt(1, QColor::fromRgb(palette::progressFoot));
    painter.setBrush(light);
    const double radius = std::min(fill.width(), fill.height()) / 2;
    painter.drawRoundedRect(fill, radius, radius);
}

} // namespace morvane
