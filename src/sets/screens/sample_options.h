#pragma once

#include "sets/sample_choice.h"

#include <QRect>

class QButtonGroup;
class QWidget;

namespace morvane {

/// An option for each choice, named `namePrefix` and its key; the ids of the group are positions in the list.
QButtonGroup* addSampleOptions(QWidget* parent, const SampleChoices& choices, const QString& namePrefix,
                               QRect (*place)(int));
/// Checks the choice of that key; without one the first.
void checkSample(const QButtonGroup& group, const SampleChoices& choices, const QString& key);
const QString& checkedSample(const QButtonGroup& group, const SampleChoices& choices);

} // namespace morvane
