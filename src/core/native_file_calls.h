#pragma once

#include <QFile>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <system_error>

namespace morvane {

// Where the library's own calls do something else on one of the systems, or tell too little.

/// Replaces a file of that name; from drive to drive it fails.
std::error_code renameInOneStep(const std::filesystem::path& source, const std::filesystem::path& target);

/// The file's bytes in as few calls to the system as can be. Nothing where they cannot be had so: read in
/// another way, it tells why.
std::optional<QByteArray> readAll(const QString& file);

/// Copies a plain file's contents without reading them, where the system and both drives can do that: some
/// only note that two files share their blocks. False where it cannot be done so, or not to the end: copied
/// in another way, it tells why.
bool copyInsideSystem(const QString& source, const QString& target);

/// Opens it so that what one call writes comes to its end in one piece, whatever other programs append there
/// at the same time; makes it when missing. False as `QFile::open`.
bool openToAppend(QFile& file);

/// Whether it may be written to or not, as the folder alone decides.
std::error_code removeFile(const std::filesystem::path& file);

/// Whether another program has it open and keeps all others from replacing it; nothing on a system where no
/// program can.
std::optional<bool> isHeldByOther(const std::filesystem::path& file);

/// What stands in the file, and of a folder its names, is on the disk. Of what cannot be flushed one by one
/// on this system nothing is told: Windows brings names along with the file.
std::error_code flushToDisk(const std::filesystem::path& path);

/// All that was written on the drive of that folder so far is on the disk; nothing where the system has no
/// such call.
std::optional<std::error_code> flushDrive(const std::filesystem::path& folder);

/// The drive of that folder is another machine's; false where the system does not tell.
bool isNetworkDrive(const std::filesystem::path& folder);

/// Refuses a folder that is not empty, and what is no folder.
std::error_code removeEmptyFolder(const std::filesystem::path& folder);

} // namespace morvane
