#include "imaging/slider_steps.h"

#include "core/literals.h"

#include <algorithm>

namespace morvane {

namespace {

constexpr int step = 5;

} // namespace

int decremented(int value) {
    return std::max(value - step, sliderLowest);
}

int incremented(int value) {
    return std::min(value + step, sliderHighest);
}

QString sliderLabel(int value) {
    return value == 0 ? u"default"_s : QString::number(value) + u'%';
}

} // namespace morvane
