#pragma once

#include "core/private_texts.h"

namespace morvane {

/// What stands in the edits of all windows: set titles, searches, reports, addresses.
std::vector<PrivateText> typedInWindows();

} // namespace morvane
