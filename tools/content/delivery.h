#pragma once

#include "core/delivered_list.h"
#include "simulator/kept_stock.h"

#include <functional>

namespace morvane {

/// Takes a finished file of the content and its place in the install folder.
using PutFile = std::function<void(const FilePath& file, const QByteArray& contents)>;

/// Check sums of files that were delivered before there was a list, wherever they lay.
using EarlierSums = QSet<QString>;

/// What is drawn gets into an install folder by this, a new one or one that a pilot has long worked with.
/// There a file is replaced only where it is one that was delivered before. A delivered file that an import
/// of the pilot's own textures keeps is replaced where it is kept.
class Delivery {
public:
    Delivery(FileSystem& files, const FilePath& home, const EarlierSums& earlier = {});

    /// Each file is the old or the new one as a whole at every moment.
    void put(const FilePath& file, const QByteArray& contents);
    /// Files that were put: those that were the same already, and the pilot's, do not count.
    int count() const { return count_; }
    /// All files were put.
    void finish(int density) { list_.finish(contentHeading(density)); }

private:
    bool isOurs(const FilePath& place, const QString& path, const QByteArray& contents);

    FileSystem& files_;
    FilePath home_;
    DeliveredList list_;
    KeptStock kept_;
    EarlierSums earlier_;
    int count_ = 0;
};

} // namespace morvane
