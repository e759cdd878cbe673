#include "simulator/backups.h"

#include <QLocale>

namespace morvane {

const StoredTable<clsBackup>& clsBackup::table() {
    static const StoredTable<clsBackup> table{
        .name = u"MV_BACKUP"_s,
        .rows = {u"SELECT * FROM MV_BACKUP WHERE ID = "_s,
                 {u"select max(ID) as BUID from MV_BACKUP"_s, u"BUID"_s},
                 u"BACKUP_NAME"_s,
                 &clsBackup::BackupID,
                 &clsBackup::BackupName,
                 {{u"BACKUP_NAME"_s, &clsBackup::BackupName},
                  {u"BACKUP_DATE_TIME"_s, &clsBackup::BackupDateTime}}},
        .tellsLoadInSystemBox = true};
    return table;
}

QString dayText(const QDateTime& takenAt, const QString& format) {
    return takenAt.isValid() ? QLocale(QLocale::English).toString(takenAt, format) : u"unknown date"_s;
}

} // namespace morvane
