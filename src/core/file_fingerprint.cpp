#include "core/file_fingerprint.h"

#include <QCryptographicHash>

namespace morvane {

FileFingerprint fingerprintOf(const QByteArray& contents) {
    const QByteArray sum = QCryptographicHash::hash(contents, QCryptographicHash::Sha1).toHex();
    return {contents.size(), QString::fromLatin1(sum)};
}

FileFingerprint fingerprintOf(FileSystem& files, const FilePath& file) {
    return fingerprintOf(files.read(file));
}

std::optional<SeenFile> seeFile(FileSystem& files, const FilePath& file) {
    const auto stamp = files.stampIfThere(file);
    const auto contents = stamp ? files.readIfThere(file) : std::nullopt;
    return contents ? std::optional(SeenFile{fingerprintOf(*contents), *stamp}) : std::nullopt;
}

bool isAsSeen(FileSystem& files, const FilePath& file, const std::optional<SeenFile>& seen) {
    return files.stampIfThere(file) == (seen ? std::optional(seen->stamp) : std::nullopt);
}

} // namespace morvane
