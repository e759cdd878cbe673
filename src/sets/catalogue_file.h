#pragma once

#include "core/file_path.h"

namespace morvane {

/// One base file of a set: where it is, where its intermediate bitmap goes and where the finished file.
struct CatalogueFile {
    QString fileName;
    FilePath sourceFolder;
    FilePath targetFolder;
    FilePath tempFolder;
    int category = 0; ///< of the ground's catalogue, 1 to 15; 0 for the night's files, which are in none
    int season = 0;   ///< 0 to 3, spring first; of the ground's files
};

} // namespace morvane
