#include "weather/cycle_lines.h"

#include "core/literals.h"
#include "core/numbers.h"

#include <QMap>

namespace morvane {

namespace {

struct DatedReport {
    QString date, line;
};

/// "2011/11/23 01:53": such texts sort as their dates do.
bool isDateLine(QStringView line) {
    return line.size() == 16 && line[4] == u'/' && line[7] == u'/' && line[10] == u' ' && line[13] == u':' &&
           isDigits(line.left(4)) && isDigits(line.mid(5, 2)) && isDigits(line.mid(8, 2)) &&
           isDigits(line.mid(11, 2)) && isDigits(line.mid(14));
}

QString stationOf(const QString& line) {
    const qsizetype end = line.indexOf(u' ');
    return end < 0 ? line : line.left(end);
}

} // namespace

QStringList newestReports(const QStringList& lines) {
    QMap<QString, DatedReport> newest;
    QString date;
    for (const QString& line : lines) {
        if (isDateLine(line)) {
            date = line;
        } else if (const QString station = stationOf(line); !station.isEmpty()) {
            DatedReport& kept = newest[station];
            if (kept.date <= date) kept = {date, line};
        }
    }
    QStringList reports;
    reports.reserve(newest.size() + 1);
    for (const DatedReport& report : newest)
        reports << report.line;
    return reports << QString();
}

} // namespace morvane
