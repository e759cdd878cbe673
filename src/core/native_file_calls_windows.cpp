#include "core/native_file_calls.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace morvane {

namespace {

std::error_code lastErrorUnless(bool isDone) {
    return isDone ? std::error_code()
                  : std::error_code(static_cast<int>(GetLastError()), std::system_category());
}

} // namespace

// The library's rename may copy from drive to drive, which is not one step, and says of most failures no more
// than that there was one.
std::error_code renameInOneStep(const std::filesystem::path& source, const std::filesystem::path& target) {
    return lastErrorUnless(MoveFileExW(source.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING));
}

std::optional<QByteArray> readAll(const QString&) {
    return std::nullopt;
}

/// The system's own copy takes times and attributes along, which a copy of the contents must not have.
bool copyInsideSystem(const QString&, const QString&) {
    return false;
}

namespace {

/// Of a byte that no file reaches; it goes with the handle.
void lockForWriters(HANDLE file) {
    OVERLAPPED place{};
    place.OffsetHigh = 1U << 30;
    LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK, 0, 1, 0, &place);
}

} // namespace

/// The toolkit goes to the end and then writes, which another program may come between; so does Wine.
bool openToAppend(QFile& file) {
    constexpr DWORD everyShare = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    constexpr QIODevice::OpenMode mode = QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered;
    const std::filesystem::path path = file.fileName().toStdU16String();
    const HANDLE handle = CreateFileW(path.c_str(), GENERIC_READ | FILE_APPEND_DATA, everyShare, nullptr,
                                      OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return file.open(mode);
    lockForWriters(handle);
    const int number = _open_osfhandle(reinterpret_cast<intptr_t>(handle), _O_APPEND | _O_BINARY);
    return file.open(number, mode, QFileDevice::AutoCloseHandle);
}

std::error_code removeFile(const std::filesystem::path& file) {
    if (DeleteFileW(file.c_str())) return {};
    const std::error_code error = lastErrorUnless(false);
    const DWORD attributes = GetFileAttributesW(file.c_str());
    const bool isReadOnly = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY);
    if (!isReadOnly || !SetFileAttributesW(file.c_str(), attributes & ~FILE_ATTRIBUTE_READONLY)) return error;
    if (DeleteFileW(file.c_str())) return {};
    const std::error_code second = lastErrorUnless(false);
    SetFileAttributesW(file.c_str(), attributes);
    return second;
}

/// A rename's own error does not tell: it is the same as that of a lack of rights.
std::optional<bool> isHeldByOther(const std::filesystem::path& file) {
    constexpr DWORD everyShare = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE handle =
        CreateFileW(file.c_str(), GENERIC_READ | DELETE, everyShare, nullptr, OPEN_EXISTING, 0, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return GetLastError() == ERROR_SHARING_VIOLATION;
    CloseHandle(handle);
    return false;
}

namespace {

std::error_code flushWritable(const std::filesystem::path& path) {
    constexpr DWORD everyShare = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE handle =
        CreateFileW(path.c_str(), GENERIC_WRITE, everyShare, nullptr, OPEN_EXISTING, 0, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return lastErrorUnless(false);
    const std::error_code error = lastErrorUnless(FlushFileBuffers(handle));
    CloseHandle(handle);
    return error;
}

} // namespace

/// Only what may be written to can be flushed, so the mark goes for that moment.
std::error_code flushToDisk(const std::filesystem::path& path) {
    if (std::filesystem::is_directory(path)) return {};
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_READONLY))
        return flushWritable(path);
    SetFileAttributesW(path.c_str(), attributes & ~FILE_ATTRIBUTE_READONLY);
    const std::error_code error = flushWritable(path);
    SetFileAttributesW(path.c_str(), attributes);
    return error;
}

/// Only an administrator may do that there.
std::optional<std::error_code> flushDrive(const std::filesystem::path&) {
    return std::nullopt;
}

// The library's own tries to remove a file next and tells of that.
bool isNetworkDrive(const std::filesystem::path& folder) {
    wchar_t drive[MAX_PATH + 1] = {};
    return GetVolumePathNameW(folder.c_str(), drive, MAX_PATH) && GetDriveTypeW(drive) == DRIVE_REMOTE;
}

std::error_code removeEmptyFolder(const std::filesystem::path& folder) {
    return lastErrorUnless(RemoveDirectoryW(folder.c_str()));
}

} // namespace morvane
