#pragma once

#include "core/file_system.h"

#include <QHash>
#include <cstdint>

namespace morvane {

/// Where a weather station is and what the World Meteorological Organization calls it.
struct Station {
    QString latitude; ///< signed decimal degrees, "."; empty when the list has none that can be read
    QString longitude;
    std::int32_t region = 0; ///< WMO region, 0 for none; the same with the two below
    std::int32_t block = 0;
    std::int32_t number = 0;
};

/// Stations by their four-letter code.
using StationList = QHash<QString, Station>;

/// The list in the form of data/stations/nsd_cccc.txt: fields separated by ";", the code first. Lines that
/// are too short are passed over.
StationList parseStationList(const QString& text);

/// Coordinates of a station list ("70-56N", "161-09-07W") as signed decimal degrees with ".", up to six
/// decimals; empty for anything else, impossible angles included.
QString decimalDegrees(const QString& coordinate);

} // namespace morvane
