#pragma once

#include <QRectF>

class QPainter;

namespace morvane {

/// What a slider shows.
struct SliderLook {
    QRectF control, thumb; ///< logical pixels of the control
    bool hasFocus, isEnabled;
};

/// The rail with its edge, the stretch between its middle and the thumb, and the mark of the middle.
void paintSliderRail(QPainter& painter, const SliderLook& look);
void paintSliderThumb(QPainter& painter, const SliderLook& look);

} // namespace morvane
