#include "sheets/small_base_pictures.h"

#include "core/attempts.h"
#include "core/file_fingerprint.h"
#include "core/literals.h"
#include "imaging/picture_reader.h"
#include "imaging/texture_codec.h"

#include <utility>

namespace morvane {

SmallBasePictures::SmallBasePictures(FileSystem& files, const FilePath& appPath)
    : files_(files), place_(appPath / u"Resources\\Small Pictures") {}

void SmallBasePictures::open(const FilePath& folder) {
    if (folders_.contains(folder.text())) return;
    Folder& opened = folders_[folder.text()];
    opened.file = place_.child(folder.fileName() + u".pictures"_s);
    attempt([&] {
        if (const auto bytes = files_.readIfThere(opened.file))
            opened.kept = readSmallPictureFile(*bytes).value_or(KeptSmallPictures());
    });
}

SmallPicture SmallBasePictures::of(const FilePath& base) {
    const QString folder = base.parent().text(), name = base.fileName();
    const std::int64_t moment = momentNow();
    const FileStamp stamp = files_.stamp(base);
    QByteArray texture;
    QSize whole;
    {
        const std::lock_guard lock(mutex_);
        const KeptSmallPictures& kept = folders_.at(folder).kept;
        const auto known = kept.constFind(name);
        if (known != kept.cend() && known->isOf(stamp)) {
            texture = known->texture;
            whole = known->whole;
        }
    }
    SmallPicture small;
    if (!texture.isEmpty() && attempt([&] { small = {readPicture(texture), whole}; })) return small;
    small = loadSmallPicture(files_, base, side);
    // A write in this very moment would not show in the file's time.
    if (!small.isLevel && showsWritesFrom(moment, stamp.time)) keep(folder, stamp, name, small);
    return small;
}

void SmallBasePictures::keep(const QString& folder, const FileStamp& stamp, const QString& name,
                             const SmallPicture& small) {
    const QByteArray texture = compressTexture(small.picture);
    if (texture.isEmpty()) return;
    const std::lock_guard lock(mutex_);
    Folder& opened = folders_.at(folder);
    opened.kept.insert(name, {stamp.size, stamp.time, stamp.number, small.whole, texture});
    opened.hasNew = true;
}

void SmallBasePictures::keep() {
    const std::lock_guard lock(mutex_);
    for (auto& each : folders_) {
        Folder& folder = each.second;
        if (!std::exchange(folder.hasNew, false)) continue;
        attempt([&] {
            files_.makeFolder(place_);
            files_.write(folder.file, smallPictureFile(folder.kept));
        });
    }
}

} // namespace morvane
