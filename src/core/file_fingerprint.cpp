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

} // namespace morvane
