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

std::optional<FileStamp> FileSystem::stampIfThere(const FilePath& path) {
    try {
        return stamp(path);
    } catch (const Error& error) {
        if (error.code() == ErrorCode::fileNotFound) return std::nullopt;
        throw;
    }
}

std::vector<FilePath> filesIn(FileSystem& files, const FilePath& folder, const QString& mask) {
    const FilePath inside = folder.resolved();
    std::vector<FilePath> found;
    for (const QString& name : files.list(inside, mask))
        if (FilePath::isChildName(name)) found.push_back(inside.exactChild(name));
    return found;
}

} // namespace morvane
