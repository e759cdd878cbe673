#include "core/native_file_calls.h"

#include <cerrno>
#include <unistd.h>

namespace morvane {

std::error_code renameInOneStep(const std::filesystem::path& source, const std::filesystem::path& target) {
    std::error_code error;
    std::filesystem::rename(source, target, error);
    return error;
}

std::error_code removeFile(const std::filesystem::path& file) {
    return ::unlink(file.c_str()) == 0 ? std::error_code() : std::error_code(errno, std::system_category());
}

std::optional<bool> isHeldByOther(const std::filesystem::path&) {
    return std::nullopt;
}

std::error_code removeEmptyFolder(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::remove(folder, error);
    return error;
}

} // namespace morvane
