#include "weather/awc_reports.h"

#include "core/error.h"
#include "core/reading_limits.h"
#include "weather/csv_line.h"

#include <QDateTime>
#include <QMap>
#include <algorithm>
#include <cmath>

namespace morvane {

namespace {

constexpr qsizetype longestDegrees = 20;
constexpr int mostLinesBefore = 100;

/// Where the columns stand; -1 for one that is missing.
struct Columns {
    std::ptrdiff_t report, station, time, latitude, longitude;
};

struct DatedReport {
    qint64 time;
    StationReport report;
};

Columns columnsOf(const std::vector<QStringView>& names) {
    const auto placeOf = [&](QStringView name) {
        const auto found =
            std::ranges::find_if(names, [&](QStringView each) { return csvText(each.trimmed()) == name; });
        return found == names.end() ? -1 : found - names.begin();
    };
    return {placeOf(u"raw_text"), placeOf(u"station_id"), placeOf(u"observation_time"), placeOf(u"latitude"),
            placeOf(u"longitude")};
}

/// Takes the first line off the text; an empty one from an empty text.
QStringView takeLine(QStringView& text) {
    const qsizetype end = text.indexOf(u'\n');
    const QStringView line = end < 0 ? text : text.left(end);
    text = end < 0 ? QStringView() : text.mid(end + 1);
    return line.trimmed();
}

/// The columns by the line of their names, which is taken off with all before it.
Columns takeColumns(QStringView& text) {
    for (int line = 0; line < mostLinesBefore && !text.isEmpty(); ++line)
        if (const Columns columns = columnsOf(csvFields(takeLine(text))); columns.report >= 0) return columns;
    throw Error::withDescription(ErrorCode::ioFailure, u"the file has no line of column names"_s);
}

QString fieldAt(const std::vector<QStringView>& fields, std::ptrdiff_t column) {
    if (column < 0 || column >= std::ssize(fields)) return {};
    return csvText(fields[static_cast<std::size_t>(column)].trimmed()).trimmed();
}

/// The service says what kind of report it is, and sometimes that it is a corrected one, before the station,
/// which is the first word of a report everywhere else.
QString reportText(QString text, const QString& station) {
    for (const QString& word : {u"METAR "_s, u"SPECI "_s, u"COR "_s})
        if (text.startsWith(word) && word.chopped(1) != station) text = text.mid(word.size()).trimmed();
    return text;
}

/// 0 for what is no time: then it is older than any other.
qint64 timeOf(const QString& text) {
    const QDateTime time = QDateTime::fromString(text, Qt::ISODateWithMs);
    return time.isValid() ? time.toMSecsSinceEpoch() : 0;
}

bool isWithin(const QString& degrees, double limit) {
    bool isNumber = false;
    const double number = degrees.toDouble(&isNumber);
    return isNumber && std::abs(number) <= limit && degrees.size() <= longestDegrees;
}

StationPlace placeOf(const QString& latitude, const QString& longitude) {
    return isWithin(latitude, 90) && isWithin(longitude, 180) ? StationPlace{latitude, longitude}
                                                              : StationPlace{};
}

void take(QStringView line, const Columns& columns, QMap<QString, DatedReport>& newest) {
    const std::vector<QStringView> fields = csvFields(line);
    const QString report = reportText(fieldAt(fields, columns.report), fieldAt(fields, columns.station));
    if (report.isEmpty() || report.size() > longestReport) return;
    DatedReport& kept = newest[report.section(u' ', 0, 0)];
    const qint64 time = timeOf(fieldAt(fields, columns.time));
    if (!kept.report.line.isEmpty() && time < kept.time) return;
    kept = {time, {report, placeOf(fieldAt(fields, columns.latitude), fieldAt(fields, columns.longitude))}};
}

} // namespace

std::vector<StationReport> awcReports(QStringView text) {
    const Columns columns = takeColumns(text);
    QMap<QString, DatedReport> newest;
    while (!text.isEmpty() && newest.size() <= mostReports)
        take(takeLine(text), columns, newest);
    if (newest.isEmpty()) throw Error::withDescription(ErrorCode::ioFailure, u"the file has no reports"_s);
    if (newest.size() > mostReports)
        throw Error::withDescription(ErrorCode::ioFailure,
                                     u"the file has more than %1 reports"_s.arg(mostReports));
    std::vector<StationReport> reports;
    reports.reserve(static_cast<std::size_t>(newest.size()));
    for (DatedReport& each : newest)
        reports.push_back(std::move(each.report));
    return reports;
}

} // namespace morvane
