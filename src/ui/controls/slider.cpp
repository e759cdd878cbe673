#include "ui/controls/slider.h"

#include "core/error.h"
#include "ui/controls/slider_painting.h"
#include "ui/controls/slider_tip.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <optional>

namespace morvane {

namespace {

constexpr QSizeF thumbSize(11, 18);
constexpr int arrowStep = 1, pageStep = 5;

/// Where the key moves the value to, not yet held to the limits; nothing for a key that is not the slider's.
std::optional<std::int64_t> movedByKey(int key, const ucSlider& slider) {
    const std::int64_t value = slider.value();
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Down:
        return value - arrowStep;
    case Qt::Key_Right:
    case Qt::Key_Up:
        return value + arrowStep;
    case Qt::Key_PageDown:
        return value - pageStep;
    case Qt::Key_PageUp:
        return value + pageStep;
    case Qt::Key_Home:
        return slider.min();
    case Qt::Key_End:
        return slider.max();
    default:
        return std::nullopt;
    }
}

/// On whole pixels of the screen, where straight lines stay sharp.
QRectF onPixels(const QRectF& place, double ratio) {
    const QPointF corner(std::round(place.x() * ratio) / ratio, std::round(place.y() * ratio) / ratio);
    return {corner, place.size()};
}

} // namespace

ucSlider::ucSlider(int min, int max, QWidget* parent) : QWidget(parent), min_(min), max_(max), value_(min) {
    setFocusPolicy(Qt::StrongFocus);
}

void ucSlider::setValue(int value) {
    if (value < min_ || value > max_) throw Error(ErrorCode::invalidPropertyValue);
    if (value == value_) return;
    value_ = value;
    update();
    QAccessibleValueChangeEvent event(this, value);
    QAccessible::updateAccessibility(&event);
    Q_EMIT Change();
}

SliderScale ucSlider::scale() const {
    return {width() - thumbSize.width(), min_, max_};
}

QRectF ucSlider::thumbPlace() const {
    return {{scale().positionOf(value_), (height() - thumbSize.height()) / 2}, thumbSize};
}

QSize ucSlider::sizeHint() const {
    return {100, 20};
}

void ucSlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    isDragging_ = true;
    const QRectF thumb = thumbPlace();
    if (thumb.contains(event->position())) {
        grab_ = event->position() - thumb.topLeft();
    } else {
        grab_ = {thumb.width() / 2, thumb.height() / 2};
        dragTo(event->position());
    }
    showTip();
}

void ucSlider::mouseMoveEvent(QMouseEvent* event) {
    if (isDragging_) dragTo(event->position());
}

void ucSlider::dragTo(const QPointF& mouse) {
    const SliderScale rail = scale();
    setValue(rail.valueAt(rail.onRail(mouse.x() - grab_.x())));
    showTip();
}

void ucSlider::mouseReleaseEvent(QMouseEvent*) {
    endDrag();
}

void ucSlider::endDrag() {
    isDragging_ = false;
    if (tip_) tip_->hide();
}

void ucSlider::hideEvent(QHideEvent*) {
    endDrag();
}

void ucSlider::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled()) endDrag(); // no release reaches it any more
}

void ucSlider::keyPressEvent(QKeyEvent* event) {
    const auto wanted = movedByKey(event->key(), *this);
    if (!wanted) return QWidget::keyPressEvent(event);
    moveTo(*wanted);
}

void ucSlider::moveTo(std::int64_t wanted) {
    setValue(static_cast<int>(std::clamp<std::int64_t>(wanted, min_, max_)));
}

/// A wheel without notches, and a touch pad, tell of small parts of one.
void ucSlider::wheelEvent(QWheelEvent* event) {
    constexpr int notch = QWheelEvent::DefaultDeltasPerStep;
    turned_ += event->angleDelta().y();
    moveTo(std::int64_t(value_) + turned_ / notch * arrowStep);
    turned_ %= notch;
}

void ucSlider::showTip() {
    if (!tip_) tip_ = new ucSliderTip(this);
    const QRectF thumb = thumbPlace();
    tip_->setValue(value_);
    tip_->showAbove({mapToGlobal(thumb.topLeft()).toPoint(), thumb.size().toSize()});
}

void ucSlider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const SliderLook look{rect(), onPixels(thumbPlace(), devicePixelRatioF()), hasFocus(), isEnabled()};
    paintSliderRail(painter, look);
    paintSliderThumb(painter, look);
}

} // namespace morvane
