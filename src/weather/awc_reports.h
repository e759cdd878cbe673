#pragma once

#include "weather/weather_report.h"

#include <vector>

namespace morvane {

/// A report as it came, and where its station is, where its source says so.
struct StationReport {
    QString line;
    StationPlace place = {};
};

/// The reports of the Aviation Weather Center's list: perhaps some lines about its making, a line of column
/// names, a line a report. The report stands in "raw_text", without the word METAR or SPECI that may be
/// before its station; of each station the newest counts, by "observation_time", the later line of two with
/// one time. Columns are found by name, wherever they stand; all but "raw_text" may be missing. In the order
/// of the stations. Raises where there is no line of column names, not one report behind it, or more than
/// 100,000.
std::vector<StationReport> awcReports(QStringView text);

} // namespace morvane
