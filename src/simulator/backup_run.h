#pragma once

#include "sets/originals.h"
#include "simulator/backup_list.h"
#include "simulator/checked_copies.h"

#include <QDateTime>

namespace morvane {

/// How a backup came out.
struct BackupReport {
    QString name;
    QDateTime takenAt;
    int files = 0; ///< that should be in it
    int saved = 0; ///< that are
    bool isCancelled = false;
    bool isWritten = false; ///< all that can be read is in it, and its list says so

    bool isComplete() const { return isWritten && saved == files; }
};

/// One run of the copies into the folders of a backup, which stand. A file that fails costs no other. What a
/// run that did not come to its end has brought stays, and another run goes on with it.
class BackupRun {
public:
    /// The first run takes the pilot's kept original where one of ours may stand.
    BackupRun(Session& session, const Job& job, const QString& name, bool isFirstRun);

    /// Raises when the folders cannot be listed or a list that the first run needs cannot be had.
    BackupReport run();

private:
    void planAll();
    void plan(const BackupPlace& place);
    void plan(const FilePath& own, const FilePath& copy);
    void miss(const BackupPlace& place, const QString& name);
    bool copyAll(CopyWalk& walk);
    void copy(const FileCopy& copy);
    bool checkAll(CopyWalk& walk);
    bool writeList();
    void writeDurableList();

    Session& session_;
    const Job& job_;
    const QString name_;
    const bool isFirstRun_;
    std::optional<Originals> originals_; ///< none where its list cannot be read
    std::vector<FileCopy> copies_;
    std::vector<FilePath> standing_; ///< copies that were read again and are whole
    BackupList list_;
    int missing_ = 0;   ///< that no copy could be tried of, or that cannot be read
    int unwritten_ = 0; ///< that can be read and did not get there
    int saved_ = 0;
};

} // namespace morvane
