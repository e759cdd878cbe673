#include "weather/reports.h"

#include "core/bounded_reading.h"
#include "core/failure_report.h"
#include "core/file_helpers.h"
#include "core/job.h"
#include "core/reading_limits.h"
#include "core/store_records.h"
#include "weather/active_sky.h"
#include "weather/cycle_progress.h"
#include "weather/cycle_reports.h"
#include "weather/metar_decoder.h"
#include "weather/report_age.h"
#include "weather/report_rows.h"
#include "weather/weather_download.h"
#include "weather/weather_state.h"

#include <QHash>
#include <QLocale>
#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace morvane {

/// Date and hour of a cycle, and the year that its rows get.
struct CycleMoment {
    QDate day;
    std::int16_t hour;
    QString year;
};

namespace {

const FailureReport loadFailure{u"File Download Error!"_s, MessageKind::exclamation};
const FailureReport rowFailure{u"Metar Decode Error!"_s, MessageKind::exclamation};

/// The store itself waits a quarter of a second at each: two seconds in all.
constexpr int triesToWrite = 8;

/// The last hour's cycle, "00" to "23".
QString cycleNameAt(const QDateTime& utc) {
    return u"%1"_s.arg((utc.time().hour() + 23) % 24, 2, 10, QChar(u'0'));
}

/// Wanted: the day is not stepped back at midnight, when the cycle is yesterday's "23".
CycleMoment serverCycle(const QDateTime& utc) {
    return {utc.date(), cycleNameAt(utc).toShort(), {}}; // wanted: the rows of a server's cycle have no year
}

void takeCycle(WeatherState& weather, const CycleMoment& cycle) {
    weather.MetarCycleHour = cycle.hour;
    weather.MetarCycleDay = toInteger(cycle.day.day());
    weather.MetarCycleMonth = toInteger(cycle.day.month());
    weather.MetarCycleYear = toInteger(cycle.day.year());
}

/// 1 to 12 for an English month's name; 0 for anything else.
std::int16_t monthNumber(const QString& name) {
    const QString wanted = trimmedBlanks(name);
    for (std::int16_t month = 1; month <= 12; ++month)
        if (QLocale::c().monthName(month) == wanted) return month;
    return 0;
}

/// A row that the table does not take costs that row; a store that cannot be written any more would cost a
/// message a row.
bool endsTheLoad(ErrorCode code) {
    return code == ErrorCode::diskFull || code == ErrorCode::ioFailure || code == ErrorCode::permissionDenied;
}

/// The reports of a file by hand: whatever is wrong with it is told with its name.
template <class Reading>
auto readFile(FileSystem& files, const FilePath& file, Reading reading) {
    const QByteArray bytes = readAtMost(files, file, largestCycle, u"a cycle"_s);
    try {
        return reading(bytes);
    } catch (const Error& error) {
        throw Error::withDescription(error.code(), file.text() + u": "_s + error.description());
    }
}

/// Why no source delivered, a line a source.
QString failureText(const WeatherArrival& arrival) {
    if (arrival.lines.empty())
        return u"No weather server is set. Please set WeatherServer, WeatherPath and WeatherFormat in the "
               "registry key of Morvane, or add a source under \"More settings\"."_s;
    if (arrival.isOffline)
        return u"Your internet connection is not functioning please check the connection and try again."_s;
    if (const SourceLine& line = arrival.lines.front(); arrival.lines.size() == 1)
        return line.asked.isEmpty()
                   ? line.text
                   : line.asked.toDisplayString() + u" could not be downloaded: "_s + line.text;
    QStringList lines;
    for (const SourceLine& line : arrival.lines)
        lines << line.name + u": "_s + line.text;
    return lines.join(u'\n');
}

/// Another program may be writing the store just now.
std::optional<StoreTransaction> transactionOfLoad(Session& session) {
    for (int triesLeft = triesToWrite;; --triesLeft) {
        try {
            return std::optional<StoreTransaction>(std::in_place, connectedStore(session));
        } catch (const Error& error) {
            if (error.code() != ErrorCode::permissionDenied || triesLeft == 1) throw;
        }
        session.user.pumpMessages();
    }
}

} // namespace

Reported clsWxFinders::reload(Session& session) {
    session.rows<clsWxFinders>() = std::make_unique<clsWxFinders>(session);
    return session.rows<clsWxFinders>()->getMetarsFromDB();
}

Reported clsWxFinders::getMetarsFromDB() {
    return clsWxFinderData(session_).GetWeatherFromDb();
}

