#pragma once

#include "core/file_system.h"
#include "core/folder_names.h"

#include <QHash>
#include <map>

namespace morvane {

/// The spellings that files below a folder have on the disk. Each folder is listed once, so a thousand files
/// cost one look, and the spelling is the true one also on a drive that takes any, where FilePath has no need
/// to look.
class DiskSpelling {
public:
    DiskSpelling(FileSystem& files, const FilePath& root) : files_(files), root_(root.native()) {}
    DiskSpelling(DiskSpelling&&) = default; ///< a copy's folders would be this one's

    /// The file of that path below the root, names joined by "\": the exact spelling where the folder has it,
    /// else another one, else as given; a name not found is taken as the file's spelling from then on. Both
    /// `relative()` and `native()` of the result are as on the disk.
    FilePath find(const QString& path);
    /// The same for a file that is meant in that spelling: another one is taken only where the drive makes no
    /// difference between the two.
    FilePath findExactly(const QString& path);
    /// The folder of that path, alike.
    FilePath findFolder(const QString& path);
    /// The files with such an ending that the folder of that path had when it was listed.
    std::vector<FilePath> filesEndingWith(const QString& path, QStringView ending);

private:
    struct Folder {
        FilePath path;
        FolderNames names;
    };
    Folder& folder(QStringView asked);
    Folder list(const FilePath& folder);
    FilePath spelled(const QString& path, bool isExact);

    FileSystem& files_;
    FilePath root_;
    std::map<QString, Folder> folders_;      ///< by their own spelling
    QHash<QString, Folder*> spelledFolders_; ///< by the one that was asked for
    QString lastPath_;                       ///< asked for last, as thousands of files lie in one folder
    Folder* last_ = nullptr;
};

} // namespace morvane
