#pragma once

#include "sets/stored_rows.h"

#include <QDateTime>

namespace morvane {

/// One backup of the simulator's textures: a row of `MV_BACKUP`.
struct clsBackup {
    QString BackupName; ///< "Backup" before the first save, then "7-Backup"
    std::int16_t BackupID = 0;
    QDateTime BackupDateTime; ///< local time
    bool IsNew = false;

    static const StoredTable<clsBackup>& table();
};

/// When it was taken, for the user's eyes: "30 May 2007, 21:14"; "unknown date" where the row has none.
QString dayText(const QDateTime& takenAt, const QString& format = u"d MMM yyyy, HH:mm"_s);

using clsBackups = StoredRows<clsBackup>;

} // namespace morvane
