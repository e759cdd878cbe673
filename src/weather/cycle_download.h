#pragma once

#include "core/file_system.h"
#include "core/literals.h"
#include "weather/cycle_contents.h"
#include "weather/source_notes.h"

#include <QUrl>
#include <functional>

namespace morvane {

/// How a request ended that did not fail.
struct FetchedFile {
    enum class End {
        delivered,
        unchanged, ///< the server has nothing newer than what it was told is there
        refused,   ///< the server wants to be left alone for a while
        unreached, ///< no server was found, or none that can be talked to
        cancelled, ///< by the user, or because the program ends
    };
    End end = End::cancelled;
    QString outcome = u"cancelled"_s; ///< in a few words
    FileMarks marks = {};             ///< of the file that the server has
    QByteArray retryAfter = {};       ///< as the server says it; empty where it does not
};

/// Fetches one file over HTTP while events flow. It needs an application object, whose events it runs.
class CycleDownload {
public:
    struct Limits {
        int silenceMilliseconds = 10'000;        ///< without a byte; then the server counts as gone
        std::int64_t largestSize = largestCycle; ///< as it comes and, where it is packed, as it is unpacked
        int wholeMilliseconds = 5 * 60'000;      ///< for all of it
    };

    explicit CycleDownload(FileSystem& files) : CycleDownload(files, Limits()) {}
    CycleDownload(FileSystem& files, const Limits& limits) : files_(files), limits_(limits) {}

    /// Bytes done and bytes in all, the latter 0 or less when the server has not said.
    std::function<void(std::int64_t bytes, std::int64_t total)> onProgress = [](std::int64_t, std::int64_t) {
    };
    /// Asked some twenty times a second; true aborts the transfer.
    std::function<bool()> isCancelled = [] { return false; };

    /// Fetches the file, past any cache, where it is not the one of those marks. Redirects are followed to
    /// safe addresses, and on this machine. A delivered file is there whole under its name, which no part of
    /// it ever has, and unpacked where it came as gzip. Raises for everything that FetchedFile does not tell:
    /// no answer, any other status, a page in place of a text, nothing at all, fewer bytes than were
    /// announced, bytes packed in any other way, a redirect that is not followed.
    FetchedFile fetch(const QUrl& url, const FilePath& target, const FileMarks& known = {});

private:
    FileSystem& files_;
    Limits limits_;
};

} // namespace morvane
