#include "simulator/backups.h"

#include "core/failure_report.h"
#include "core/store_records.h"

namespace morvane {

namespace {

const RecordTable<clsBackup> table = {
    u"SELECT * FROM MV_BACKUP WHERE ID = "_s,
    {u"select max(ID) as BUID from MV_BACKUP"_s, u"BUID"_s},
    u"BACKUP_NAME"_s,
    &clsBackup::BackupID,
    &clsBackup::BackupName,
    {{u"BACKUP_NAME"_s, &clsBackup::BackupName}, {u"BACKUP_DATE_TIME"_s, &clsBackup::BackupDateTime}},
};

} // namespace

bool clsBackups::reload(Session& session) {
    return reloadCollection(session, session.rows<clsBackups>(), &clsBackups::getBackups);
}

bool clsBackups::getBackups() {
    return clsBackupData(session_).getBackupData();
}

bool clsBackups::UpdateBackups(clsBackup& record) {
    return clsBackupData(session_).Save(record);
}

bool clsBackupData::getBackupData() {
    return reportInSystemBox(session_.user, [&] {
        loadRecords(session_, u"SELECT * FROM MV_BACKUP"_s, table, required(session_.rows<clsBackups>()));
    });
}

bool clsBackupData::Save(clsBackup& record) {
    return reportFailures(session_.user, morvaneError, [&] {
        saveRecord(session_, table, record, required(session_.rows<clsBackups>()));
    });
}

} // namespace morvane
