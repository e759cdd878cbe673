#pragma once

#include "core/job.h"
#include "simulator/stock_plan.h"

#include <optional>

namespace morvane {

/// A pilot's own textures as base images: what sets are made of from then on. Sets that exist keep their
/// files until they are activated anew.

/// What an import did.
struct StockImportReport {
    std::vector<StockCategory> categories;
    int files = 0;          ///< brought, of all categories
    QStringList unreadable; ///< names of source files that are no picture of any kind the simulator knows
    bool isCancelled = false;
};

/// Decodes every file of the plan into 24-bit base images of the same name and keeps what stood there. All of
/// that is kept before the first file is replaced, so a failure, which is raised, a cancel and a kill can be
/// undone like a whole import. Shows progress.
StockImportReport importStock(Session& session, const Job& job, const StockSource& source);
/// The same as a job of its own, with a message at the end; nothing after the message of a failure.
std::optional<StockImportReport> importStock(Session& session, const StockSource& source);

/// From the simulator's own folder. While a set of ours is installed the textures there are not the pilot's:
/// then the newest backup is offered instead, and without one there is nothing to take. Asks in any case,
/// unless the user has said already that it is wanted. Nothing when it was refused or failed.
std::optional<StockImportReport> importSimulatorStock(Session& session, bool isConfirmed = false);

/// Puts the base images of before the first import back, with a message at the end. The number of files, or
/// nothing after the message of a failure.
std::optional<int> restoreStock(Session& session);
/// There is something to put back.
bool hasKeptStock(Session& session);

} // namespace morvane
