#include "core/file_fingerprint.h"

#include "core/native_check_sum.h"

namespace morvane {

FileFingerprint fingerprintOf(const QByteArray& contents) {
    return {contents.size(), QString::fromLatin1(sha1Of(contents).toHex())};
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