Reported clsWxFinderData::GetWeatherFromDb() {
    const FailureReport report{u"Metar Database Error!"_s, MessageKind::exclamation};
    return reportFailures(session_.user, report, [&] {
        clsWxFinders& finders = *session_.rows<clsWxFinders>();
        const QString presentYear = QString::number(session_.clock.localTime().date().year());
        RowSet rows(connectedStore(session_), u"SELECT * FROM DECODED_METAR ORDER BY METAR_ICAO"_s);
        // While the program starts the bar is the splash's, which stays silent about an empty table.
        const QString text = session_.StartingUp ? u"Loading Metars from Database. Please Wait............."_s
                                                 : u"Morvane is loading the Metar cycle from from the "
                                                   "database.  Please wait....."_s;
        if (!session_.StartingUp) showProgress(text);
        CycleProgress progress(session_.user, text, 100.0 / (rows.count() + 2));
        if (!rows.atEnd()) session_.state<WeatherState>().MetarDataLoaded = true;
        for (; !rows.atEnd(); rows.next(), progress.advance()) {
            clsWxFinder finder = reportOf(rows);
            // Rows of a server's cycle have no year.
            if (trimmedBlanks(finder.WxFinderYear).isEmpty()) finder.WxFinderYear = presentYear;
            if (trimmedBlanks(finder.WxFinderIcao) == u"KSEA") takeCycleOf(finder);
            finders.AddItem(std::move(finder));
        }
        if (!session_.StartingUp) session_.user.hideMessage();
    });
}

/// Wanted: one fixed station tells a session that was started from the stored table which cycle it holds,
/// and without its row there is none.
void clsWxFinderData::takeCycleOf(const clsWxFinder& reference) {
    WeatherState& weather = session_.state<WeatherState>();
    if (weather.MetarCycleDay != 0) return;
    // A report without a date leaves the cycle unknown.
    weather.MetarCycleDay = trimmedBlanks(reference.WxFinderDate).toShort();
    weather.MetarCycleMonth = monthNumber(reference.WxFinderMonth);
    weather.MetarCycleYear = trimmedBlanks(reference.WxFinderYear).toShort();
    weather.MetarCycleHour = trimmedBlanks(reference.WxFinderCycle).toShort();
}

void clsWxFinderData::showProgress(const QString& text, bool withCancel) const {
    Message message{MessageKind::progress, u"Morvane Information"_s, text, false, withCancel, true};
    message.picture = picture_;
    session_.user.showMessage(message);
    session_.user.updateProgress({}, {}, 2);
}

Reported clsWxFinderData::GetWeatherFromNOAA() {
    const Job job(session_, u"refresh of the weather"_s);
    if (!job) return false;
    bool isLoaded = false;
    reportFailures(session_.user, loadFailure, [&] { isLoaded = downloadWeather(); });
    if (session_.state<WeatherState>().NoSourceAnswered) tellNoSource();
    return isLoaded;
}

bool clsWxFinderData::downloadWeather() {
    std::vector<StationReport> reports;
    WeatherDownload download(session_);
    download.onRequest = [this] {
        if (session_.user.isMessageVisible()) return; // another source was asked before
        showProgress(u"Morvane is downloading the latest Metar cycle from Orrinsoft.  Please wait....."_s,
                     true);
    };
    download.onProgress = [this](std::int64_t bytes, std::int64_t total) {
        if (total > 0) session_.user.updateProgress({}, {}, std::floor(100.0 * bytes / total));
    };
    download.onFile = [&](const FilePath& file, CycleForm form) {
        reports = cycleReports(session_.files.read(file), form);
    };
    const WeatherArrival arrival = session_.state<WeatherArrival>() =
        download.fetch(cycleNameAt(session_.clock.utcTime()));
    session_.state<WeatherState>().NoSourceAnswered = arrival.end == WeatherArrival::End::failed;
    if (arrival.end == WeatherArrival::End::failed)
        throw Error::withDescription(ErrorCode::ioFailure, failureText(arrival));
    if (arrival.end == WeatherArrival::End::delivered) return takeServerReports(reports, arrival.note);
    session_.user.hideMessage();
    if (arrival.end == WeatherArrival::End::cancelled) return false;
    if (!session_.rows<clsWxFinders>() && !clsWxFinders::reload(session_)) return false;
    const SourceLine& newest = arrival.lines.back();
    session_.user.tellDone({reportAgeText(session_), newest.name + u": "_s + newest.text});
    return true;
}

/// What is stored goes on serving.
void clsWxFinderData::tellNoSource() {
    session_.user.tellDone({reportAgeText(session_), {}, true});
    session_.user.refreshScreen(Screen::frm_WxControl);
}

Reported clsWxFinderData::GetWeatherFromASv6() {
    return importExportFile(exportCycleFile(session_));
}

