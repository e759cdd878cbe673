#pragma once

#include "core/file_fingerprint.h"
#include "core/session.h"

#include <QMultiHash>
#include <array>
#include <optional>

namespace morvane {

/// "\Backup\<name>".
FilePath backupFolder(const Session& session, const QString& name);

/// Textures of the simulator, and where they lie in a backup.
struct BackupPlace {
    FilePath simulator, backup;
};
/// "Scenery\World\Texture", in the backup "Texture", and the add-on's "Scenery\UTEurLC\Texture", "UTEurLC".
std::array<BackupPlace, 2> backupPlaces(const Session& session, const QString& name);

/// The list of a backup, "backup.lst" in its folder: a line a file with size, SHA-1 and path below the
/// backup, separated by tabs. In the place of the size stands "missing" for a file that the simulator had and
/// the backup has not. A backup without a list was cut short. That of the first run says "first run" from its
/// beginning until its list is written, which tells the next start what to go on with.
///
/// "ours.lst" beside it, written first, has such a line for every file of ours that stands in the simulator:
/// put back, that is ours again and not taken for the pilot's.
class BackupList {
public:
    /// As found in the folder. Raises when there is one and it cannot be read.
    static BackupList read(Session& session, const QString& name);
    /// Of the contents of its two files, nothing for one that is not there.
    static BackupList of(const std::optional<QByteArray>& list, const std::optional<QByteArray>& ours);
    /// As `read`; one that cannot be read counts as none.
    static BackupList readIfReadable(Session& session, const QString& name);
    /// Raises when it cannot be written; the list of before then stays.
    void write(Session& session, const QString& name) const;
    static void markFirstRun(Session& session, const QString& name);
    /// Says, on the disk, that the backup is a partial one: before its files are removed. A full disk is no
    /// hindrance.
    static void markPartial(Session& session, const QString& name);

    void add(const FilePath& file, const FileFingerprint& print);
    /// `name` is what can be said of it: a name may be none that the list could hold.
    void addMissing(const FilePath& folder, const QString& name);

    void addOurs(const FilePath& file, const FileFingerprint& print);
    /// Nothing where there are none. Raises when they cannot be written.
    void writeOurs(Session& session, const QString& name) const;

    bool isThere() const { return isThere_; }
    bool isOfFirstRun() const { return isOfFirstRun_; }
    bool isComplete() const { return isThere_ && !isOfFirstRun_ && missing_ == 0; }
    /// The file's contents are not those that were backed up. Without regard to case, as a backup may have
    /// lain on another disk meanwhile; of two names that differ in nothing else each may be either.
    bool isDamaged(const FilePath& file, const FileFingerprint& print) const;
    /// The file stood in the simulator as one of ours, not as the pilot's.
    bool isOurs(const FilePath& file, const FileFingerprint& print) const;

private:
    void parse(const QString& text);

    QMultiHash<QString, FileFingerprint> files_, ours_;
    QString text_, oursText_; ///< of the lines that were added
    int missing_ = 0;
    bool isThere_ = false, isOfFirstRun_ = false;
};

} // namespace morvane
