#pragma once

#include "core/session.h"

#include <QString>

namespace morvane {

/// Whose favourite frm_AddFav names.
enum class FavouriteKind { ground, sky, night };

/// frm_AddFav: what was typed, trimmed, and whether OK was pressed.
struct FavouriteAnswer {
    FavouriteKind favKind = FavouriteKind::ground;
    QString favName, favDescription;
    bool favConfirmed = false;
};

/// Asks for name and description of a favourite (frm_AddFav), both empty at first. True after OK; they then
/// stand in the session's `FavouriteAnswer`.
bool askFavouriteName(Session& session, FavouriteKind kind);

} // namespace morvane
