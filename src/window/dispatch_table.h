#pragma once

#include "ui/skinned_button.h"

namespace morvane {

class WindowShell;

using ButtonAction = void (*)(WindowShell& shell, SkinnedButton& button);

/// What a click on a key of that family, form (exact) and key (in any case of letters) does; null for
/// nothing.
ButtonAction actionOf(ButtonFamily family, const QString& form, const QString& key);

} // namespace morvane
