#include "core/safe_copy.h"

#include "core/error.h"

namespace morvane {

namespace {

/// The failure on its way to the user matters; a part that cannot be removed now goes with the next install.
void removeQuietly(FileSystem& files, const FilePath& file) {
    try {
        files.remove(file);
    } catch (const Error&) {
    }
}

} // namespace

void replaceFile(FileSystem& files, const FilePath& source, const FilePath& target) {
    const FilePath placed = target.resolved(), part = partOf(placed);
    const auto old = files.isLink(placed) ? std::nullopt : files.stampIfThere(placed);
    if (old && old->isReadOnly()) throw Error(ErrorCode::permissionDenied, placed.text());
    try {
        files.copyContents(source, part);
        if (old) files.setMode(part, old->mode);
        files.rename(part, placed);
    } catch (const Error&) {
        removeQuietly(files, part);
        throw;
    }
}

void removePartialCopies(FileSystem& files, const FilePath& folder) {
    for (const FilePath& part : filesIn(files, folder, u"*"_s + partialCopySuffix))
        files.remove(part);
}

} // namespace morvane
