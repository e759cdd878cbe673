#pragma once

#include "core/job.h"
#include "simulator/stock_plan.h"

namespace morvane {

/// A pilot's own textures as base images: what sets are made of from then on. Sets that exist keep their
/// files until they are activated anew.

/// Over all that is said of it.
inline const QString stockTitle = u"Use My Simulator's Textures"_s;

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
/// whole import. One that would not fit on the disk is not begun. Raises when it cannot be noted: nothing is
/// replaced then. Shows progress.
StockImportReport importStock(Session& session, const Job& job, const StockSource& source);

} // namespace morvane
