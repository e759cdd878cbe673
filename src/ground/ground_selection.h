#pragma once

#include "core/session.h"
#include "imaging/colour_values.h"

#include <QStringList>

namespace morvane {

/// The ground set in hand: written by a selection in the list, read by the actions.
struct GroundSelection {
    bool RefreshGroundList = false; ///< the list is to be filled anew when it is shown
    QString SelectedGroundKey;      ///< "Key:" and the TsID
    QString SelectedGroundSet;
    bool SelectedGroundActivated = false;
    QString SelectedGroundCover;
    QString SelectedGroundDescription; ///< at most 255 characters
    ColourValues colours;
    /// Names of all rows that are selected in the list; the row in hand alone when it was clicked alone.
    QStringList selectedRows;
    QString madeSet; ///< made just now: the list selects it, as if it had been clicked, and forgets it
};

/// Takes the set behind a list key ("Key:" and the TsID) into the session's selection, whoever selected it:
/// its row, its description, its colours. A screen repaints its sample afterwards. False after a failure was
/// told; a set whose colours are damaged is in hand all the same, with neutral ones.
bool loadGroundSelection(Session& session, const QString& listKey);

/// Takes the set of that name in hand, its row as the only one selected; the colours are left neutral. False
/// when there is no set of that name.
bool clickGroundRow(Session& session, const QString& name);

} // namespace morvane
