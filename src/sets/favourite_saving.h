#pragma once

#include "sets/recoloured_kind.h"
#include "sets/set_kind.h"

#include <utility>

namespace morvane {

/// Stores a set without files, which activation alone makes, and shows the list with it in hand. The row is
/// written before the folders: when they cannot be made it stands.
template <class Kind>
Reported saveFavourite(Session& session, typename Kind::Record record) {
    record.Actvated = flagText(false);
    record.IsNew = true;
    if constexpr (requires { record.IsDutch; })
        record.IsDutch = true; // as every set, whatever the switch says
    if (!loadedSets<Kind>(session).Save(record)) return false;
    auto& selection = session.state<typename Kind::Selection>();
    selection.*Kind::refreshList = true;
    selection.madeSet = nameOf(record);
    loadSelection<Kind>(session, listKeyOf(record));
    for (const QString& subfolder : Kind::facts().subfolders)
        session.files.makeFolder(setFolder<Kind>(session, nameOf(record)).child(subfolder));
    session.user.refreshScreen(Kind::facts().listScreen);
    session.user.showScreen(Kind::facts().listScreen);
    return true;
}

} // namespace morvane
