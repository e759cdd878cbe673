#pragma once

#include "core/session.h"
#include "ground/catalogue_table.h"
#include "sets/catalogue_file.h"

#include <QHash>
#include <array>
#include <vector>

namespace morvane {

/// What the catalogue walks. The numbers of the categories are 1 to 15, index 0 to 14; 15 is the upgrade's.
struct CatalogueFlags {
    bool popSpring = false, popSummer = false, popFall = false, popWinter = false;
    std::array<bool, 15> categories{};
};

/// Lists the base files of a ground set: no file name is kept anywhere, the folders decide what a set holds.
class TextureCatalogue {
public:
    explicit TextureCatalogue(Session& session) : session_(session) {}

    CatalogueFlags flags;

    /// With a count below 1 all four seasons, or the categories 1 to 14, are switched on first; the numbers
    /// have no other effect. `forSet` selects the set's folders as targets, else the simulator's. A pattern
    /// without a match, a missing folder and a missing resource row add nothing and are no failure.
    std::vector<CatalogueFile> popTextureList(int seasonCount, int categoryCount, bool forSet,
                                              const QString& setName);

private:
    struct Folders {
        FilePath source, target, temp;
    };
    struct Walk {
        QStringList patterns;
        bool firstFileOnly = false;
        bool extraWinter = false;
    };

    Folders foldersOf(const CatalogueCategory& category, bool forSet, const QString& setName);
    Folders ruralFoldersOf(const Folders& industrial, bool forSet, const QString& setName);
    void walkCategory(std::size_t number, bool forSet, const QString& setName);
    void walkIndustrialRuns(const Folders& industrial, bool forSet, const QString& setName);
    void walkSeasons(const Folders& folders, const Walk& walk);
    void walkSummerOnly(const Folders& folders, const Walk& walk);
    void listMatches(const Folders& folders, const QString& filePattern);

    Session& session_;
    std::vector<CatalogueFile> files_;
    int category_ = 0, season_ = 0;        ///< of the files that are listed now
    QHash<QString, QStringList> listings_; ///< of each folder, read once for its hundreds of patterns
};

} // namespace morvane
