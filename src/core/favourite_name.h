#pragma once

#include "core/session.h"

namespace morvane {

/// Asks for name and description of a favourite (frm_AddFav), both empty at first. True after OK; they then
/// stand in the session's modal state.
bool askFavouriteName(Session& session, FavouriteKind kind);

} // namespace morvane
