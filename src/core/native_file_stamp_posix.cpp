#include "core/error.h"
#include "core/file_system.h"

#include <QFile>
#include <cerrno>
#include <sys/stat.h>

namespace morvane {

FileStamp NativeFileSystem::stamp(const FilePath& path) {
    struct stat known {};
    if (::stat(QFile::encodeName(path.native()).constData(), &known) != 0) {
        const bool isMissing = errno == ENOENT || errno == ENOTDIR;
        throw Error(isMissing ? ErrorCode::fileNotFound : ErrorCode::permissionDenied, path.text());
    }
    constexpr std::int64_t nanoseconds = 1'000'000'000;
    constexpr unsigned permissionBits = 07777;
    return {known.st_size, known.st_mtim.tv_sec * nanoseconds + known.st_mtim.tv_nsec, known.st_ino,
            known.st_dev, known.st_mode & permissionBits};
}

} // namespace morvane
