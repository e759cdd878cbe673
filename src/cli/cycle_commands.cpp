#include "cli/command_helpers.h"
#include "cli/command_tables.h"
#include "cli/json_output.h"
#include "cli/terminal.h"
#include "core/bounded_reading.h"
#include "core/error.h"
#include "core/reading_limits.h"
#include "core/row_set.h"
#include "core/store.h"
#include "core/store_schema.h"
#include "core/text_decoding.h"
#include "weather/metar_decoder.h"
#include "weather/report_age.h"
#include "weather/reports.h"
#include "weather/weather_download.h"

#include <QFile>
#include <QJsonArray>
#include <algorithm>

namespace morvane {

namespace {

void decode(CommandContext& context) {
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) throw Error(ErrorCode::ioFailure);
    const QByteArray text = readUpTo(input, largestCycle + 1);
    if (text.size() > largestCycle)
        throw Error::withDescription(ErrorCode::ioFailure,
                                     u"The input is "_s + tooLargeText(u"a cycle"_s, largestCycle));
    requireBoundedLines(text);
    QStringList lines = splitLines(decodeText(text));
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
        data.importCycleFile(file, form == u"noaa"  ? CycleForm::noaa
                                   : form == u"awc" ? CycleForm::awc
                                                    : CycleForm::plain);
}

QJsonValue timeValue(const QDateTime& time) {
    return time.isValid() ? QJsonValue(time.toUTC().toString(Qt::ISODate)) : QJsonValue();
}

/// What is stored: how much, how old, from where.
QJsonObject storedObject(const Session& session) {
    const auto note = storedNote(session);
    const auto [count, youngest] = storedReports(session);
    const auto age = youngestReportAge(session);
    return {{u"reports"_s, count},
            {u"youngest"_s, timeValue(youngest)},
            {u"ageMinutes"_s, age ? QJsonValue(*age) : QJsonValue()},
            {u"source"_s, note ? QJsonValue(note->text) : QJsonValue()},
            {u"address"_s,
             note && !note->file.isEmpty() ? QJsonValue(note->file.toDisplayString()) : QJsonValue()}};
}

QString endWord(WeatherArrival::End end) {
    switch (end) {
    case WeatherArrival::End::delivered:
        return u"delivered"_s;
    case WeatherArrival::End::unchanged:
        return u"unchanged"_s;
    case WeatherArrival::End::cancelled:
        return u"cancelled"_s;
    case WeatherArrival::End::failed:
        break;
    }
    return u"failed"_s;
}

/// A source that was passed over is told on stderr, too; of a failed download the message tells all of them.
void download(CommandContext& context) {
    clsWxFinderData(context.session).GetWeatherFromNOAA();
    const WeatherArrival& arrival = context.session.state<WeatherArrival>();
    QJsonArray asked;
    for (const SourceLine& line : arrival.lines)
        asked << QJsonObject{{u"name"_s, line.name}, {u"said"_s, line.text}};
    const bool isOver =
        arrival.end == WeatherArrival::End::delivered || arrival.end == WeatherArrival::End::unchanged;
    for (std::size_t i = 0; isOver && i + 1 < arrival.lines.size(); ++i)
        writeStandardError(arrival.lines[i].name + u": "_s + arrival.lines[i].text + u'\n');
    if (!context.options.contains(jsonOption.name)) return;
    QJsonObject told = storedObject(context.session);
    told.insert(u"end"_s, endWord(arrival.end));
    told.insert(u"asked"_s, asked);
    printJson(QJsonDocument(told));
}

void printSources(CommandContext& context) {
    const Session& session = context.session;
    QJsonArray sources;
    for (const WeatherSource& source : weatherSources(session.registry)) {
        const SourceNote note = noteOf(session, source.address);
        sources << QJsonObject{{u"name"_s, source.name},
                               {u"address"_s, source.address.toDisplayString()},
                               {u"own"_s, source.isOwn},
                               {u"asked"_s, timeValue(note.asked)},
                               {u"state"_s, stateText(source, note, session.clock.utcTime())}};
    }
    QJsonObject told = storedObject(session);
    told.insert(u"sources"_s, sources);
    printJson(QJsonDocument(told));
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
                       .meaning = u"its form: plain (when nothing is said), noaa and awc as a server's, asv6 "
                                  "as an export of Active Sky's"_s,
                       .entries = {u"plain"_s, u"noaa"_s, u"awc"_s, u"asv6"_s},
                       .isOptional = true};
    return {
        {.words = u"decode"_s,
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
         .options = {{u"--json"_s, u"prints one JSON object: source, age, and what each source said"_s}},
         .writes = true,
         .run = download,
         .meaning = u"fetches the newest reports of the first source that delivers and stores them"_s,
         .example = u"metar download --json"_s},
        {.words = u"metar sources"_s,
         .run = printSources,
         .meaning = u"the sources in their order, with the state of each, and the age of what is stored"_s,
         .example = u"metar sources"_s},
        {.words = u"metar rows"_s,
         .run = printRows,
         .meaning = u"every stored report, one JSON object a line"_s,
         .example = u"metar rows"_s}};
}

} // namespace morvane
