#pragma once

#include "core/file_path.h"
#include "core/user_interface.h"

#include <QDateTime>
#include <cstdint>
#include <functional>
#include <optional>

namespace morvane {

class Clock;
class FileSystem;

inline const QString logFileName = u"Morvane.log"_s;

/// The log's files below the install folder, the newest first, whether they are there or not.
std::vector<FilePath> logFiles(const FilePath& installFolder);

/// What the program told and did, a line each, for the report that a pilot sends when something went wrong.
/// Until it is opened, and where its file cannot be written, it takes everything without a word: nothing ever
/// hangs on it.
class ProgramLog : public UserListener {
public:
    struct Place {
        FileSystem& files;
        const Clock& clock;
        FilePath folder;
        QString program; ///< "morvane-cli"
    };
    /// `clean` makes of a text what others may read. Nothing is opened where no store lies in the folder.
    void open(const Place& place, const std::function<QString(const QString&)>& clean);
    bool isOpen() const { return place_.has_value(); }

    /// A line with the time and the process. Several programs may write into one file.
    void note(const QString& what, const QString& text);
    void hear(const QString& kind, const QString& title, const QString& text) override;

private:
    QByteArray lineOf(const QDateTime& now, const QString& what, const QString& text) const;
    void write(const QByteArray& line);
    void roll(std::int64_t coming);

    std::optional<Place> place_;
    std::function<QString(const QString&)> clean_;
    QDateTime failedAt_; ///< the last line, which may be cut; a disk without room is not tried at every one
    bool isNoting_ = false;
};

} // namespace morvane
