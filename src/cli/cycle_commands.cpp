#include "cli/command_helpers.h"
#include "cli/command_tables.h"
#include "cli/json_output.h"
#include "core/error.h"
#include "core/row_set.h"
#include "core/store.h"
#include "core/store_schema.h"
#include "core/text_decoding.h"
#include "weather/metar_decoder.h"
#include "weather/reports.h"

#include <QFile>
#include <algorithm>

namespace morvane {

namespace {

void decode(CommandContext& context) {
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) throw Error(ErrorCode::ioFailure);
    QStringList lines = splitLines(decodeText(input.readAll()));
    if (!lines.isEmpty() && lines.last().isEmpty()) lines.removeLast();
    for (const QString& line : lines) {
        printJson(QJsonDocument(toJson(clsDecodeMetar(context.user).decodeMetarString(line))));
    }
}

/// The key is none of the schema's columns.
ColumnKind kindOf(const QString& column) {
    const auto& columns = schemaTable(u"DECODED_METAR"_s).columns;
    const auto found = std::ranges::find(columns, column, &SchemaColumn::name);
    return found == columns.end() ? ColumnKind::number : found->kind;
}

QJsonValue fieldOf(const RowSet& row, const QString& column) {
    if (row.isNull(column)) return {};
    switch (kindOf(column)) {
    case ColumnKind::flag:
        return row.flag(column);
    case ColumnKind::number:
        return row.longInteger(column);
    case ColumnKind::text:
        break;
    }
    return row.text(column);
}

void import(CommandContext& context) {
    const FilePath file = pathOfArgument(context.arguments[0]);
    const QString form = context.arguments.value(1);
    clsWxFinderData data(context.session);
    if (form == u"asv6")
        data.importExportFile(file);
    else
        data.importCycleFile(file, form == u"noaa" ? CycleForm::noaa : CycleForm::plain);
}

void download(CommandContext& context) {
    clsWxFinderData(context.session).GetWeatherFromNOAA();
}

void printRows(CommandContext& context) {
    Store& store = *context.session.adoConn;
    const QStringList columns = store.columns(u"DECODED_METAR"_s);
    for (RowSet rows(store, u"SELECT * FROM DECODED_METAR"_s); !rows.atEnd(); rows.next()) {
        QJsonObject row;
        for (const QString& column : columns)
            row.insert(column, fieldOf(rows, column));
        printJson(QJsonDocument(row));
    }
}

} // namespace

std::vector<Command> cycleCommands() {
    const Operand form{.name = u"FORM"_s,
                       .meaning =
                           u"its form: plain (when nothing is said) and noaa as a server's cycle, asv6 "
                           "as an export of Active Sky's"_s,
                       .entries = {u"plain"_s, u"noaa"_s, u"asv6"_s},
                       .isOptional = true};
    return {{.words = u"decode"_s,
             .needs = Needs::nothing,
             .run = decode,
             .meaning = u"decodes METAR lines on stdin, one JSON object a line"_s,
             .example = u"decode < reports.txt"_s},
            {.words = u"metar import"_s,
             .operands = {{u"FILE"_s, u"the file of reports"_s}, form},
             .writes = true,
             .run = import,
             .meaning = u"stores the reports of a file"_s,
             .example = u"metar import 02Z.TXT noaa"_s},
            {.words = u"metar download"_s,
             .writes = true,
             .run = download,
             .meaning = u"fetches the last hour's cycle and stores it"_s,
             .example = u"metar download"_s},
            {.words = u"metar rows"_s,
             .run = printRows,
             .meaning = u"every stored report, one JSON object a line"_s,
             .example = u"metar rows"_s}};
}

} // namespace morvane
