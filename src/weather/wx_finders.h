#pragma once

#include "core/keyed_collection.h"

namespace morvane {

class Session;

/// The decoded report of one station. The texts are those that the decoder gives.
struct clsWxFinder {
    QString WxFinderCycle; ///< hour of the cycle
    QString WxFinderMetar; ///< the report as it came
    QString WxFinderIcao;
    QString WxFinderWindSpeed;
    QString WxFinderWindDirection;
    bool WxFinderWindGusting = false;
    QString WxFinderWindGust;
    bool WxFinderWindVarying = false;
    QString WxFinderWindVaryingFrom;
    QString WxFinderWindVaryingTo;
    QString WxFinderWindSpeedMeasurement;
    QString WxFinderCloudCover;
    std::int16_t WxFinderMaxCloud = 0;
    QString WxFinderVisibility;
    QString WxFinderVisibilityFormat;
    QString WxFinderWeatherStrength;
    QString WxFinderWeather;
    QString WxFinderFog;
    QString WxFinderTemperature;
    QString WxFinderDewpoint;
    QString WxFinderPressure;
    QString WxFinderDate;
    QString WxFinderMonth;
    QString WxFinderYear;
    QString WxFinderTime;
};

/// The key in the table is never read: there is one report a station.
inline QString keyOf(const clsWxFinder& record) {
    return trimmedBlanks(record.WxFinderIcao);
}
inline const QString& nameOf(const clsWxFinder& record) {
    return record.WxFinderIcao;
}

/// A row of `DECODED_METAR`: the report and the station's position, signed decimal degrees with ".".
struct DecodedMetarRow {
    clsWxFinder report;
    QString latitude;  ///< empty: what the row has stays
    QString longitude; ///< the same
};

/// The whole of `DECODED_METAR` in memory, in the order of the station codes.
class clsWxFinders : public KeyedCollection<clsWxFinder> {
public:
    explicit clsWxFinders(Session& session) : session_(session) {}
    /// A fresh, loaded collection in `gWxFinders`.
    static bool reload(Session& session);

    const KeyedCollection<clsWxFinder>& GetWxFinder() const { return *this; }
    std::int16_t findIndex(const QString& icao) const { return findName(icao); }
    /// False after the message of a failure; the collection then holds what was read so far.
    bool getMetarsFromDB();

private:
    Session& session_;
};

/// Runs the statements; it fills the session's collection, whichever one asked.
class clsWxFinderData {
public:
    explicit clsWxFinderData(Session& session) : session_(session) {}

    bool GetWeatherFromDb();
    /// Writes over the station's row or adds one; other stations keep theirs, however old. False after the
    /// message of a failure.
    bool insertDecodedMetar(const DecodedMetarRow& decoded);

private:
    Session& session_;
};

} // namespace morvane
