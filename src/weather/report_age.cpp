#include "weather/report_age.h"

#include "core/error.h"
#include "core/numbers.h"
#include "core/session.h"
#include "core/store.h"
#include "core/store_records.h"
#include "core/store_statement.h"
#include "weather/source_notes.h"
#include "weather/weather_sources.h"
#include "weather/weather_state.h"

#include <QLocale>
#include <QRegularExpression>
#include <variant>

namespace morvane {

namespace {

constexpr int secondsPerMinute = 60, minutesPerHour = 60, minutesPerDay = 24 * minutesPerHour;
/// A short month can stand between two months that have the day.
constexpr int monthsToLookBack = 2;

std::optional<qint64> minutesSince(const QDateTime& moment, const QDateTime& utc) {
    if (!moment.isValid()) return std::nullopt;
    return std::max<qint64>(moment.secsTo(utc) / secondsPerMinute, 0);
}

QString textAt(const StoreStatement& row, int column) {
    const StoreValue value = row.value(column);
    const auto* text = std::get_if<QString>(&value);
    return text ? *text : QString();
}

QString freshText(const StoredReports& stored, const QDateTime& utc) {
    if (stored.count == 0) return u"No reports yet"_s;
    const QString reports = countText(stored.count, u"report"_s);
    const auto age = minutesSince(stored.youngest, utc);
    if (!age) return reports + u", none with a time"_s;
    return reports + u" of "_s + QLocale::c().toString(stored.youngest, u"hh':00Z,' d MMM") +
           u"; the youngest is "_s + ageText(*age);
}

QString staleText(const StoredReports& stored, const QDateTime& utc) {
    const QString told = u"No source answered; "_s;
    if (stored.count == 0) return told + u"no reports yet"_s;
    const QString reports = told + countText(stored.count, u"stored report"_s);
    const auto age = minutesSince(stored.youngest, utc);
    return reports + (age ? u", the youngest "_s + ageText(*age) : u", none with a time"_s);
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

QString ageText(qint64 minutes) {
    if (minutes < 2 * minutesPerHour) return countText(std::max<qint64>(minutes, 0), u"minute"_s) + u" old"_s;
    if (minutes < 2 * minutesPerDay) return countText(minutes / minutesPerHour, u"hour"_s) + u" old"_s;
    return countText(minutes / minutesPerDay, u"day"_s) + u" old"_s;
}

std::optional<qint64> observationAge(const Session& session, const QString& day, const QString& time) {
    const QDateTime utc = session.clock.utcTime();
    return minutesSince(observationTime(day, time, utc), utc);
}

std::optional<qint64> youngestReportAge(const Session& session) {
    return minutesSince(storedReports(session).youngest, session.clock.utcTime());
}

/// Thousands of reports share a few hundred times.
StoredReports storedReports(const Session& session) {
    StoredReports stored;
    if (!hasStore(session)) return stored;
    const QDateTime utc = session.clock.utcTime();
    StoreStatement times(*session.adoConn, u"SELECT METAR_DATE, METAR_TIME, COUNT(*) FROM DECODED_METAR "
                                           "GROUP BY METAR_DATE, METAR_TIME"_s);
    while (times.step()) {
        stored.count += static_cast<int>(times.number(2));
        const QDateTime moment = observationTime(textAt(times, 0), textAt(times, 1), utc);
        if (moment.isValid() && (!stored.youngest.isValid() || moment > stored.youngest))
            stored.youngest = moment;
    }
    return stored;
}

QString reportAgeText(const Session& session) {
    try {
        const StoredReports stored = storedReports(session);
        const QDateTime utc = session.clock.utcTime();
        return session.state<WeatherState>().NoSourceAnswered ? staleText(stored, utc)
                                                              : freshText(stored, utc);
    } catch (const Error&) { // another program may just be writing them
        return u"The stored reports cannot be read now"_s;
    }
}

QString reportSourceText(const Session& session) {
    if (session.state<WeatherState>().ASv6VersionOK) return u"Source: Active Sky"_s;
    try {
        if (const auto stored = storedNote(session)) return u"Source: "_s + stored->text;
    } catch (const Error&) { // as above
        return {};
    }
    const auto sources = weatherSources(session.registry);
    return sources.empty() ? u"No weather source is set"_s : u"Next source: "_s + sources.front().text();
}

QString reportAgeText(const Session& session, const QString& report) {
    static const QRegularExpression form(u" (\\d\\d)(\\d{4})Z\\b"_s); // the first such word says it
    const QRegularExpressionMatch match = form.match(report);
    const QString day = match.captured(1), time = match.captured(2);
    const auto age = observationAge(session, day, time);
    return age ? time.left(2) + u':' + time.mid(2) + u"Z, "_s + ageText(*age) : QString();
}

} // namespace morvane
