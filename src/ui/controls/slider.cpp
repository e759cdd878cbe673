#include "ui/controls/slider.h"

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

constexpr std::int16_t customPointer = 99;
constexpr QSizeF drawnThumb(11, 18); // of a horizontal slider
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

ucSlider::ucSlider(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(u"Slider"_s);
    readProperties({});
}

void ucSlider::readProperties(const QVariantMap& stored) {
    const int min = stored.value(u"Min"_s, 0).toInt();
    const int max = stored.value(u"Max"_s, 10).toInt();
    const int value = stored.value(u"Value"_s, 0).toInt();
    if (max <= min || value < min || value > max) throw InvalidPropertyValue();
    min_ = min;
    max_ = max;
    value_ = value;
    // The pages' paper takes the place of the system's button face: it shades from top to foot.
    backColour_ = stored.value(u"BackColor"_s, QColor(Qt::transparent)).value<QColor>();
    mousePointer_ = static_cast<std::int16_t>(stored.value(u"MousePointer"_s, 0).toInt());
    mouseIcon_ = stored.value(u"MouseIcon"_s).value<QPixmap>();
    orientation_ = static_cast<SliderOrientation>(stored.value(u"Orientation"_s, 1).toInt());
    railStyle_ = static_cast<SliderRail>(stored.value(u"RailStyle"_s, 0).toInt());
    showValueTip_ = stored.value(u"ShowValueTip"_s, true).toBool();
    sliderImage_ = stored.value(u"SliderImage"_s).value<QPixmap>();
    railImage_ = stored.value(u"RailImage"_s).value<QPixmap>();
    setEnabled(stored.value(u"Enabled"_s, true).toBool());
    refreshCursor();
    update();
}

void ucSlider::setBackColor(const QColor& colour) {
    backColour_ = colour;
    update();
}

void ucSlider::setMousePointer(std::int16_t pointer) {
    mousePointer_ = pointer;
    refreshCursor();
}

void ucSlider::setMouseIcon(const QPixmap& icon) {
    mouseIcon_ = icon;
    refreshCursor();
}

void ucSlider::refreshCursor() {
    if (mousePointer_ == customPointer && !mouseIcon_.isNull())
        setCursor(QCursor(mouseIcon_));
    else
        unsetCursor();
}

void ucSlider::setMax(int max) {
    if (max <= min_) throw InvalidPropertyValue();
    max_ = max;
    update();
}

// Unlike `setMax` it moves the value, and from there on: pages rely on a slider that starts at its bottom.
void ucSlider::setMin(int min) {
    if (min >= max_) throw InvalidPropertyValue();
    min_ = min;
    setValue(min);
    update();
}

void ucSlider::setValue(int value) {
    if (value < min_ || value > max_) throw InvalidPropertyValue();
    if (value == value_) return;
    value_ = value;
    update();
    QAccessibleValueChangeEvent event(this, value);
    QAccessible::updateAccessibility(&event);
    Q_EMIT Change();
    if (value_ == max_) Q_EMIT ArrivedLast();
    if (value_ == min_) Q_EMIT ArrivedFirst();
}

void ucSlider::setOrientation(SliderOrientation orientation) {
    orientation_ = orientation;
    update();
}

void ucSlider::setRailStyle(SliderRail style) {
    railStyle_ = style;
    update();
}

void ucSlider::setSliderImage(const QPixmap& picture) {
    sliderImage_ = picture;
    update();
}

void ucSlider::setRailImage(const QPixmap& picture) {
    railImage_ = picture;
    update();
}

QSizeF ucSlider::thumbSize() const {
    if (!sliderImage_.isNull()) return sliderImage_.deviceIndependentSize();
    return isHorizontal() ? drawnThumb : drawnThumb.transposed();
}

SliderScale ucSlider::scale() const {
    const double travel = isHorizontal() ? width() - thumbSize().width() : height() - thumbSize().height();
    return {orientation_, travel, min_, max_};
}

QRectF ucSlider::thumbPlace() const {
    const QSizeF size = thumbSize();
    const double along = scale().positionOf(value_);
    if (isHorizontal()) return {{along, (height() - size.height()) / 2}, size};
    return {{(width() - size.width()) / 2, along}, size};
}

QSize ucSlider::sizeHint() const {
    return isHorizontal() ? QSize(100, 20) : QSize(20, 100);
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
    if (showValueTip_) showTip();
    Q_EMIT MouseDown();
}

void ucSlider::mouseMoveEvent(QMouseEvent* event) {
    if (isDragging_) dragTo(event->position());
}

void ucSlider::dragTo(const QPointF& mouse) {
    const QPointF wanted = mouse - grab_;
    const SliderScale rail = scale();
    setValue(rail.valueAt(rail.onRail(isHorizontal() ? wanted.x() : wanted.y())));
    if (showValueTip_) showTip();
}

void ucSlider::mouseReleaseEvent(QMouseEvent* event) {
    const bool isClick = isDragging_ && rect().contains(event->position().toPoint());
    endDrag();
    Q_EMIT MouseUp();
    if (isClick) Q_EMIT Click();
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
    tip_->showBeside({mapToGlobal(thumb.topLeft()).toPoint(), thumb.size().toSize()}, !isHorizontal());
}

void ucSlider::paintRailImage(QPainter& painter) const {
    const QSizeF spare = QSizeF(size()) - railImage_.deviceIndependentSize();
    painter.drawPixmap(isHorizontal() ? QPointF(0, spare.height() / 2) : QPointF(spare.width() / 2, 0),
                       railImage_);
}

void ucSlider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), backColour_);
    const QRectF thumb = onPixels(thumbPlace(), devicePixelRatioF());
    const SliderLook look{orientation_, rect(), thumb, railStyle_, hasFocus(), isEnabled()};
    if (railStyle_ == SliderRail::picture)
        paintRailImage(painter);
    else
        paintSliderRail(painter, look);
    if (sliderImage_.isNull())
        paintSliderThumb(painter, look);
    else
        painter.drawPixmap(thumb.topLeft(), sliderImage_);
}

} // namespace morvane
