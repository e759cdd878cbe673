#include "sets/favourite_name.h"

namespace morvane {

bool askFavouriteName(Session& session) {
    FavouriteAnswer& answer = session.state<FavouriteAnswer>();
    answer = {};
    session.user.showModal(Screen::frm_AddFav);
    return answer.favConfirmed;
}

} // namespace morvane
