#pragma once

#include <QDateTime>
#include <QUrl>
#include <optional>

namespace morvane {

class Session;

/// What a server says of a file, so that it can be asked for a newer one only. Empty where it says nothing.
struct FileMarks {
    QByteArray entityTag, lastModified;

    bool isEmpty() const { return entityTag.isEmpty() && lastModified.isEmpty(); }
};

/// What is kept of a source from one request to the next: a row of `WEATHER_SOURCES`, by its address.
struct SourceNote {
    QUrl address = {};
    QString text = {};        ///< "noaa, cycle files"
    QDateTime asked = {};     ///< UTC; invalid for one that was never asked
    QDateTime notBefore = {}; ///< UTC; the server wants no request before it
    int refusals = 0;         ///< one after the other
    bool hasAnswered = false; ///< the last request brought reports, or that there are no newer ones
    QString outcome = {};     ///< of the last request, in a few words
    bool isStored = false;    ///< the stored reports are its own
    QUrl file = {};           ///< which they came from, and what the server said of it
    FileMarks marks = {};
};

/// The source's note; without one that of a source that was never asked.
SourceNote noteOf(const Session& session, const QUrl& address);
/// Whose reports the stored ones are; nothing where that is not known.
std::optional<SourceNote> storedNote(const Session& session);
void keepNote(const Session& session, const SourceNote& note);
/// The reports that are stored now come from there: no other note may spare a request any more. Belongs into
/// the transaction that stores them.
void keepStoredNote(const Session& session, SourceNote note);

} // namespace morvane
