#pragma once

#include "core/session.h"

namespace morvane {

/// Takes the set behind a list key ("Key:" and the NtsID) into the session's selection: name, description,
/// colours. A screen repaints its sample afterwards. False after a failure was told; a set whose colours are
/// damaged is in hand all the same, with neutral ones.
bool loadNightSelection(Session& session, const QString& listKey);

/// Takes the set of that name in hand, its row as the only one selected; the colours are left neutral. False
/// when there is no set of that name.
bool clickNightRow(Session& session, const QString& name);

} // namespace morvane
