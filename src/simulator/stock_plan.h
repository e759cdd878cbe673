#pragma once

#include "core/session.h"
#include "simulator/kept_stock.h"

#include <vector>

namespace morvane {

/// Where a pilot's own textures lie; a missing folder lists nothing.
struct StockSource {
    FilePath world; ///< the simulator's "Scenery\World\Texture", or a copy of it
    FilePath addOn; ///< its "Scenery\UTEurLC\Texture", alike
};

/// One kind of files that an import brings.
struct StockCategory {
    QString name;              ///< a catalogue category as "1 GENERIC WORLD", or the kind's folder
    int count = 0;             ///< of files that were brought
    QStringList emptyPatterns; ///< those of its name patterns that no file has, such as "007*2"
};

/// One file and its place. A texture can have two: the Dutch classes are generic ones, too.
struct StockFile {
    FilePath source;
    InstallFile target;
    std::size_t category; ///< index of it
    bool isPicture;       ///< to be decoded; annotation files are copied as they are
};

struct StockPlan {
    std::vector<StockCategory> categories;
    std::vector<StockFile> files;
};

/// What an import of that source would bring: by day what the catalogue's patterns take, by night names of
/// three digits, a letter, "2lm" and the rest, and the annotation files beside them. Files that the install
/// has already keep their spelling.
StockPlan planStockImport(Session& session, const StockSource& source);

} // namespace morvane
