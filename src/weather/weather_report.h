#pragma once

#include "core/numbers.h"

#include <QString>
#include <cstdint>

namespace morvane {

/// The decoded report of one station, as the decoder gives it, the table holds it and lists and screens read
/// it. What a report does not tell is empty, false or 0.
struct clsWxFinder {
    QString WxFinderCycle;         ///< hour of the cycle
    QString WxFinderMetar;         ///< the report as it came, up to its pressure (see trimMetarString)
    QString WxFinderIcao;          ///< first word of the line, unchanged
    QString WxFinderWindSpeed;     ///< digits: "015", "0" when calm
    QString WxFinderWindDirection; ///< "240 degrees", "Variable" or "Calm"
    bool WxFinderWindGusting = false;
    QString WxFinderWindGust; ///< digits as written
    bool WxFinderWindVarying = false;
    QString WxFinderWindVaryingFrom; ///< "200" of "200V260"
    QString WxFinderWindVaryingTo;
    QString WxFinderWindSpeedMeasurement; ///< "kts" or "mps"
    QString WxFinderCloudCover;           ///< heaviest layer and the cumulus marks
    std::int16_t WxFinderMaxCloud = 0;    ///< 0 none seen, 1 clear to 5 overcast, 6 sky obscured
    QString WxFinderVisibility;
    QString WxFinderVisibilityFormat; ///< "km" (metres), "mph" (miles: the misnomer is wanted) or "cavok"
    QString WxFinderWeatherStrength;  ///< "Light ", "Heavy " or "Moderate ", with the blank
    QString WxFinderWeather;
    QString WxFinderFog;         ///< any obscuration
    QString WxFinderTemperature; ///< "18" or "Minus 04"
    QString WxFinderDewpoint;
    QString WxFinderPressure; ///< "1012 Millibars" or "29.92 Inches of Mercury"
    QString WxFinderDate;     ///< day of month, two characters
    QString WxFinderMonth;    ///< English name; like year and cycle told by where the report is from
    QString WxFinderYear;
    QString WxFinderTime; ///< HHMM
};

/// Where a station is: signed decimal degrees with ".".
struct StationPlace {
    QString latitude = {}; ///< empty: not known
    QString longitude = {};
};

/// The key in the table is never read: there is one report a station.
inline QString keyOf(const clsWxFinder& record) {
    return trimmedBlanks(record.WxFinderIcao);
}
inline const QString& nameOf(const clsWxFinder& record) {
    return record.WxFinderIcao;
}

} // namespace morvane
