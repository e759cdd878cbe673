#pragma once

#include "core/file_fingerprint.h"

#include <QHash>
#include <QMultiHash>
#include <QSet>
#include <QStringList>
#include <cstdint>
#include <vector>

namespace morvane {

/// A simulator file that was kept before the program replaced it for the first time.
struct KeptOriginal {
    QString path; ///< below the simulator's folder, names joined by "\"
    std::int64_t size = 0;
    QString checksum; ///< SHA-1, hexadecimal
};

/// One replacement of a simulator file by one of ours.
struct FileCopy {
    FilePath source;
    FilePath target; ///< joined behind the simulator's folder
};

/// The pilot's own files: each is kept under "Backup\Originals" before a copy of ours replaces it for the
/// first time, and can be put back. A list beside them ("originals.lst") holds the size and check sum of
/// every kept file and of every file that we put there, so that a file of ours is never taken for the
/// pilot's.
///
/// The list is a journal, one line a fact, written before the fact can be undone by a kill:
/// "kept" or "ours", size, check sum, path, separated by tabs; the latest facts count.
class Originals {
public:
    Originals(FileSystem& files, const FilePath& simulator, const FilePath& appPath);

    /// Notes, in one write, what is about to be put where. Call it before the first of those copies.
    void announce(const std::vector<FileCopy>& copies);
    /// Call it when all announced copies are done: from then on only the last one of each path counts, and
    /// the list is written anew so that it does not grow with every flight.
    void settle();
    /// Keeps the target's present contents when they are the pilot's own and not kept yet. A target that does
    /// not exist needs no keeping. Raises when the file cannot be kept: the caller must not replace it then.
    void keep(const FilePath& target);

    std::vector<KeptOriginal> list() const; ///< sorted by path
    /// Puts every kept file back, read-only targets included, and returns how many. One that cannot be put
    /// back does not keep the others from it; the first such failure is raised at the end.
    int restore();

private:
    void load();
    void putBack(const KeptOriginal& original);
    static QString line(const char* fact, const FileFingerprint& print, const QString& path);
    void makeFolderOnce(const FilePath& folder);
    bool isOurs(const QString& key, const FilePath& target);

    FileSystem& files_;
    FilePath simulator_, folder_, listFile_;
    QHash<QString, KeptOriginal> kept_;
    QMultiHash<QString, FileFingerprint>
        ours_;                      ///< by key; a kill leaves it open which of several stands there
    QHash<QString, QString> paths_; ///< spelling of each key
    QHash<QString, FileFingerprint> announced_;
    QSet<QString> made_; ///< folders that the kept files lie in
};

} // namespace morvane
