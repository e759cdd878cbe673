#pragma once

#include "core/keyed_collection.h"

#include <QDateTime>

namespace morvane {

class Session;

/// One backup of the simulator's textures.
struct clsBackup {
    QString BackupName; ///< "Backup" before the first save, then "7-Backup"
    std::int16_t BackupID = 0;
    QDateTime BackupDateTime; ///< local time
    bool IsNew = false;
};

inline QString keyOf(const clsBackup& record) {
    return QString::number(record.BackupID);
}
inline const QString& nameOf(const clsBackup& record) {
    return record.BackupName;
}

/// The rows of `MV_BACKUP`. Its operations that reach the store give false after the message of a failure.
class clsBackups : public KeyedCollection<clsBackup> {
public:
    explicit clsBackups(Session& session) : session_(session) {}
    /// A fresh, loaded collection in the session's rows.
    static bool reload(Session& session);

    bool getBackups();
    bool UpdateBackups(clsBackup& record);

private:
    Session& session_;
};

/// Runs the statements; it fills the session's collection, whichever one asked.
class clsBackupData {
public:
    explicit clsBackupData(Session& session) : session_(session) {}

    bool getBackupData();
    /// A new record gets its key and its final name and joins the collection.
    bool Save(clsBackup& record);

private:
    Session& session_;
};

} // namespace morvane
