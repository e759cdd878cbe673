#include "simulator/base_install_rows.h"

#include "core/failure_report.h"
#include "core/statement_translation.h"
#include "core/store_records.h"

namespace morvane {

namespace {

const RecordTable<clsConfig> table = {
    u"SELECT * FROM MV_CONFIG WHERE TITLE = '"_s,
    {}, // no new rows
    {},
    &clsConfig::ConfigID,
    &clsConfig::ConfigName,
    {{u"TITLE"_s, &clsConfig::ConfigName},
     {u"MV_FOLDER"_s, &clsConfig::ConfigMVFolder},
     {u"MV_IMAGE"_s, &clsConfig::ConfigImageName},
     {u"FS_FOLDER"_s, &clsConfig::ConfigFSFolder},
     {u"DESCRIPTION"_s, &clsConfig::ConfigDescription},
     {u"INSTALLED"_s, &clsConfig::ConfigInstalled}},
};

} // namespace

bool clsConfigs::reload(Session& session) {
    return reloadCollection(session, session.rows<clsConfigs>(), &clsConfigs::getConfigs);
}

bool clsConfigs::getConfigs() {
    return clsConfigData(session_).getConfigData();
}

bool clsConfigs::UpdateConfig(const clsConfig& record) {
    return clsConfigData(session_).Save(record);
}

bool clsConfigData::getConfigData() {
    return reportFailures(session_.user, morvaneError, [&] {
        loadRecords(session_, u"SELECT * FROM MV_CONFIG"_s, table, required(session_.rows<clsConfigs>()));
    });
}

bool clsConfigData::Save(const clsConfig& record) {
    return reportFailures(session_.user, morvaneError, [&] {
        RowSet row(connectedStore(session_), table.selectRow + makeStatementSafe(record.ConfigName) + u'\'');
        writeFields(row, table.columns, session_.DecimalSep, record);
        row.update();
    });
}

} // namespace morvane
