#pragma once

#include "imaging/colour_values.h"
#include "sets/set_selection.h"

namespace morvane {

/// The night set in hand, as that of the ground.
struct NightSelection : SetSelection {
    bool RefreshNightList = false;
    QString SelectedNightSet;
    QString SelectedNightDescription;
    ColourValues colours;
};

} // namespace morvane
