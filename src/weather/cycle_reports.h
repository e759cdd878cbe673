#pragma once

#include "weather/awc_reports.h"
#include "weather/cycle_lines.h"

namespace morvane {

/// The reports of a cycle file of that form as it came, packed or not. Raises as cycleContents and awcReports
/// do.
std::vector<StationReport> cycleReports(const QByteArray& file, CycleForm form);
/// The lines of an export file of Active Sky's, packed or not. Raises as cycleContents does.
std::vector<StationReport> exportReports(const QByteArray& file);

} // namespace morvane
