#include "core/error.h"
#include "core/file_system.h"

#include <windows.h>

namespace morvane {

namespace {

std::uint64_t joined(DWORD high, DWORD low) {
    return (std::uint64_t{high} << 32) | low;
}

std::int64_t nanosecondsSince1970(const FILETIME& time) {
    constexpr std::int64_t from1601To1970 = 116'444'736'000'000'000; // in the system's steps of 100
    return (static_cast<std::int64_t>(joined(time.dwHighDateTime, time.dwLowDateTime)) - from1601To1970) *
           100;
}

ErrorCode codeOfLastError() {
    const DWORD error = GetLastError();
    const bool isMissing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
    return isMissing ? ErrorCode::fileNotFound : ErrorCode::permissionDenied;
}

} // namespace

FileStamp NativeFileSystem::stamp(const FilePath& path) {
    const std::wstring name = path.native().toStdWString();
    const HANDLE handle = CreateFileW(name.c_str(), FILE_READ_ATTRIBUTES,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr); // folders, too
    if (handle == INVALID_HANDLE_VALUE) throw Error(codeOfLastError(), path.text());
    BY_HANDLE_FILE_INFORMATION known{};
    const bool isKnown = GetFileInformationByHandle(handle, &known);
    CloseHandle(handle);
    if (!isKnown) throw Error(ErrorCode::ioFailure, path.text());
    const bool isReadOnly = known.dwFileAttributes & FILE_ATTRIBUTE_READONLY;
    return {static_cast<std::int64_t>(joined(known.nFileSizeHigh, known.nFileSizeLow)),
            nanosecondsSince1970(known.ftLastWriteTime), joined(known.nFileIndexHigh, known.nFileIndexLow),
            known.dwVolumeSerialNumber, isReadOnly ? 0444U : 0666U};
}

} // namespace morvane
