#pragma once

#include "core/keyed_collection.h"
#include "weather/cycle_lines.h"

#include <QDate>

namespace morvane {

class FilePath;
class RowSet;
class Session;
struct WeatherEndpoint;

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
    QString latitude = {};  ///< empty: what the row has stays; a new row takes its airport's
    QString longitude = {}; ///< the same
};

/// The whole of `DECODED_METAR` in memory, in the order of the station codes.
class clsWxFinders : public KeyedCollection<clsWxFinder> {
public:
    explicit clsWxFinders(Session& session) : session_(session) {}
    /// A fresh, loaded collection in the session's rows.
    static bool reload(Session& session);

    const KeyedCollection<clsWxFinder>& GetWxFinder() const { return *this; }
    std::int16_t findIndex(const QString& icao) const { return findName(icao); }
    /// False after the message of a failure; the collection then holds what was read so far.
    bool getMetarsFromDB();
    // These two put a fresh collection into the session's rows: the one that was asked may be gone
    // afterwards. False after a cancel or the message of a failure. For `picture` see Message.
    bool getMetarsFromNOAA(const QString& picture = {});
    bool getMetarsFromASv6(const QString& picture = {});

private:
    Session& session_;
};

/// Date and hour of a cycle, and the year that its rows get.
struct CycleMoment {
    QDate day;
    std::int16_t hour;
    QString year;
};

/// Runs the statements and the loads; it fills the session's collection, whichever one asked.
class clsWxFinderData {
public:
    explicit clsWxFinderData(Session& session, const QString& picture = {})
        : session_(session), picture_(picture) {}

    /// Adds every row of the table to the collection; a session that knows no cycle yet takes its fields from
    /// the row of KSEA.
    bool GetWeatherFromDb();
    // A load ends with the line that tells number and age of the reports. One that fails leaves the
    // collection in memory as it was; a store that another program writes is waited for, two seconds.
    /// Fetches the last hour's cycle file into "\\METAR", stores its reports and reloads the collection.
    bool GetWeatherFromNOAA();
    /// Stores the reports of Active Sky's export file and reloads the collection.
    bool GetWeatherFromASv6();
    /// The same two with a file that is there already: a cycle file of that form as of this hour, an export
    /// file as of its own time.
    bool importCycleFile(const FilePath& file, CycleForm form);
    bool importExportFile(const FilePath& file);

    /// The station's row, or all rows for a blank code.
    RowSet getDecodedMetar(const QString& icao) const;
    /// Writes over the station's row or adds one; other stations keep theirs, however old. False after the
    /// message of a failure.
    bool insertDecodedMetar(const DecodedMetarRow& decoded);

    // Upkeep of the table of airports from lists in the install folder, called by hand. Each raises on a
    // failure and then leaves the table as it was.
    /// "wxStations.txt", a station a line: gives airports without a position the station's numbers, position
    /// and elevation.
    void popWxStations();
    /// Takes stations without a code off the list of stations.
    void deleteWxData();
    /// Adds the airports of "icao.cfg" to the table and takes those off "noaa.cfg" that both lists have.
    void removeDuplicatesFromNoaaConfig();
    /// Writes the first four characters of each line to "noaa.cfg" as "1", "2" and so on.
    void writeNoaaConfig(const QStringList& lines);

    /// 1 to 12 for an English month's name; 0 for anything else.
    static std::int16_t getMonthNumber(const QString& name);

private:
    bool downloadCycle(const WeatherEndpoint& endpoint, const FilePath& file);
    bool loadCycleFile(const FilePath& file, CycleForm form);
    bool loadExportFile(const FilePath& file);
    bool takeReports(const QStringList& lines, const CycleMoment& cycle, double step);
    void storeReports(const QStringList& lines, const CycleMoment& cycle, double step);
    void storeReport(const DecodedMetarRow& decoded);
    void writeRow(const DecodedMetarRow& decoded);
    void showProgress(const QString& text, bool withCancel = false) const;
    void takeCycleOf(const clsWxFinder& reference);

    Session& session_;
    QString picture_; ///< beside the progress messages
};

} // namespace morvane
