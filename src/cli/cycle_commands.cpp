#include "cli/cycle_commands.h"

#include "cli/command_helpers.h"
#include "cli/json_output.h"
#include "core/row_set.h"
#include "core/store.h"
#include "weather/wx_finders.h"

namespace morvane {

namespace {

QJsonValue fieldOf(const RowSet& row, const QString& column) {
    static const QStringList flags{u"METAR_WIND_GUSTING"_s, u"METAR_WIND_VARYING"_s};
    static const QStringList numbers{u"ID"_s, u"METAR_MAX_CLOUD"_s};
    if (row.isNull(column)) return {};
    if (flags.contains(column)) return row.flag(column);
    if (numbers.contains(column)) return row.longInteger(column);
    return row.text(column);
}

} // namespace

bool metarImport(CommandContext& context) {
    const FilePath file = pathOfArgument(context.arguments[0]);
    const QString form = context.arguments.value(1, u"plain"_s);
    clsWxFinderData data(context.session);
    if (form == u"asv6")
        data.importExportFile(file);
    else if (form == u"plain" || form == u"noaa")
        data.importCycleFile(file, form == u"noaa" ? CycleForm::noaa : CycleForm::plain);
    else
        return false;
    return true;
}

bool metarDownload(CommandContext& context) {
    clsWxFinderData(context.session).GetWeatherFromNOAA();
    return true;
}

bool metarRows(CommandContext& context) {
    const QStringList columns = context.session.adoConn->columns(u"DECODED_METAR"_s);
    for (RowSet rows = clsWxFinderData(context.session).getDecodedMetar({}); !rows.atEnd(); rows.next()) {
        QJsonObject row;
        for (const QString& column : columns)
            row.insert(column, fieldOf(rows, column));
        printJson(QJsonDocument(row));
    }
    return true;
}

} // namespace morvane
