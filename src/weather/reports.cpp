#include "weather/reports.h"

#include "core/failure_report.h"
#include "core/file_helpers.h"
#include "core/job.h"
#include "core/store_records.h"
#include "core/text_decoding.h"
#include "weather/active_sky.h"
#include "weather/cycle_contents.h"
#include "weather/cycle_download.h"
#include "weather/cycle_progress.h"
#include "weather/metar_decoder.h"
#include "weather/report_age.h"
#include "weather/report_rows.h"
#include "weather/weather_endpoint.h"
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

/// The lines of a cycle file, packed or not.
QStringList cycleLines(FileSystem& files, const FilePath& file) {
    const QByteArray bytes = files.read(file);
    try {
        return splitLines(decodeText(cycleContents(bytes)));
    } catch (const Error& error) {
        throw Error::withDescription(error.code(), file.text() + u": "_s + error.description());
    }
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
    const Job job(session_);
    if (!job) return false;
    bool isLoaded = false;
    reportFailures(session_.user, loadFailure, [&] {
        const auto endpoint = weatherEndpoint(session_.registry);
        if (!endpoint)
            throw Error::withDescription(
                ErrorCode::pathNotFound,
                u"No weather server is set. Please set WeatherServer, WeatherPath and "
                "WeatherFormat in the registry key of Morvane."_s);
        if (!isOnline(*endpoint, QNetworkInterface::allInterfaces()))
            throw Error::withDescription(ErrorCode::ioFailure,
                                         u"Your internet connection is not functioning please check the "
                                         "connection and try again."_s);
        const QString name = cycleNameAt(session_.clock.utcTime()) + u"Z.txt"_s;
        const FilePath file = session_.AppPath / u"METAR" / name;
        if (!downloadCycle(*endpoint, file)) return session_.user.hideMessage();
        isLoaded = loadCycleFile(file, endpoint->form);
    });
    return isLoaded;
}

bool clsWxFinderData::downloadCycle(const WeatherEndpoint& endpoint, const FilePath& file) {
    showProgress(u"Morvane is downloading the latest Metar cycle from Orrinsoft.  Please wait....."_s, true);
    CycleDownload download(session_.files);
    download.onProgress = [this](std::int64_t bytes, std::int64_t total) {
        if (total > 0) session_.user.updateProgress({}, {}, std::floor(100.0 * bytes / total));
    };
    download.isCancelled = [this] {
        session_.user.pumpMessages();
        return isWorkCancelled(session_);
    };
    session_.files.makeFolder(file.parent());
    // The server knows the file by an ending in capitals.
    return download.fetch(endpoint.urlOf(file.fileName().left(2) + u"Z.TXT"_s), file);
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
    const Job job(session_);
    bool isLoaded = false;
    if (job) reportFailures(session_.user, loadFailure, [&] { isLoaded = loadExportFile(file); });
    return isLoaded;
}

bool clsWxFinderData::loadCycleFile(const FilePath& file, CycleForm form) {
    QStringList lines = cycleLines(session_.files, file);
    if (form == CycleForm::noaa) lines = newestReports(lines);
    showProgress(u"Decoding Orrinsoft Metars.  Please wait until the process has finished........."_s);
    const double step = 100.0 / std::max(1.0, static_cast<double>(lines.size()));
    // Wanted: the last line is never read. It is empty in a whole file and cut off in any other.
    if (!lines.isEmpty()) lines.removeLast();
    return takeReports(lines, serverCycle(session_.clock.utcTime()), step);
}

bool clsWxFinderData::loadExportFile(const FilePath& file) {
    QStringList lines = cycleLines(session_.files, file);
    const QDateTime time = exportCycleTime(session_, file);
    showProgress(u"Decoding Active Sky Metars.  Please wait until the process has finished........."_s);
    const double step = 100.0 / static_cast<double>(lines.size() + 1);
    if (!lines.isEmpty() && lines.last().isEmpty()) lines.removeLast();
    const QString year = QString::number(session_.clock.localTime().date().year());
    const bool isLoaded = takeReports(lines, {time.date(), toInteger(time.time().hour()), year}, step);
    if (!isLoaded) return false;
    session_.state<WeatherState>().ASv6ExportDate = time;
    session_.state<WeatherState>().ASv6Imported = true;
    return true;
}

/// Until all of them are in the table, the collection and the cycle in memory stay as they were.
bool clsWxFinderData::takeReports(const QStringList& lines, const CycleMoment& cycle, double step) {
    storeReports(lines, cycle, step);
    takeCycle(session_.state<WeatherState>(), cycle);
    auto before = std::exchange(session_.rows<clsWxFinders>(), std::make_unique<clsWxFinders>(session_));
    if (!GetWeatherFromDb()) {
        session_.rows<clsWxFinders>() = std::move(before);
        return false;
    }
    session_.user.updateProgress({}, {}, 100);
    session_.user.hideMessage();
    if (session_.rows<clsWxFinders>()->Count() > 0)
        session_.user.tellDone({reportAgeText(session_), reportSourceText(session_)});
    return true;
}

/// Of each station the last report alone: what it would overwrite is not written first. One transaction, as a
/// flush of the disk a row would take minutes. Rows of stations that the lines do not name stay, however old
/// they are: wanted, nothing is aged out.
void clsWxFinderData::storeReports(const QStringList& lines, const CycleMoment& cycle, double step) {
    // Wanted: the month is today's, even where a report's day belongs to the last one.
    const QString month = QLocale::c().monthName(session_.clock.localTime().date().month());
    CycleProgress progress(session_.user, {}, step);
    std::map<qsizetype, clsWxFinder> lastReports; // by line
    QHash<QString, qsizetype> lastLines;          // by station
    for (qsizetype line = 0; line < lines.size(); ++line, progress.advance()) {
        clsWxFinder report = clsDecodeMetar(session_.user).decodeMetarString(lines[line]);
        report.WxFinderCycle = QString::number(cycle.hour);
        report.WxFinderMonth = month;
        report.WxFinderYear = cycle.year;
        const QString station = trimmedBlanks(report.WxFinderIcao);
        lastReports.erase(lastLines.value(station, -1));
        lastLines.insert(station, line);
        lastReports.emplace(line, std::move(report));
    }
    auto transaction = transactionOfLoad(session_);
    for (const auto& [line, report] : lastReports)
        storeOrTell(report);
    transaction->commit();
}

void clsWxFinderData::storeOrTell(const clsWxFinder& report) {
    try {
        storeReport(session_, report);
    } catch (const Error& error) {
        if (endsTheLoad(error.code())) throw;
        showFailure(session_.user, rowFailure, error.description());
    }
}

} // namespace morvane
