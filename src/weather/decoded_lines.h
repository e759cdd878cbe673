#pragma once

#include "weather/weather_report.h"

#include <QDate>
#include <array>

namespace morvane {

/// Heading, date, wind, visibility, precipitation, obscuration, sky, temperature, dewpoint, pressure and the
/// report itself.
inline constexpr std::size_t reportLineCount = 11;
using ReportLines = std::array<QString, reportLineCount>;

/// frm_metar: the lines of the decoded report.
struct DecodedReportLines {
    ReportLines decodedMetarLines;
};

/// `today` stands in for a month or a year that the report does not have.
ReportLines decodedMetarLines(const clsWxFinder& report, const QString& heading, const QDate& today);

} // namespace morvane
