#include "weather/screens/cover_dialog.h"

#include "core/session.h"

namespace morvane {

void CoverDialog::confirm() {
    session().modal.coverConfirmed = true;
}

} // namespace morvane
