#pragma once

#include "core/session.h"

#include <QStringList>

namespace morvane {

struct clsSkyTextureSet;

/// The sky set in hand: written by a selection in the list, read by the actions.
struct SkySelection {
    bool RefreshSkyList = false; ///< the list is to be filled anew when it is shown
    QString SelectedSkyKey;      ///< "Key:" and the StsID
    QString SelectedSkySet;
    bool SelectedSkyActivated = false;
    QString SelectedSkyCover;
    QString SelectedSkyDescription;
    QString SelectedSkyGroup; ///< the base set that it was made from
    /// Names of all rows that are ticked in the list.
    QStringList selectedRows;
};

/// The set's key in lists: "Key:" and the StsID.
QString skyListKey(const clsSkyTextureSet& set);

/// Takes the set behind a list key into the session's selection and its sub set for that time of day into
/// `skyTextureGroups`. Groups without a colour text, and all of them without such a sub set, are zero. A
/// screen repaints its sample afterwards: the file is `skySampleFile`. False after a failure was told; a set
/// whose colours are damaged is in hand all the same, with all groups zero.
bool loadSkySubSet(Session& session, const QString& listKey, const QString& timeOfDay);

/// Fills `skyTextureGroups` from the set's sub set for that time of day, as above. The set's sub sets become
/// the session's rows. False after the message that they cannot be read; a colour text that is none raises.
bool loadSkyTextureGroups(Session& session, std::int16_t setKey, const QString& timeOfDay);

/// Takes the set of that name in hand; its colours are left alone, as are the ticks of the rows. False when
/// there is no set of that name.
bool clickSkyRow(Session& session, const QString& name);

} // namespace morvane
