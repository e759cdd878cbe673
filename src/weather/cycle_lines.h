#pragma once

#include <QStringList>

namespace morvane {

/// How the lines of a cycle file are to be taken.
enum class CycleForm {
    plain, ///< every line is handed on as it comes
    noaa,  ///< the public service's records: a date line, the report, an empty line
    awc,   ///< the Aviation Weather Center's list: a table with column names (see awc_reports.h)
};

/// The reports of such records: of each station the newest one by its date line, the later line of two with
/// one date. In the order of the stations, with an empty element behind the last, as every file that ends in
/// a line end has. Lines without a date line before them count as older than any other.
QStringList newestReports(const QStringList& lines);

} // namespace morvane
