#include "core/native_file_calls.h"

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

// The library's own tries to remove a file next and tells of that.
std::error_code removeEmptyFolder(const std::filesystem::path& folder) {
    return lastErrorUnless(RemoveDirectoryW(folder.c_str()));
}

} // namespace morvane
