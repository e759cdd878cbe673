#pragma once

#include "weather/weather_report.h"

#include <QDate>
#include <QStringList>

namespace morvane {

/// frm_metar: the lines of the decoded report, in order.
struct DecodedReportLines {
    QStringList decodedMetarLines;
};

/// The decoded report, line by line: heading, date, wind, visibility,
/// precipitation, obscuration, sky, temperature, dewpoint, pressure, the report itself. `today` stands in for
/// a month or a year that the report does not have.
QStringList decodedMetarLines(const clsWxFinder& report, const QString& heading, const QDate& today);

} // namespace morvane
