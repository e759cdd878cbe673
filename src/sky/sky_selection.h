#pragma once

#include "core/reported.h"
#include "core/session.h"
#include "sets/set_selection.h"

namespace morvane {

/// The sky set in hand: written by a selection in the list, read by the actions. Several rows are those that
/// are ticked.
struct SkySelection : SetSelection {
    bool RefreshSkyList = false; ///< the list is to be filled anew when it is shown
    QString SelectedSkyKey;      ///< "Key:" and the StsID
    QString SelectedSkySet;
    bool SelectedSkyActivated = false;
    QString SelectedSkyCover;
    QString SelectedSkyDescription;
    QString SelectedSkyGroup; ///< the base set that it was made from
};

/// Takes the set behind a list key in hand and fills `skyTextureGroups` from its sub set for that time of
/// day. Groups without a colour text are zero, and so are all of them where there is no such sub set. The
/// sample is not drawn here: a screen does that afterwards, from the picture that `skySampleFile` names.
/// A set whose colours are damaged is in hand all the same, with all groups zero.
Reported loadSkySubSet(Session& session, const QString& listKey, const QString& timeOfDay);

/// The second half of it: fills `skyTextureGroups`, and makes the set's sub sets the
/// session's rows. False after the message that they cannot be read; a colour text that is none raises.
bool loadSkyTextureGroups(Session& session, std::int16_t setKey, const QString& timeOfDay);

} // namespace morvane
