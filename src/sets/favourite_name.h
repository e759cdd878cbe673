#pragma once

#include "core/session.h"

#include <QString>

namespace morvane {

/// frm_AddFav: what was typed, trimmed, and whether OK was pressed.
struct FavouriteAnswer {
    QString favName, favDescription;
    bool favConfirmed = false;
};

/// Asks for name and description of a favourite (frm_AddFav), both empty at first. True after OK; they then
/// stand in the session's `FavouriteAnswer`.
bool askFavouriteName(Session& session);

} // namespace morvane
