#include "sets/favourite_name.h"

namespace morvane {

bool askFavouriteName(Session& session, FavouriteKind kind) {
    FavouriteAnswer& answer = session.state<FavouriteAnswer>();
    answer.favKind = kind;
    answer.favName.clear();
    answer.favDescription.clear();
    answer.favConfirmed = false;
    session.user.showModal(Screen::frm_AddFav);
    return answer.favConfirmed;
}

} // namespace morvane
