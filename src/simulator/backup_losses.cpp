#include "simulator/backup_losses.h"

#include "core/attempts.h"
#include "core/safe_copy.h"
#include "sets/simulator_copy.h"
#include "simulator/backup_restore.h"
#include "simulator/backups.h"

#include <algorithm>
#include <iterator>

namespace morvane {

namespace {

/// What no backup brings: where else it may be nobody knows, and what a link leads to is not looked at.
QStringList strangersIn(FileSystem& files, const FilePath& folder, const QStringList& masks,
                        const QStringList& folders) {
    QStringList names;
    if (files.isLink(folder)) names << folder.fileName();
    const auto isKnown = [&](const QString& name) {
        return FilePath::isChildName(name) &&
               std::ranges::any_of(masks, [&](const QString& mask) { return matchesMask(name, mask); });
    };
    for (const QString& name : files.list(folder, u"*"_s))
        if (!isKnown(name)) names << name;
    for (const QString& name : files.listFolders(folder))
        if (!folders.contains(name, Qt::CaseInsensitive)) names << name;
    for (int left = files.namelessFiles(folder, {}); left > 0; --left)
        names << u"?"_s;
    return names;
}

/// Not where it is the same file, reached by a link or by the row of another name: that would go with it.
bool isCopyOf(const SeenFile& texture, const std::optional<SeenFile>& seen) {
    return seen && seen->print == texture.print && !seen->stamp.isSameFile(texture.stamp);
}

} // namespace

BackupLosses::BackupLosses(Session& session, const QString& name)
    : session_(session), name_(name), list_(BackupList::read(session, name)),
      originals_(originalsOf(session)) {
    addOthers();
}

void BackupLosses::addOthers() {
    for (const auto& backup : *session_.rows<clsBackups>()) {
        const QString& other = backup->BackupName;
        if (other == name_ || !FilePath::isChildName(other)) continue;
        BackupList list = BackupList::readIfReadable(session_, other);
        if (list.isComplete()) others_.push_back({backupFolder(session_, other), std::move(list)});
    }
}

std::optional<QStringList> BackupLosses::find(const Job& job) {
    std::vector<FileCopy> textures;
    for (const BackupPlace& place : backupPlaces(session_, name_))
        addTextures(session_, place, textures);
    QStringList lost = strangers();
    CheckAhead files(textures);
    const bool isWhole = CopyWalk(session_, textures, 1).round(&job, [&](const FileCopy& texture) {
        const std::optional<CheckedFile> file = files.next();
        if (!file || !isElsewhere(texture, *file)) lost << texture.source.fileName();
    });
    return isWhole ? std::optional(lost) : std::nullopt;
}

QStringList BackupLosses::strangers() const {
    const QString part = u'*' + partialCopySuffix;
    QStringList places, lost;
    for (const BackupPlace& place : backupPlaces(session_, name_)) {
        places << place.backup.fileName();
        lost += strangersIn(session_.files, place.backup, {u"*.bmp"_s, part}, {});
    }
    return lost + strangersIn(session_.files, backupFolder(session_, name_),
                              {u"backup.lst"_s, u"ours.lst"_s, part}, places);
}

/// What stands in the simulator as ours goes with the next restore, whatever its bytes.
bool BackupLosses::isElsewhere(const FileCopy& texture, const CheckedFile& file) {
    if (list_.isOurs(texture.source, file.print)) return true;
    const SeenFile own{file.print, session_.files.stamp(texture.source)};
    const OriginalRecord& record = originals_.recordOf(texture.target);
    if (isCopyOf(own, file.there) && !record.isOurs(own.print)) return true;
    return isAmongOriginals(record, own) || std::ranges::any_of(others_, [&](const OtherBackup& other) {
               return isIn(other, texture.source, own);
           });
}

bool BackupLosses::isAmongOriginals(const OriginalRecord& record, const SeenFile& texture) const {
    const FilePath folder = session_.AppPath / u"Backup\\Originals";
    return std::ranges::any_of(record.kept, [&](const OriginalFact& kept) {
        bool isSound = false;
        if (kept.print == texture.print)
            attempt([&] { isSound = isCopyOf(texture, seeFile(session_.files, folder / kept.where)); });
        return isSound;
    });
}

bool BackupLosses::isIn(const OtherBackup& other, const FilePath& place, const SeenFile& texture) const {
    bool isThere = false;
    attempt([&] {
        const FilePath twin = (other.folder / place.parent().fileName()).exactChild(place.fileName());
        isThere = isCopyOf(texture, seeFile(session_.files, twin)) &&
                  !other.list.isDamaged(twin, texture.print) && !other.list.isOurs(twin, texture.print);
    });
    return isThere;
}

} // namespace morvane
