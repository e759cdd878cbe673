#pragma once

#include "simulator/kept_room.h"

namespace morvane {

/// Removes what can be removed of the item, behind a question that says what is lost: a backup (see
/// removeBackup), what an undo needs, intermediate images, or the files of sets, of which the user chooses
/// those that stay as colours. Nothing for an item that is not removable.
void removeKept(Session& session, const KeptItem& item);

} // namespace morvane
