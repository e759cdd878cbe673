#pragma once

#include <filesystem>
#include <optional>
#include <system_error>

namespace morvane {

// Where the library's own calls do something else on one of the systems, or tell too little.

/// Replaces a file of that name; from drive to drive it fails.
std::error_code renameInOneStep(const std::filesystem::path& source, const std::filesystem::path& target);

/// Whether it may be written to or not, as the folder alone decides.
std::error_code removeFile(const std::filesystem::path& file);

/// Whether another program has it open and keeps all others from replacing it; nothing on a system where no
/// program can.
std::optional<bool> isHeldByOther(const std::filesystem::path& file);

/// Refuses a folder that is not empty, and what is no folder.
std::error_code removeEmptyFolder(const std::filesystem::path& folder);

} // namespace morvane
