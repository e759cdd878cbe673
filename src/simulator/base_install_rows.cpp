#include "simulator/base_install_rows.h"

#include "core/statement_translation.h"

namespace morvane {

const StoredTable<clsConfig>& clsConfig::table() {
    static const StoredTable<clsConfig> table{.name = u"MV_CONFIG"_s,
                                              .rows = {u"SELECT * FROM MV_CONFIG WHERE TITLE = '"_s,
                                                       {}, // no new rows
                                                       {},
                                                       &clsConfig::ConfigID,
                                                       &clsConfig::ConfigName,
                                                       {{u"TITLE"_s, &clsConfig::ConfigName},
                                                        {u"MV_FOLDER"_s, &clsConfig::ConfigMVFolder},
                                                        {u"MV_IMAGE"_s, &clsConfig::ConfigImageName},
                                                        {u"FS_FOLDER"_s, &clsConfig::ConfigFSFolder},
                                                        {u"DESCRIPTION"_s, &clsConfig::ConfigDescription},
                                                        {u"INSTALLED"_s, &clsConfig::ConfigInstalled}}}};
    return table;
}

Reported writeConfig(Session& session, const clsConfig& record) {
    return reportFailures(session.user, morvaneError, [&] {
        const RecordTable<clsConfig>& rows = clsConfig::table().rows;
        RowSet row(connectedStore(session), rows.selectRow + makeStatementSafe(record.ConfigName) + u'\'');
        writeFields(row, rows.columns, session.DecimalSep, record);
        row.update();
    });
}

} // namespace morvane
