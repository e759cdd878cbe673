#pragma once

#include "sets/originals.h"
#include "simulator/backup_list.h"

#include <QDateTime>
#include <QString>
#include <optional>
#include <vector>

namespace morvane {

/// frm_BackupList: the backups offered, the name of the row clicked last, and whether OK was pressed.
struct BackupChoice {
    struct Backup {
        QString name;
        QDateTime takenAt;
        bool isComplete;
    };
    std::vector<Backup> backups;
    QString chosenBackup;
    bool backupConfirmed = false;
};

/// Appends the textures that a backup has of that place, each with the file of the simulator that it goes
/// over, however that is spelt. Where the backup has two that differ in nothing but case, each stands for
/// itself.
void addTextures(Session& session, const BackupPlace& place, std::vector<FileCopy>& copies);

/// What became of the files of a backup.
struct RestoreReport {
    int putBack = 0;
    int standing = 0; ///< were there already
    int readOnly = 0; ///< targets that may not be written to
    int damaged = 0;  ///< no longer what was backed up
    int failed = 0;   ///< cannot be read or replaced
};

/// Copies the files of that backup back into the simulator, each safely as every copy of ours; the rows of
/// installed sets stay as they are. No file is told of by itself. Nothing after the message of a failure.
std::optional<RestoreReport> restoreBackup(Session& session, const QString& name);
/// Offers the backups (frm_BackupList) and restores the chosen one; nothing without any.
void restoreBackupOnRequest(Session& session);

} // namespace morvane