Reported clsWxFinderData::importCycleFile(const FilePath& file, CycleForm form) {
    bool isLoaded = false;
    reportFailures(session_.user, loadFailure, [&] { isLoaded = loadCycleFile(file, form); });
    return isLoaded;
}

Reported clsWxFinderData::importExportFile(const FilePath& file) {
    const Job job(session_, u"import of Active Sky's weather"_s);
    bool isLoaded = false;
    if (job) reportFailures(session_.user, loadFailure, [&] { isLoaded = loadExportFile(file); });
    return isLoaded;
}

bool clsWxFinderData::loadCycleFile(const FilePath& file, CycleForm form) {
    const auto reports =
        readFile(session_.files, file, [form](const QByteArray& bytes) { return cycleReports(bytes, form); });
    return takeServerReports(reports, {.text = u"a file"_s});
}

bool clsWxFinderData::takeServerReports(const std::vector<StationReport>& reports, const SourceNote& note) {
    showProgress(u"Decoding Orrinsoft Metars.  Please wait until the process has finished........."_s);
    return takeReports(reports, serverCycle(session_.clock.utcTime()), note);
}

bool clsWxFinderData::loadExportFile(const FilePath& file) {
    const auto reports = readFile(session_.files, file, exportReports);
    const QDateTime time = exportCycleTime(session_, file);
    showProgress(u"Decoding Active Sky Metars.  Please wait until the process has finished........."_s);
    const QString year = QString::number(session_.clock.localTime().date().year());
    const bool isLoaded =
        takeReports(reports, {time.date(), toInteger(time.time().hour()), year}, {.text = u"Active Sky"_s});
    if (!isLoaded) return false;
    session_.state<WeatherState>().ASv6ExportDate = time;
    session_.state<WeatherState>().ASv6Imported = true;
    return true;
}

/// Until all of them are in the table, the collection and the cycle in memory stay as they were.
bool clsWxFinderData::takeReports(const std::vector<StationReport>& reports, const CycleMoment& cycle,
                                  const SourceNote& note) {
    storeReports(reports, cycle, note);
    takeCycle(session_.state<WeatherState>(), cycle);
    auto before = std::exchange(session_.rows<clsWxFinders>(), std::make_unique<clsWxFinders>(session_));
    if (!GetWeatherFromDb()) {
        session_.rows<clsWxFinders>() = std::move(before);
        return false;
    }
    session_.user.updateProgress({}, {}, 100);
    session_.user.hideMessage();
    session_.state<WeatherState>().NoSourceAnswered = false;
    if (session_.rows<clsWxFinders>()->Count() > 0)
        session_.user.tellDone({reportAgeText(session_), reportSourceText(session_)});
    return true;
}

/// Of each station the last report alone: what it would overwrite is not written first. One transaction, as a
/// flush of the disk a row would take minutes. Rows of stations that the reports do not name stay, however
/// old they are: wanted, nothing is aged out.
void clsWxFinderData::storeReports(const std::vector<StationReport>& reports, const CycleMoment& cycle,
                                   const SourceNote& note) {
    // Wanted: the month is today's, even where a report's day belongs to the last one.
    const QString month = QLocale::c().monthName(session_.clock.localTime().date().month());
    CycleProgress progress(session_.user, {}, 100.0 / static_cast<double>(reports.size() + 1));
    std::map<std::size_t, clsWxFinder> lastReports; // by line
    QHash<QString, std::size_t> lastLines;          // by station
    for (std::size_t line = 0; line < reports.size(); ++line, progress.advance()) {
        clsWxFinder report = clsDecodeMetar(session_.user).decodeMetarString(reports[line].line);
        report.WxFinderCycle = QString::number(cycle.hour);
        report.WxFinderMonth = month;
        report.WxFinderYear = cycle.year;
        const QString station = trimmedBlanks(report.WxFinderIcao);
        lastReports.erase(lastLines.value(station, reports.size()));
        lastLines.insert(station, line);
        lastReports.emplace(line, std::move(report));
    }
    auto transaction = transactionOfLoad(session_);
    for (const auto& [line, report] : lastReports)
        storeOrTell(report, reports[line].place);
    keepStoredNote(session_, note);
    transaction->commit();
}

/// The directory knows better than a list of reports where an airport is.
void clsWxFinderData::storeOrTell(const clsWxFinder& report, const StationPlace& place) {
    try {
        const bool isNew = !place.latitude.isEmpty() && !hasAirportPlace(session_, report.WxFinderIcao);
        storeReport(session_, report, isNew ? place : StationPlace());
    } catch (const Error& error) {
        if (endsTheLoad(error.code())) throw;
        showFailure(session_.user, rowFailure, error.description());
    }
}

} // namespace morvane
