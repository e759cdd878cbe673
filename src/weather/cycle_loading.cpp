// Where a cycle's lines come from, and how they reach the table.

#include "core/file_helpers.h"
#include "core/job.h"
#include "core/store_records.h"
#include "core/text_decoding.h"
#include "weather/active_sky.h"
#include "weather/cycle_download.h"
#include "weather/cycle_progress.h"
#include "weather/decoded_report.h"
#include "weather/weather_endpoint.h"
#include "weather/wx_finders.h"

#include <cmath>

namespace morvane {

namespace {

const FailureReport loadFailure{u"File Download Error!"_s, MessageKind::exclamation};

/// The last hour's cycle, "00" to "23".
QString cycleNameAt(const QDateTime& utc) {
    return u"%1"_s.arg((utc.time().hour() + 23) % 24, 2, 10, QChar(u'0'));
}

/// Wanted: the day is not stepped back at midnight, when the cycle is yesterday's "23".
void setServerCycle(WeatherState& weather, const QDateTime& utc) {
    weather.MetarCycleDay = toInteger(utc.date().day());
    weather.MetarCycleMonth = toInteger(utc.date().month());
    weather.MetarCycleYear = toInteger(utc.date().year());
    weather.MetarCycleHour = cycleNameAt(utc).toShort();
}

void setExportCycle(WeatherState& weather, const QDateTime& time) {
    weather.ASv6ExportDate = time;
    weather.MetarCycleHour = toInteger(time.time().hour());
    weather.MetarCycleDay = toInteger(time.date().day());
    weather.MetarCycleMonth = toInteger(time.date().month());
    weather.MetarCycleYear = toInteger(time.date().year());
}

} // namespace

void clsWxFinderData::showProgress(const QString& text, bool withCancel) const {
    Message message{MessageKind::progress, u"Morvane Information"_s, text, false, withCancel, true};
    message.picture = picture_;
    session_.user.showMessage(message);
    session_.user.updateProgress({}, {}, 2);
}

bool clsWxFinderData::GetWeatherFromNOAA() {
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
        loadCycleFile(file, endpoint->form);
        isLoaded = true;
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

bool clsWxFinderData::GetWeatherFromASv6() {
    return importExportFile(exportCycleFile(session_));
}

bool clsWxFinderData::importCycleFile(const FilePath& file, CycleForm form) {
    return reportFailures(session_.user, loadFailure, [&] { loadCycleFile(file, form); });
}

bool clsWxFinderData::importExportFile(const FilePath& file) {
    const Job job(session_);
    return job && reportFailures(session_.user, loadFailure, [&] { loadExportFile(file); });
}

void clsWxFinderData::loadCycleFile(const FilePath& file, CycleForm form) {
    QStringList lines = splitLines(decodeText(session_.files.read(file)));
    if (form == CycleForm::noaa) lines = newestReports(lines);
    session_.gWxFinders = std::make_unique<clsWxFinders>(session_);
    setServerCycle(session_.weather, session_.clock.utcTime());
    showProgress(u"Decoding Orrinsoft Metars.  Please wait until the process has finished........."_s);
    const double step = 100.0 / static_cast<double>(lines.size() + 1);
    // Wanted: the last line is never read. It is empty in a whole file and cut off in any other.
    if (!lines.isEmpty()) lines.removeLast();
    storeReports(lines, {}, step); // wanted: the rows of a server's cycle have no year
}

void clsWxFinderData::loadExportFile(const FilePath& file) {
    QStringList lines = splitLines(decodeText(session_.files.read(file)));
    session_.gWxFinders = std::make_unique<clsWxFinders>(session_);
    setExportCycle(session_.weather, exportCycleTime(session_, file));
    showProgress(u"Decoding Active Sky Metars.  Please wait until the process has finished........."_s);
    const double step = 100.0 / static_cast<double>(lines.size() + 1);
    if (!lines.isEmpty() && lines.last().isEmpty()) lines.removeLast();
    storeReports(lines, QString::number(session_.clock.localTime().date().year()), step);
}

/// One transaction, as a flush of the disk a row would take minutes. Rows of stations that the lines do not
/// name stay, however old they are: wanted, nothing is aged out.
void clsWxFinderData::storeReports(const QStringList& lines, const QString& year, double step) {
    const QString cycle = QString::number(session_.weather.MetarCycleHour);
    // Wanted: the month is today's, even where a report's day belongs to the last one.
    const QString month = clsDecodeMetar::getMonthName(session_.clock.localTime().date().month());
    CycleProgress progress(session_.user, {}, step);
    StoreTransaction transaction(connectedStore(session_));
    for (const QString& line : lines) {
        clsDecodeMetar decoded(session_.user);
        decoded.decodeMetarString(line);
        DecodedMetarRow row{toWxFinder(decoded, line)};
        row.report.WxFinderCycle = cycle;
        row.report.WxFinderMonth = month;
        row.report.WxFinderYear = year;
        storeReport(row);
        progress.advance();
    }
    transaction.commit();
    GetWeatherFromDb();
}

} // namespace morvane
