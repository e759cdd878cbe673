#pragma once

#include "core/session.h"

namespace morvane {

/// Empties the folders of intermediate bitmaps, but not the Dutch one: its files stay until the next set
/// writes over them. Runs with errors switched off: what cannot be removed is skipped without a word.
void cleanTempBitmaps(Session& session);

} // namespace morvane
