#include "simulator/configs.h"

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

const QString switchRow = u"SELECT * FROM TEXTURE_SWITCH WHERE ID = 1"_s;

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

bool clsConfigs::UpdateDutch(bool value) {
    return clsConfigData(session_).UpdateDutchConfig(value);
}

bool clsConfigs::GetDutchVal() {
    return clsConfigData(session_).GetDutchVal();
}

bool clsConfigs::UpdateTropical(bool value) {
    return clsConfigData(session_).UpdateTropicalConfig(value);
}

bool clsConfigs::GetTropicalVal() {
    return clsConfigData(session_).GetTropicalVal();
}

bool clsConfigs::UpdateHalo(bool value) {
    return clsConfigData(session_).UpdateHaloConfig(value);
}

bool clsConfigs::GetHaloVal() {
    return clsConfigData(session_).GetHaloVal();
}

bool clsConfigs::UpdateFastExit(bool value) {
    return clsConfigData(session_).UpdateFastExitConfig(value);
}

bool clsConfigs::GetFastExitVal() {
    return clsConfigData(session_).GetFastExitVal();
}

bool clsConfigData::getConfigData() {
    return reportFailures(session_.user, {}, [&] {
        loadRecords(session_, u"SELECT * FROM MV_CONFIG"_s, table, required(session_.rows<clsConfigs>()));
    });
}

bool clsConfigData::Save(const clsConfig& record) {
    return reportFailures(session_.user, {}, [&] {
        RowSet row(connectedStore(session_), table.selectRow + makeStatementSafe(record.ConfigName) + u'\'');
        writeFields(row, table.columns, session_.DecimalSep, record);
        row.update();
    });
}

bool clsConfigData::readSwitch(const QString& column) {
    bool value = false;
    reportFailures(session_.user, {},
                   [&] { value = RowSet(connectedStore(session_), switchRow).flag(column); });
    return value;
}

bool clsConfigData::writeSwitch(const QString& column, bool value) {
    return reportFailures(session_.user, {}, [&] {
        RowSet row(connectedStore(session_), switchRow);
        row.setFlag(column, value);
        row.update();
    });
}

bool clsConfigData::UpdateDutchConfig(bool value) {
    return writeSwitch(u"ISDUTCH"_s, value);
}

bool clsConfigData::GetDutchVal() {
    return readSwitch(u"ISDUTCH"_s);
}

bool clsConfigData::UpdateTropicalConfig(bool value) {
    return writeSwitch(u"ISTROPICAL"_s, value);
}

bool clsConfigData::GetTropicalVal() {
    return readSwitch(u"ISTROPICAL"_s);
}

bool clsConfigData::UpdateHaloConfig(bool value) {
    return writeSwitch(u"ISHALO"_s, value);
}

bool clsConfigData::GetHaloVal() {
    return readSwitch(u"ISHALO"_s);
}

bool clsConfigData::UpdateFastExitConfig(bool value) {
    return writeSwitch(u"ISFASTEXIT"_s, value);
}

bool clsConfigData::GetFastExitVal() {
    return readSwitch(u"ISFASTEXIT"_s);
}

} // namespace morvane
