#pragma once

#include "core/file_system.h"
#include "weather/cycle_contents.h"

#include <QUrl>
#include <functional>

namespace morvane {

/// Fetches one file over HTTP while events flow. It needs an application object, whose events it runs.
class CycleDownload {
public:
    struct Limits {
        int silenceMilliseconds = 10'000;        ///< without a byte; then the server counts as gone
        std::int64_t largestSize = largestCycle; ///< as it comes and, where it is packed, as it is unpacked
    };

    explicit CycleDownload(FileSystem& files) : CycleDownload(files, Limits()) {}
    CycleDownload(FileSystem& files, const Limits& limits) : files_(files), limits_(limits) {}

    /// Bytes done and bytes in all, the latter 0 or less when the server has not said.
    std::function<void(std::int64_t bytes, std::int64_t total)> onProgress = [](std::int64_t, std::int64_t) {
    };
    /// Asked some twenty times a second; true aborts the transfer.
    std::function<bool()> isCancelled = [] { return false; };

    /// Fetches the file afresh, past any cache, and follows redirects. True when it is there whole under its
    /// name, which no part of it ever has, and unpacked where it came as gzip; false after a cancel. Raises
    /// for everything else: no answer, a status other than 2xx, a page in place of a text, nothing at all,
    /// fewer bytes than were announced, bytes packed in any other way.
    bool fetch(const QUrl& url, const FilePath& target);

private:
    FileSystem& files_;
    Limits limits_;
};

} // namespace morvane
