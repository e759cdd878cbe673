#include "ui/controls/skinned_progress_bar.h"

#include "core/literals.h"
#include "ui/controls/paper_drawing.h"

#include <QAccessible>
#include <QPainter>
#include <algorithm>

namespace morvane {

SkinnedProgressBar::SkinnedProgressBar(QWidget* parent) : QWidget(parent) {
    setAccessibleName(u"Progress"_s);
}

void SkinnedProgressBar::setValue(double value) {
    const double held = std::clamp(value, 0.0, 100.0);
    if (held == value_) return;
    value_ = held;
    update();
    QAccessibleValueChangeEvent event(this, held);
    QAccessible::updateAccessibility(&event);
}

void SkinnedProgressBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawProgress(painter, rect(), value_ / 100);
}

} // namespace morvane
