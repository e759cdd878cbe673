#include "weather/screens/cover_dialog.h"

#include "core/session.h"
#include "weather/cover_choice.h"

namespace morvane {

void CoverDialog::confirm() {
    session().state<CoverChoice>().coverConfirmed = true;
}

} // namespace morvane
