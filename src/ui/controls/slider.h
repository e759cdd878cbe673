#pragma once

#include "core/error.h"
#include "ui/controls/slider_painting.h"
#include "ui/controls/slider_scale.h"

#include <QPixmap>
#include <QVariantMap>
#include <QWidget>
#include <cstdint>

namespace morvane {

class ucSliderTip;

/// Error 380 of a slider: a value outside `min` to `max`, or limits that leave no range.
class InvalidPropertyValue : public Error {
public:
    InvalidPropertyValue() : Error(ErrorCode::invalidPropertyValue) {}
};

/// A rail and a thumb that stand for one whole number. The thumb is dragged, put by a click on the rail or
/// moved by the wheel (1) and the keys (arrows 1, page keys 5, Home, End) and always lies exactly at its
/// value.
class ucSlider : public QWidget {
    Q_OBJECT
public:
    explicit ucSlider(QWidget* parent = nullptr);

    /// Sets up by the properties' names, "Min", "Max" and "Value" in these spellings, without an event; a
    /// name that is not there gets its default. Raises `InvalidPropertyValue` as the setters do, changing
    /// nothing.
    void readProperties(const QVariantMap& stored);

    /// QWidget's own `setEnabled` sets it.
    bool Enabled() const { return isEnabled(); }
    QColor BackColor() const { return backColour_; }
    void setBackColor(const QColor& colour);
    /// 0 is the usual pointer, 99 that of `MouseIcon`.
    std::int16_t MousePointer() const { return mousePointer_; }
    void setMousePointer(std::int16_t pointer);
    QPixmap MouseIcon() const { return mouseIcon_; }
    void setMouseIcon(const QPixmap& icon);
    int max() const { return max_; }
    /// Leaves the value alone, even above the new end. `max` must be above `min`.
    void setMax(int max);
    int min() const { return min_; }
    /// Moves the value to the new `min`, with the events of that; so set `min` before `value`.
    void setMin(int min);
    int value() const { return value_; }
    /// Raises `InvalidPropertyValue` outside `min` to `max`. The present value once more raises no event.
    void setValue(int value);
    SliderOrientation Orientation() const { return orientation_; }
    void setOrientation(SliderOrientation orientation);
    SliderRail RailStyle() const { return railStyle_; }
    void setRailStyle(SliderRail style);
    /// The thumb's picture; without one the thumb is drawn in the skin's manner.
    QPixmap SliderImage() const { return sliderImage_; }
    void setSliderImage(const QPixmap& picture);
    QPixmap RailImage() const { return railImage_; }
    void setRailImage(const QPixmap& picture);
    bool ShowValueTip() const { return showValueTip_; }
    void setShowValueTip(bool isShown) { showValueTip_ = isShown; }

    /// The thumb's place in the control, in logical pixels.
    QRectF thumbPlace() const;
    QSize sizeHint() const override;

Q_SIGNALS:
    /// Pressed and let go over the control; after `MouseUp`.
    void Click();
    void ArrivedFirst();
    void ArrivedLast();
    /// Before `ArrivedLast` and `ArrivedFirst`.
    void Change();
    void MouseDown();
    void MouseUp();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool isHorizontal() const { return orientation_ == SliderOrientation::horizontal; }
    QSizeF thumbSize() const;
    SliderScale scale() const;
    void dragTo(const QPointF& mouse);
    void moveTo(std::int64_t wanted);
    void endDrag();
    void showTip();
    void refreshCursor();
    void paintRailImage(QPainter& painter) const;

    QColor backColour_;
    std::int16_t mousePointer_ = 0;
    QPixmap mouseIcon_, sliderImage_, railImage_;
    SliderOrientation orientation_ = SliderOrientation::vertical;
    SliderRail railStyle_ = SliderRail::sunken;
    bool showValueTip_ = true, isDragging_ = false;
    int min_ = 0, max_ = 10, value_ = 0;
    int turned_ = 0; ///< of the wheel towards its next notch, in eighths of a degree
    QPointF grab_;   ///< of the mouse from the thumb's corner
    ucSliderTip* tip_ = nullptr;
};

} // namespace morvane
