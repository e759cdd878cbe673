#pragma once

#include "core/file_system.h"
#include "core/native_check_sum.h"

#include <cstdint>
#include <optional>

namespace morvane {

/// SHA-1 of a file's bytes; nothing but zeros where none is known.
struct CheckSum {
    Sha1 bytes{};

    bool operator==(const CheckSum&) const = default;
    /// 40 small letters; none where no sum is known.
    QByteArray hex() const;
    QString text() const { return QString::fromLatin1(hex()); }
    /// No sum from a text that is none.
    static CheckSum ofHex(const QByteArray& text);
};

/// What tells one file's contents from another's.
struct FileFingerprint {
    std::int64_t size = 0;
    CheckSum checksum = {};

    bool operator==(const FileFingerprint&) const = default;
};

FileFingerprint fingerprintOf(const QByteArray& contents);
/// Reads the whole file.
FileFingerprint fingerprintOf(FileSystem& files, const FilePath& file);

/// A file that was read ahead of what is to be done with it.
struct SeenFile {
    FileFingerprint print;
    FileStamp stamp; ///< from before it was read
};
/// Nothing where none is.
std::optional<SeenFile> seeFile(FileSystem& files, const FilePath& file);
/// False once somebody has written to it, put another in its place or taken it away.
bool isAsSeen(FileSystem& files, const FilePath& file, const std::optional<SeenFile>& seen);
/// A write at that moment or later shows in the time of a file which has this one now. Both in nanoseconds
/// since 1970. Clocks of files turn every few milliseconds, those of drives without parts of a second every
/// other second.
bool showsWritesFrom(std::int64_t moment, std::int64_t time);
std::int64_t momentNow();

} // namespace morvane
