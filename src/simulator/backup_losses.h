#pragma once

#include "simulator/backup_list.h"
#include "simulator/checked_copies.h"

namespace morvane {

/// Looks for the files that would be lost with a backup. Nothing is changed.
class BackupLosses {
public:
    /// Raises when a list that is needed cannot be read.
    BackupLosses(Session& session, const QString& name);

    /// Their paths below the backup; a file that cannot be read, and one that no backup brings, counts as
    /// lost. Shows progress; nothing when it was cancelled.
    std::optional<QStringList> find(const Job& job);

private:
    struct OtherBackup {
        FilePath folder;
        BackupList list;
    };
    void addOthers();
    QStringList strangers() const;
    bool isElsewhere(const FileCopy& texture, const CheckedFile& file);
    bool isAmongOriginals(const OriginalRecord& record, const SeenFile& texture) const;
    bool isIn(const OtherBackup& other, const FilePath& place, const SeenFile& texture) const;

    Session& session_;
    QString name_;
    BackupList list_;
    Originals originals_;
    std::vector<OtherBackup> others_; ///< that are complete
};

} // namespace morvane
