#include "weather/report_age.h"

#include "core/error.h"
#include "core/numbers.h"
#include "core/session.h"
#include "weather/reports.h"
#include "weather/weather_endpoint.h"
#include "weather/weather_state.h"

#include <QLocale>
#include <set>

namespace morvane {

namespace {

constexpr int minutesPerHour = 60, minutesPerDay = 24 * minutesPerHour;
/// A short month can stand between two months that have the day.
constexpr int monthsToLookBack = 2;

/// In minutes below two hours, in hours below two days.
QString ageText(qint64 minutes) {
    if (minutes < 2 * minutesPerHour) return countText(std::max<qint64>(minutes, 0), u"minute"_s) + u" old"_s;
    if (minutes < 2 * minutesPerDay) return countText(minutes / minutesPerHour, u"hour"_s) + u" old"_s;
    return countText(minutes / minutesPerDay, u"day"_s) + u" old"_s;
}

/// Thousands of reports share a few hundred times.
QDateTime youngestOf(const clsWxFinders& finders, const QDateTime& utc) {
    std::set<std::pair<QString, QString>> times;
    for (const auto& finder : finders)
        times.emplace(finder->WxFinderDate, finder->WxFinderTime);
    QDateTime youngest;
    for (const auto& [day, time] : times)
        if (const QDateTime moment = observationTime(day, time, utc);
            moment.isValid() && (!youngest.isValid() || moment > youngest))
            youngest = moment;
    return youngest;
}

} // namespace

QDateTime observationTime(const QString& day, const QString& time, const QDateTime& utc) {
    if (!isDigits(day) || !isDigits(time) || time.size() != 4) return {};
    const QTime clock(time.left(2).toInt(), time.mid(2).toInt());
    if (!clock.isValid()) return {}; // a date with such a time would be its midnight
    const QDateTime latest = utc.addSecs(60 * minutesPerHour);
    for (int back = 0; back <= monthsToLookBack; ++back) {
        const QDate month = latest.date().addDays(1 - latest.date().day()).addMonths(-back);
        const QDateTime moment(QDate(month.year(), month.month(), day.toInt()), clock, Qt::UTC);
        if (moment.isValid() && moment <= latest) return moment;
    }
    return {};
}

QString reportAgeText(const Session& session) {
    const auto& finders = session.state<std::unique_ptr<clsWxFinders>>();
    const int count = finders ? finders->Count() : 0;
    if (count == 0) return u"No reports yet"_s;
    const QString reports = countText(count, u"report"_s);
    const QDateTime utc = session.clock.utcTime(), youngest = youngestOf(*finders, utc);
    if (!youngest.isValid()) return reports + u", none with a time"_s;
    return reports + u", the youngest of "_s + QLocale::c().toString(youngest, u"hh:mm'Z' d MMM") + u", "_s +
           ageText(youngest.secsTo(utc) / 60);
}

QString reportSourceText(const Session& session) {
    if (session.state<WeatherState>().ASv6VersionOK) return u"Source: Active Sky"_s;
    try {
        const auto endpoint = weatherEndpoint(session.registry);
        return u"Source: "_s + (endpoint ? endpoint->server.host() : u"no weather server is set"_s);
    } catch (const Error&) {
        return u"Source: the weather server's address is damaged"_s;
    }
}

} // namespace morvane
