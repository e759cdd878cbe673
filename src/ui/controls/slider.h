#pragma once

#include "ui/controls/slider_scale.h"

#include <QWidget>
#include <cstdint>

namespace morvane {

class ucSliderTip;

/// A rail and a thumb that stand for one whole number. The thumb is dragged, put by a click on the rail or
/// moved by the wheel (1) and the keys (arrows 1, page keys 5, Home, End) and always lies exactly at its
/// value.
class ucSlider : public QWidget {
    Q_OBJECT
public:
    /// From `min` to `max`, which is above it; its value is `min` at first.
    ucSlider(int min, int max, QWidget* parent = nullptr);

    int max() const { return max_; }
    int min() const { return min_; }
    int value() const { return value_; }
    /// Raises error 380 outside `min` to `max`. The present value once more raises no event.
    void setValue(int value);

    /// The thumb's place in the control, in logical pixels.
    QRectF thumbPlace() const;
    QSize sizeHint() const override;

Q_SIGNALS:
    void Change();

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
    SliderScale scale() const;
    void dragTo(const QPointF& mouse);
    void moveTo(std::int64_t wanted);
    void endDrag();
    void showTip();

    bool isDragging_ = false;
    const int min_, max_;
    int value_;
    int turned_ = 0; ///< of the wheel towards its next notch, in eighths of a degree
    QPointF grab_;   ///< of the mouse from the thumb's corner
    ucSliderTip* tip_ = nullptr;
};

} // namespace morvane
