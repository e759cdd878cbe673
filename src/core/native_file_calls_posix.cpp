#include "core/native_file_calls.h"

namespace morvane {

std::error_code renameInOneStep(const std::filesystem::path& source, const std::filesystem::path& target) {
    std::error_code error;
    std::filesystem::rename(source, target, error);
    return error;
}

std::error_code removeEmptyFolder(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::remove(folder, error);
    return error;
}

} // namespace morvane
