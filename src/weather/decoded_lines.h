#pragma once

#include "core/row_set.h"

#include <QDate>
#include <QStringList>

namespace morvane {

/// frm_metar: the lines of the decoded report, in order.
struct DecodedReportLines {
    QStringList decodedMetarLines;
};

/// The decoded report of the row of `DECODED_METAR` at hand, line by line: heading, date, wind, visibility,
/// precipitation, obscuration, sky, temperature, dewpoint, pressure, the report itself. `today` stands in for
/// a month or a year that the row does not have.
QStringList decodedMetarLines(const RowSet& row, const QString& heading, const QString& report,
                              const QDate& today);

} // namespace morvane
