#include "core/program_log.h"

#include "core/attempts.h"
#include "core/clock.h"
#include "core/file_system.h"
#include "core/install_lock.h"

#include <QCoreApplication>
#include <cstdlib>

namespace morvane {

namespace {

constexpr std::int64_t largestLog = 1'000'000;
constexpr int restSeconds = 60;

} // namespace

std::vector<FilePath> logFiles(const FilePath& installFolder) {
    std::vector<FilePath> files;
    for (const QString& number : {QString(), u".1"_s, u".2"_s})
        files.push_back(installFolder.exactChild(logFileName + number));
    return files;
}

void ProgramLog::open(const Place& place, const std::function<QString(const QString&)>& clean) {
    attempt([&] {
        if (!place.files.exists(place.folder / u"Morvane.mdb")) return;
        clean_ = clean;
        place_.emplace(place);
    });
}

void ProgramLog::hear(const QString& kind, const QString& title, const QString& text) {
    note(kind, title.isEmpty() ? text : title + u": "_s + text);
}

void ProgramLog::note(const QString& what, const QString& text) {
    if (!place_ || isNoting_) return;
    const QDateTime now = place_->clock.utcTime();
    if (failedAt_.isValid() && std::abs(failedAt_.secsTo(now)) < restSeconds) return;
    isNoting_ = true;
    const bool isWritten = attempt([&] {
        const QByteArray line = lineOf(now, what, text);
        write(failedAt_.isValid() ? '\n' + line : line);
    });
    isNoting_ = false;
    failedAt_ = isWritten ? QDateTime() : now;
}

QByteArray ProgramLog::lineOf(const QDateTime& now, const QString& what, const QString& text) const {
    const QString process = QString::number(QCoreApplication::applicationPid());
    const QStringList parts{now.toString(u"yyyy-MM-ddTHH:mm:ss'Z'"_s), place_->program, process, what,
                            clean_(text)};
    return parts.join(u' ').trimmed().toUtf8() + '\n';
}

void ProgramLog::write(const QByteArray& line) {
    const FilePath file = logFiles(place_->folder)[0];
    const auto stamp = place_->files.stampIfThere(file);
    if (stamp && stamp->size + line.size() > largestLog)
        attempt([&] { roll(line.size()); }); // one that another program has open is rolled later
    place_->files.append(file, line);
}

/// One program at a time, and not what another one has rolled meanwhile. Who does not get the lock goes on
/// writing where it was.
void ProgramLog::roll(std::int64_t coming) {
    InstallLock lock(place_->folder, u"Log.lock"_s);
    const std::vector<FilePath> files = logFiles(place_->folder);
    if (!lock.tryTake() || place_->files.size(files[0]) + coming <= largestLog) return;
    if (place_->files.exists(files[1])) place_->files.rename(files[1], files[2]);
    place_->files.rename(files[0], files[1]);
}

} // namespace morvane
