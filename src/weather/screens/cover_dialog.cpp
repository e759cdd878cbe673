#include "weather/screens/cover_dialog.h"

#include "core/session.h"

namespace morvane {

void CoverDialog::ok() {
    if (button(u"btn_Ok"_s)->state() != ButtonState::disabled) DialogForm::ok();
}

void CoverDialog::confirm() {
    session().modal.coverConfirmed = true;
}

void CoverDialog::allowOk(bool isAllowed) {
    button(u"btn_Ok"_s)->setState(isAllowed ? ButtonState::enabled : ButtonState::disabled);
}

} // namespace morvane
