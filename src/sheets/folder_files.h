#pragma once

#include "core/file_system.h"

#include <QHash>

namespace morvane {

/// The bitmaps of folders by their names without regard to case. Each folder is listed once.
class FolderFiles {
public:
    explicit FolderFiles(FileSystem& files) : files_(files) {}

    /// The file of that name, spelt as on the disk; null where the folder has none. Stands until the next
    /// call.
    const FilePath* find(const FilePath& folder, const QString& name);

private:
    using Names = QHash<QString, FilePath>;

    FileSystem& files_;
    QHash<QString, Names> folders_; ///< by their text
};

} // namespace morvane
