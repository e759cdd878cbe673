#pragma once

#include "core/disk_spelling.h"

#include <QSet>
#include <vector>

namespace morvane {

/// A list of files below one root in the spelling of the disk. It is made on one thread and asked by any.
class SpelledFiles {
public:
    SpelledFiles(FileSystem& files, const FilePath& root) : root_(root), spelling_(files, root) {}

    /// `folder` is joined behind the root.
    void add(const FilePath& folder, const QString& name);
    FilePath operator[](std::size_t index) const;
    /// The list has the same file further ahead.
    bool isRepeated(std::size_t index) const { return files_[index].isRepeated; }

private:
    /// No whole path: a set has thousands of files.
    struct File {
        std::size_t folder;
        QString name;
        bool isRepeated;
    };
    std::size_t indexOf(const FilePath& folder);

    FilePath root_;
    DiskSpelling spelling_;
    std::vector<FilePath> folders_;
    QHash<QString, std::size_t> indices_; ///< of the folders, by their text
    QSet<std::pair<std::size_t, QString>> seen_;
    std::vector<File> files_;
};

} // namespace morvane
