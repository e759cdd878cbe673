#include "simulator/kept_room.h"

#include "core/folder_room.h"
#include "core/numbers.h"
#include "ground/ground_sets.h"
#include "night/night_sets.h"
#include "sets/set_removal.h"
#include "sets/undo_step.h"
#include "simulator/backup_files.h"
#include "simulator/backups.h"
#include "simulator/stock_requests.h"
#include "sky/sky_sets.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace morvane {

namespace {

void addRoom(Session& session, const FilePath& folder, KeptItem& item) {
    const FolderRoom room = roomBelow(session.files, folder);
    item.count = item.all = room.files;
    item.bytes = room.bytes;
}

template <class Kind>
KeptItem setsOf(Session& session, KeptKind kind) {
    KeptItem item{kind, Kind::facts().word + u" sets"_s};
    refreshSets<Kind>(session);
    const auto& sets = loadedSets<Kind>(session);
    item.count = static_cast<std::int64_t>(activatedSets(sets).size());
    item.all = sets.Count();
    item.bytes = roomBelow(session.files, session.AppPath / Kind::facts().folder).bytes;
    item.isRemovable = !setsToEmpty<Kind>(session).isEmpty();
    return item;
}

/// A row without a folder of its own can go, too.
KeptItem backupOf(Session& session, const clsBackup& backup) {
    KeptItem item{KeptKind::backup, backup.BackupName, dayText(backup.BackupDateTime)};
    item.isRemovable = true;
    if (!FilePath::isChildName(backup.BackupName)) return item;
    addRoom(session, backupFolder(session, backup.BackupName), item);
    if (!isBackupComplete(session, backup.BackupName)) item.remark += u", partial"_s;
    return item;
}

KeptItem folderOf(Session& session, KeptKind kind, const QString& name, const FilePath& folder) {
    KeptItem item{kind, name};
    addRoom(session, folder, item);
    return item;
}

KeptItem undoOf(Session& session) {
    KeptItem item = folderOf(session, KeptKind::undo, u"Undo"_s, undoFolder(session));
    item.isRemovable = item.count > 0;
    return item;
}

/// Those of the Dutch textures never go: see cleanTempBitmaps.
KeptItem passingOf(Session& session) {
    const FilePath folder = session.AppPath / u"TempBitmaps";
    KeptItem item = folderOf(session, KeptKind::passing, u"Intermediate images"_s, folder);
    item.isRemovable = item.count > roomBelow(session.files, folder / u"Dutch").files;
    return item;
}

KeptItem baseImagesOf(Session& session) {
    KeptItem item = folderOf(session, KeptKind::baseImages, u"Base images"_s, session.AppPath / u"Resources");
    // The small ones beside them are no base images, but take their room.
    item.count -= roomBelow(session.files, session.AppPath / u"Resources\\Small Pictures").files;
    item.remark = hasKeptStock(session) ? u"of your simulator"_s : u"as delivered"_s;
    return item;
}

/// What lies in the folder of the backups and belongs to none of the items.
KeptItem othersOf(Session& session, const std::vector<KeptItem>& items) {
    KeptItem item =
        folderOf(session, KeptKind::others, u"Other things put aside"_s, session.AppPath / u"Backup");
    for (const KeptItem& known : items)
        if (known.kind == KeptKind::backup || known.kind == KeptKind::originals ||
            known.kind == KeptKind::undo) {
            item.count -= known.count;
            item.bytes -= known.bytes;
        }
    item.all = item.count;
    return item;
}

} // namespace

QString KeptItem::countWords() const {
    if (all == 0) return u"none"_s;
    const bool isOfSets =
        kind == KeptKind::groundSets || kind == KeptKind::skySets || kind == KeptKind::nightSets;
    if (!isOfSets) return countText(count, u"file"_s);
    return (count == all ? QString() : countText(count) + u" of "_s) + countText(all, u"set"_s);
}

std::int64_t KeptRoom::bytes() const {
    return std::accumulate(items.begin(), items.end(), std::int64_t(0),
                           [](std::int64_t sum, const KeptItem& item) { return sum + item.bytes; });
}

QString KeptRoom::summary() const {
    const QString kept = u"Morvane keeps "_s + keptText(bytes());
    return freeBytes < 0 ? kept : kept + u"; "_s + keptText(freeBytes) + u" of the disk are free"_s;
}

QString keptText(std::int64_t bytes) {
    return bytes == 0 ? u"0 MB"_s : spaceText(bytes);
}

template <class Kind>
QStringList setsToEmpty(Session& session) {
    QStringList names;
    for (const auto& set : loadedSets<Kind>(session))
        if (activationOf(*set) == flagText(true) && !set->Installed) names << nameOf(*set);
    return changeableNames(names);
}
template QStringList setsToEmpty<GroundKind>(Session& session);
template QStringList setsToEmpty<SkyKind>(Session& session);
template QStringList setsToEmpty<NightKind>(Session& session);

KeptRoom keptRoom(Session& session) {
    const FilePath& home = session.AppPath;
    KeptRoom room;
    auto& items = room.items;
    items = {setsOf<GroundKind>(session, KeptKind::groundSets), setsOf<SkyKind>(session, KeptKind::skySets),
             setsOf<NightKind>(session, KeptKind::nightSets)};
    clsBackups::reload(session);
    for (const auto& backup : *session.rows<clsBackups>())
        items.push_back(backupOf(session, *backup));
    items.push_back(folderOf(session, KeptKind::originals, u"Your originals"_s, home / u"Backup\\Originals"));
    items.push_back(undoOf(session));
    const KeptItem others = othersOf(session, items);
    items.push_back(baseImagesOf(session));
    const KeptItem moved =
        folderOf(session, KeptKind::movedImages, u"Delivered base images"_s, home / u"Resources kept");
    std::ranges::copy_if(std::array{moved, passingOf(session), others}, std::back_inserter(items),
                         [](const KeptItem& item) { return item.count > 0; });
    room.freeBytes = session.files.freeSpace(home);
    return room;
}

} // namespace morvane
