#include "weather/weather_download.h"

#include "core/error.h"
#include "core/numbers.h"
#include "core/session.h"
#include "weather/cycle_download.h"
#include "weather/report_age.h"

#include <QLocale>
#include <algorithm>

namespace morvane {

namespace {

constexpr qint64 secondsPerMinute = 60, restSeconds = 5 * secondsPerMinute;
constexpr qint64 firstWait = 10 * secondsPerMinute, longestWait = 120 * secondsPerMinute;
constexpr int mostDoublings = 4;
const QString noConnection = u"no network connection"_s;

/// A day or a time as HTTP writes it: "Sat, 21 Nov 2026 14:05:00 GMT".
qint64 secondsUntil(const QByteArray& httpDate, const QDateTime& utc) {
    QDateTime time =
        QLocale::c().toDateTime(QString::fromLatin1(httpDate), u"ddd, dd MMM yyyy hh:mm:ss 'GMT'"_s);
    time.setTimeSpec(Qt::UTC);
    return time.isValid() ? utc.secsTo(time) : 0;
}

/// What the server asks for, within bounds; without a word of it ten minutes, doubled with each refusal.
qint64 waitOf(const QByteArray& retryAfter, int refusals, const QDateTime& utc) {
    const qint64 usual = firstWait << std::clamp(refusals - 1, 0, mostDoublings);
    const qint64 asked = isDigits(QString::fromLatin1(retryAfter)) ? retryAfter.left(9).toLongLong()
                                                                   : secondsUntil(retryAfter, utc);
    return std::min(asked > 0 ? asked : usual, longestWait);
}

QString clockText(const QDateTime& time) {
    return time.toUTC().toString(u"hh:mm'Z'");
}

QString minutesAgo(qint64 seconds) {
    if (seconds < secondsPerMinute) return u"just now"_s;
    return countText(seconds / secondsPerMinute, u"minute"_s) + u" ago"_s;
}

/// A whole minute, so that who comes back at that time is not sent away again.
QDateTime upToMinute(const QDateTime& time) {
    const int seconds = time.time().second();
    return seconds == 0 ? time : time.addSecs(secondsPerMinute - seconds);
}

FilePath fileOf(const Session& session, const WeatherSource& source, const QString& cycle) {
    // All texts in that folder go at the program's end. A name alone could be one of Windows' own.
    const QString name =
        source.isHourly() ? cycle + u"Z"_s : u"source-"_s + (source.isOwn ? u"own"_s : source.name);
    return session.AppPath / u"METAR" / (name + u".txt"_s);
}

/// A file that its server knows as the one whose reports are stored needs not come again.
FileMarks knownMarks(const Session& session, const SourceNote& note, const QUrl& file) {
    const bool isStored = note.isStored && note.file == file && storedReports(session).count > 0;
    return isStored ? note.marks : FileMarks();
}

/// Nothing where the next source is to be asked.
std::optional<WeatherArrival::End> endOf(FetchedFile::End end) {
    switch (end) {
    case FetchedFile::End::delivered:
        return WeatherArrival::End::delivered;
    case FetchedFile::End::unchanged:
        return WeatherArrival::End::unchanged;
    case FetchedFile::End::cancelled:
        return WeatherArrival::End::cancelled;
    case FetchedFile::End::unreached:
    case FetchedFile::End::refused:
        break;
    }
    return std::nullopt;
}

void takeAnswer(SourceNote& note, const FetchedFile& fetched, const QDateTime& utc) {
    note.hasAnswered =
        fetched.end == FetchedFile::End::delivered || fetched.end == FetchedFile::End::unchanged;
    if (note.hasAnswered) {
        note.refusals = 0;
        note.notBefore = {};
        note.marks = fetched.marks;
    }
    if (fetched.end == FetchedFile::End::refused) {
        ++note.refusals;
        note.notBefore = utc.addSecs(waitOf(fetched.retryAfter, note.refusals, utc));
    }
    note.outcome = fetched.outcome;
}

} // namespace

QString waitingText(const SourceNote& note, const QDateTime& utc) {
    if (!note.asked.isValid() || note.asked > utc) return {}; // the clock was set back
    const QDateTime rested = isLoopback(note.address) ? note.asked : note.asked.addSecs(restSeconds);
    const QDateTime from = note.notBefore.isValid() ? std::max(rested, note.notBefore) : rested;
    if (from <= utc) return {};
    return u"asked %1; again at %2"_s.arg(minutesAgo(note.asked.secsTo(utc)), clockText(upToMinute(from)));
}

FetchedFile WeatherDownload::download(const WeatherSource& source, const QString& cycle,
                                      const SourceNote& before) {
    const FilePath file = fileOf(session_, source, cycle);
    session_.files.makeFolder(file.parent());
    CycleDownload download(session_.files);
    download.onProgress = onProgress;
    download.isCancelled = [this] {
        session_.user.pumpMessages();
        return isWorkCancelled(session_);
    };
    const QUrl url = source.fileOf(cycle);
    const FetchedFile fetched = download.fetch(url, file, knownMarks(session_, before, url));
    if (fetched.end == FetchedFile::End::delivered) onFile(file, source.form);
    return fetched;
}

QString stateText(const WeatherSource& source, const SourceNote& note, const QDateTime& utc) {
    if (!source.problem.isEmpty()) return source.problem;
    if (note.outcome.isEmpty()) return u"not asked yet"_s;
    const QString waiting = waitingText(note, utc);
    if (!waiting.isEmpty()) return note.outcome + u"; "_s + waiting;
    if (!note.asked.isValid()) return note.outcome;
    return note.outcome + QLocale::c().toString(note.asked, u"; 'asked' hh:mm'Z' d MMM");
}

WeatherArrival WeatherDownload::fetch(const QString& cycle) {
    WeatherArrival arrival;
    for (const WeatherSource& source : weatherSources(session_.registry))
        if (ask(source, cycle, arrival)) break;
    arrival.isOffline =
        !arrival.lines.empty() &&
        std::ranges::all_of(arrival.lines, [](const SourceLine& line) { return line.text == noConnection; });
    return arrival;
}

/// True where no further source is to be asked.
bool WeatherDownload::ask(const WeatherSource& source, const QString& cycle, WeatherArrival& arrival) {
    QString line = source.problem;
    if (line.isEmpty() && !isOnline(source.address, QNetworkInterface::allInterfaces())) line = noConnection;
    if (line.isEmpty()) {
        const SourceNote note = noteOf(session_, source.address);
        line = waitingText(note, session_.clock.utcTime());
        if (line.isEmpty()) return request(source, cycle, arrival);
        if (note.isStored && note.hasAnswered) arrival.end = WeatherArrival::End::unchanged;
    }
    arrival.lines.push_back({source.name, line});
    return arrival.end == WeatherArrival::End::unchanged;
}

/// That it was asked is noted before the request goes out; one that never reached the server does not count.
bool WeatherDownload::request(const WeatherSource& source, const QString& cycle, WeatherArrival& arrival) {
    using End = FetchedFile::End;
    const SourceNote before = noteOf(session_, source.address);
    SourceNote& note = arrival.note = before;
    note.asked = session_.clock.utcTime();
    note.text = source.text();
    note.hasAnswered = false;
    note.outcome = u"no answer"_s;
    keep(note);
    onRequest();
    try {
        const FetchedFile fetched = download(source, cycle, before);
        takeAnswer(note, fetched, note.asked);
        if (fetched.end == End::unreached) note.asked = before.asked;
        if (fetched.end == End::delivered) note.file = source.fileOf(cycle);
        if (const auto end = endOf(fetched.end)) arrival.end = *end;
    } catch (const Error& error) {
        note.outcome = error.description();
    }
    arrival.lines.push_back({source.name, note.outcome, source.fileOf(cycle)});
    if (arrival.end != WeatherArrival::End::delivered) keep(note);
    return arrival.end != WeatherArrival::End::failed;
}

/// A note that cannot be kept costs a request too many later on, and not the weather now.
void WeatherDownload::keep(const SourceNote& note) {
    try {
        keepNote(session_, note);
    } catch (const Error&) {
    }
}

} // namespace morvane
