#include "core/file_system.h"

#include "core/error.h"

namespace morvane {

std::optional<QByteArray> FileSystem::readIfThere(const FilePath& file) {
    try {
        return read(file);
    } catch (const Error& error) {
        if (error.code() == ErrorCode::fileNotFound) return std::nullopt;
        throw;
    }
}

} // namespace morvane
