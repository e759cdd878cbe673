#pragma once

#include "simulator/stock_import.h"

#include <optional>

namespace morvane {

/// What the user can ask of the base images: each a job of its own.

/// An import from that source, which says at the end what came of it. Nothing when it could not begin.
std::optional<StockImportReport> importStock(Session& session, const StockSource& source);

/// From the simulator's own folder. While a set of ours is installed the textures there are not the pilot's:
/// then the newest backup is offered instead, and without one there is nothing to take. Asks in any case,
/// unless the user has said already that it is wanted. Nothing when it was refused or failed.
std::optional<StockImportReport> importSimulatorStock(Session& session, bool isConfirmed = false);

/// Puts the base images of before the first import back. Asks, unless the user has said already that it is
/// wanted. The number of files; nothing when it was refused or after the message of a failure.
std::optional<int> restoreStock(Session& session, bool isConfirmed = false);
/// There is something to put back.
bool hasKeptStock(Session& session);

} // namespace morvane
