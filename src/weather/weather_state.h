#pragma once

#include "core/file_path.h"
#include "core/literals.h"
#include "core/user_interface.h"

#include <QDateTime>
#include <cstdint>
#include <optional>

namespace morvane {

/// The weather cycle in use, the directory of airports and the two ends of the flight.
struct WeatherState {
    /// Date and hour of the cycle; a day of 0 means that none is known.
    std::int16_t MetarCycleDay = 0, MetarCycleMonth = 0, MetarCycleYear = 0, MetarCycleHour = 0;
    bool MetarDataLoaded = false;  ///< the table of decoded reports holds rows
    bool FlyNowDisabled = false;   ///< a refresh left not one report
    bool NoSourceAnswered = false; ///< at the last refresh

    FilePath ASv6Path;
    bool ASv6Present = false, ASv6VersionOK = false;
    bool ASv6Local = false; ///< runs on this computer
    bool ASv6Busy = false;  ///< being waited for: keeps the progress message up
    QDateTime ASv6ExportDate;
    bool ASv6Imported = false; ///< ASv6ExportDate is that of reports taken in this run
    /// What keeps the Active Sky that is set from being used; told only to those who use it.
    std::optional<Message> ASv6Problem;

    QString AirportQuery = u"SELECT * FROM AIRPORTDATA"_s;
    QString AirportQueryWhere, AirportQueryOrder; ///< behind it
    bool InhibitWeatherReports = true;
    bool optDepAirport = true, optDestAirport = false; ///< which end a choice of an airport sets
    QString DepAirportName, DepIcao, DepCity, DepMetar;
    QString DestAirportName, DestIcao, DestCity, DestMetar;
    QString MetarStringInput; ///< a report typed in, trimmed
};

} // namespace morvane
