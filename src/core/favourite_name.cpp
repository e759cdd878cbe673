#include "core/favourite_name.h"

namespace morvane {

bool askFavouriteName(Session& session, FavouriteKind kind) {
    ModalState& modal = session.modal;
    modal.favKind = kind;
    modal.favName.clear();
    modal.favDescription.clear();
    modal.favConfirmed = false;
    session.user.showModal(Screen::frm_AddFav);
    return modal.favConfirmed;
}

} // namespace morvane
