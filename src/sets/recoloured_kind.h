#pragma once

#include "core/reported.h"
#include "sets/colour_settings.h"
#include "sets/set_kind.h"

namespace morvane {

// What ground and night have in common: a set is one recolouring of all its base files.

/// Takes the set behind a list key in hand, whoever selected it: its row, its description, its colours. A
/// screen repaints its sample afterwards. A set whose colours are damaged is in hand all the same, with
/// neutral ones.
template <class Kind>
Reported loadSelection(Session& session, const QString& listKey) {
    return reportFailures(session.user, morvaneError, [&] {
        const auto set = findListKey(loadedSets<Kind>(session), listKey);
        auto& selection = session.state<typename Kind::Selection>();
        Kind::takeInHand(selection, *set);
        selection.colours = parseColourSettings(set->ColorSettings, session.DecimalSep);
    });
}

} // namespace morvane
