#pragma once

#include "imaging/colour_values.h"
#include "sets/set_selection.h"

namespace morvane {

/// The ground set in hand: written by a selection in the list, read by the actions.
struct GroundSelection : SetSelection {
    bool RefreshGroundList = false; ///< the list is to be filled anew when it is shown
    QString SelectedGroundKey;      ///< "Key:" and the TsID
    QString SelectedGroundSet;
    bool SelectedGroundActivated = false;
    QString SelectedGroundCover;
    QString SelectedGroundDescription; ///< at most 255 characters
    ColourValues colours;
};

} // namespace morvane
