#include "core/held_files.h"

#include "core/native_file_calls.h"

#include <QDeadlineTimer>
#include <QThread>

namespace morvane {

namespace {

constexpr std::int64_t firstPatience = 2000, laterPatience = 100; // milliseconds, as all here
constexpr std::int64_t sameJob = 10'000;                          ///< since the last one that was waited for
constexpr unsigned long pause = 20;

std::int64_t now() {
    return QDeadlineTimer::current().deadline();
}

} // namespace

bool HeldFiles::outlast(const FilePath& file) {
    const std::filesystem::path path = file.native().toStdU16String();
    const std::optional<bool> isHeld = isHeldByOther(path);
    if (!isHeld || !*isHeld) return isHeld.has_value();
    const bool isLater = lastInVain_ != 0 && now() - lastInVain_ < sameJob;
    const QDeadlineTimer patience(isLater ? laterPatience : firstPatience);
    while (!patience.hasExpired()) {
        QThread::msleep(pause);
        if (!*isHeldByOther(path)) return true;
    }
    lastInVain_ = now();
    return false;
}

} // namespace morvane
