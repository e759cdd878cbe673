#pragma once

#include "core/session.h"

namespace morvane {

/// Takes the set behind a list key ("Key:" and the NtsID) into the session's selection: name, colours,
/// description. A screen repaints its sample afterwards. False after a failure was told.
bool loadNightSelection(Session& session, const QString& listKey);

/// What a click on the set's row does: the selection above, and the row as the only one selected. False when
/// there is no set of that name.
bool clickNightRow(Session& session, const QString& name);

} // namespace morvane
