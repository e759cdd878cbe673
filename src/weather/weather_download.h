#pragma once

#include "core/file_path.h"
#include "weather/source_notes.h"
#include "weather/weather_sources.h"

#include <functional>

namespace morvane {

class Session;
struct FetchedFile;

/// What one source said, or why it was passed over: "asked 3 minutes ago; again at 14:05Z".
struct SourceLine {
    QString name, text;
    QUrl asked = {}; ///< the file that was asked for; empty for a source that was passed over
};

/// What became of asking the sources in their order. The session keeps the last one.
struct WeatherArrival {
    enum class End {
        delivered,
        unchanged, ///< the stored reports are the newest that there are
        failed,    ///< no source delivered
        cancelled,
    };
    End end = End::failed;
    std::vector<SourceLine> lines = {}; ///< of each source up to that one
    SourceNote note = {};   ///< of the source that delivered, for the transaction that stores its reports
    bool isOffline = false; ///< not one source is within reach of this computer
};

/// Asks the sources, one after the other, until one delivers. What a source said is kept in its note at once,
/// so that none is asked again before it wants to be.
class WeatherDownload {
public:
    explicit WeatherDownload(Session& session) : session_(session) {}

    /// Before a request goes out.
    std::function<void()> onRequest = [] {};
    /// See CycleDownload.
    std::function<void(std::int64_t bytes, std::int64_t total)> onProgress = [](std::int64_t, std::int64_t) {
    };
    /// Takes the file that a source delivered. One that it cannot read, for which it raises, leaves the turn
    /// to the next source.
    std::function<void(const FilePath& file, CycleForm form)> onFile = [](const FilePath&, CycleForm) {};

    /// Asks for the cycle, "00" to "23"; files come into "\\METAR".
    WeatherArrival fetch(const QString& cycle);

private:
    bool ask(const WeatherSource& source, const QString& cycle, WeatherArrival& arrival);
    bool request(const WeatherSource& source, const QString& cycle, WeatherArrival& arrival);
    FetchedFile download(const WeatherSource& source, const QString& cycle, const SourceNote& before);
    void keep(const SourceNote& note);

    Session& session_;
};

/// The state of a source in one line: what is wrong with it, until when it rests, what it said last.
QString stateText(const WeatherSource& source, const SourceNote& note, const QDateTime& utc);
/// How long ago the source was asked and when it can be asked again; empty where it can be asked now. An
/// address on this machine may be asked at any time, but for one that refused.
QString waitingText(const SourceNote& note, const QDateTime& utc);

} // namespace morvane
