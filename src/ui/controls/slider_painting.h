#pragma once

#include "ui/controls/slider_scale.h"

#include <QRectF>

class QPainter;

namespace morvane {

/// The edge of a slider's rail, or a picture in its place.
enum class SliderRail { sunken = 0, raised = 1, sunkenOuter = 2, sunkenInner = 3, noEdge = 4, picture = 99 };

/// What a slider without pictures of its own shows.
struct SliderLook {
    SliderOrientation orientation;
    QRectF control, thumb; ///< logical pixels of the control
    SliderRail rail;
    bool hasFocus, isEnabled;
};

/// The rail with its edge, the stretch between its middle and the thumb, and the mark of the middle.
void paintSliderRail(QPainter& painter, const SliderLook& look);
void paintSliderThumb(QPainter& painter, const SliderLook& look);

} // namespace morvane
