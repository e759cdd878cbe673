#pragma once

#include "core/file_path.h"

namespace morvane {

/// One base file of a set: where it is, where its intermediate bitmap goes and where the finished file.
struct CatalogueFile {
    QString fileName;
    FilePath sourceFolder;
    FilePath targetFolder;
    FilePath tempFolder;
};

} // namespace morvane
