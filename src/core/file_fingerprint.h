#pragma once

#include "core/file_system.h"

#include <cstdint>

namespace morvane {

/// What tells one file's contents from another's.
struct FileFingerprint {
    std::int64_t size = 0;
    QString checksum; ///< SHA-1, hexadecimal

    bool operator==(const FileFingerprint&) const = default;
};

FileFingerprint fingerprintOf(const QByteArray& contents);
/// Reads the whole file.
FileFingerprint fingerprintOf(FileSystem& files, const FilePath& file);

} // namespace morvane
