#include "core/safe_copy.h"

#include "core/attempts.h"

#include <algorithm>

namespace morvane {

namespace {

/// A part that does not come to its end goes. The failure on its way to the user matters; a part that cannot
/// be removed now goes with the next install.
template <class Step>
void onPart(FileSystem& files, const FilePath& part, Step step) {
    try {
        step();
    } catch (const Error&) {
        attempt([&] { files.remove(part); });
        throw;
    }
}

} // namespace

void writePart(FileSystem& files, const FilePath& source, const FilePath& place) {
    const FilePath part = partOf(place);
    const auto old = files.isLink(place) ? std::nullopt : files.stampIfThere(place);
    if (old && old->isReadOnly()) throw Error(ErrorCode::permissionDenied, place.text());
    onPart(files, part, [&] {
        files.copyContents(source, part);
        if (old) files.setMode(part, old->mode);
    });
}

void putPart(FileSystem& files, const FilePath& place) {
    const FilePath part = partOf(place);
    onPart(files, part, [&] { files.rename(part, place); });
}

void replaceFile(FileSystem& files, const FilePath& source, const FilePath& target) {
    const FilePath place = target.resolved();
    writePart(files, source, place);
    putPart(files, place);
}

void writeDurably(FileSystem& files, const FilePath& file, const QByteArray& contents) {
    const FilePath place = file.resolved(), next = place.withEnding(u".next"_s + partialCopySuffix);
    onPart(files, next, [&] {
        files.write(next, contents);
        files.makeDurable({next});
        files.rename(next, place);
    });
}

bool isRemnant(const QByteArray& contents, const QByteArray& whole) {
    const auto isLeft = [](char byte, char own) { return byte == own || byte == 0; };
    return contents.size() <= whole.size() &&
           std::equal(contents.begin(), contents.end(), whole.begin(), isLeft);
}

void removePartialCopies(FileSystem& files, const FilePath& folder) {
    for (const FilePath& part : filesIn(files, folder, u"*"_s + partialCopySuffix))
        files.remove(part);
}

} // namespace morvane
