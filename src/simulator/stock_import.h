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
    int planned = 0;        ///< files that the source has, of all categories
    int files = 0;          ///< of them brought
    QStringList unreadable; ///< names of source files that cannot be opened or hold no texture
    bool isCancelled = false;
    QString failure; ///< what ended it before its time; empty when nothing did
};

/// Decodes every file of the plan into 24-bit base images of the same name and keeps what stood there. What
/// it will replace is noted before the first file is, so a failure, a cancel and a kill can be undone like a
/// whole import. Raises when it cannot be noted: nothing is replaced then. Shows progress.
StockImportReport importStock(Session& session, const Job& job, const StockSource& source);
/// The same as a job of its own, which says at the end what came of it; nothing when it could not begin.
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
