#pragma once

#include "core/file_system.h"

#include <QHash>
#include <QSize>
#include <optional>

namespace morvane {

/// A small picture of a base texture, beside what its file was when it was made.
struct KeptSmallPicture {
    std::int64_t size = 0, time = 0; ///< as FileStamp, as the number
    std::uint64_t number = 0;
    QSize whole;        ///< sides of the base texture
    QByteArray texture; ///< as compressTexture makes it

    bool isOf(const FileStamp& stamp) const {
        return size == stamp.size && time == stamp.time && number == stamp.number;
    }
};
using KeptSmallPictures = QHash<QString, KeptSmallPicture>; ///< by the names of the base textures

QByteArray smallPictureFile(const KeptSmallPictures& pictures);
/// Nothing for bytes that are damaged or none of ours. Takes no more memory than a few times the bytes.
std::optional<KeptSmallPictures> readSmallPictureFile(const QByteArray& bytes);

} // namespace morvane
