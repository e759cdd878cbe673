#pragma once

#include "core/literals.h"

namespace morvane {

/// "True" or "False", as the registry and the store's text columns hold flags.
inline QString flagText(bool value) {
    return value ? u"True"_s : u"False"_s;
}

} // namespace morvane
