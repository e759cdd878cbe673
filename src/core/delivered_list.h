#pragma once

#include "core/file_system.h"

#include <QMap>
#include <QStringList>
#include <QVersionNumber>

namespace morvane {

/// Raise it whenever what the content tool makes changes: samples of another version are made anew, and a
/// pilot's install is brought up to date.
inline constexpr int contentVersion = 11;

/// What the content tool laid down in an install folder, in the file "content.version" there. Its first line
/// says by whom, "content 8 density 1 by 2.1.0"; behind it stands a line a file, check sum and path with a
/// tab between, and "failed 8 by 2.1.0" for each try of a newer one that did. A file that is not as the list
/// has it is the pilot's own. One path can have several sums: that of a new file is added before it replaces
/// the old one, so that a cut leaves none of ours unknown.
class DeliveredList {
public:
    DeliveredList(FileSystem& files, const FilePath& home);

    /// An older version of the program laid it down; never where none did.
    bool isOlder() const;
    /// And this version may still bring it up to date by itself: a list that is marked read-only is the
    /// pilot's, and what failed twice would fail at each start.
    bool awaitsUpdate() const;
    /// Counts a try of this version that failed.
    void noteFailure();
    /// Of the base images; 0 where no content tool has come to its end.
    int density() const { return density_; }
    bool has(const QString& path, const QString& sum) const;
    /// Adds the sum to those that the file of that path can have.
    void announce(const QString& path, const QString& sum);
    /// From now on it is the only one; `finish` stores it.
    void settle(const QString& path, const QString& sum);
    /// Writes the whole list under that heading.
    void finish(const QByteArray& heading);

private:
    struct Entry {
        QString path;
        QStringList sums;
    };

    FileSystem& files_;
    FilePath file_;
    int content_ = 0, density_ = 0;
    qsizetype failures_ = 0;       ///< of this version of the program
    QVersionNumber program_;       ///< none in an install of before this list
    QMap<QString, Entry> entries_; ///< by path without regard to case
};

/// The first line of a list that this version of the program writes.
QByteArray contentHeading(int density);

} // namespace morvane
