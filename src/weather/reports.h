#pragma once

#include "core/keyed_collection.h"
#include "core/reported.h"
#include "weather/cycle_lines.h"
#include "weather/weather_report.h"

namespace morvane {

struct CycleMoment;
struct SourceNote;
struct StationReport;
class FilePath;
class Session;

/// The whole of `DECODED_METAR` in memory, in the order of the station codes.
class clsWxFinders : public KeyedCollection<clsWxFinder> {
public:
    explicit clsWxFinders(Session& session) : session_(session) {}
    /// A fresh, loaded collection in the session's rows.
    static Reported reload(Session& session);

    /// A failure leaves the collection with what was read so far.
    Reported getMetarsFromDB();

private:
    Session& session_;
};

/// The loads. They fill the session's collection.
class clsWxFinderData {
public:
    /// For `picture` see Message.
    explicit clsWxFinderData(Session& session, const QString& picture = {})
        : session_(session), picture_(picture) {}

    /// Adds every row of the table to the collection; a session that knows no cycle yet takes its fields from
    /// the row of KSEA.
    Reported GetWeatherFromDb();
    // A load ends with the line that tells number and age of the reports. One that fails leaves the
    // collection in memory as it was; a store that another program writes is waited for, two seconds.
    /// Fetches the newest reports of the first source that delivers (see weather_download.h), stores them and
    /// reloads the collection. True also where the stored ones are the newest. What the sources said is in
    /// the session's WeatherArrival.
    Reported GetWeatherFromNOAA();
    /// Stores the reports of Active Sky's export file and reloads the collection.
    Reported GetWeatherFromASv6();
    /// The same two with a file that is there already: a cycle file of that form as of this hour, an export
    /// file as of its own time.
    Reported importCycleFile(const FilePath& file, CycleForm form);
    Reported importExportFile(const FilePath& file);

private:
    bool downloadWeather();
    bool loadCycleFile(const FilePath& file, CycleForm form);
    bool loadExportFile(const FilePath& file);
    bool takeServerReports(const std::vector<StationReport>& reports, const SourceNote& note);
    bool takeReports(const std::vector<StationReport>& reports, const CycleMoment& cycle,
                     const SourceNote& note);
    void storeReports(const std::vector<StationReport>& reports, const CycleMoment& cycle,
                      const SourceNote& note);
    void tellNoSource();
    void storeOrTell(const clsWxFinder& report, const StationPlace& place);
    void showProgress(const QString& text, bool withCancel = false) const;
    void takeCycleOf(const clsWxFinder& reference);

    Session& session_;
    QString picture_; ///< beside the progress messages
};

} // namespace morvane
