#pragma once

#include "core/file_system.h"
#include "core/literals.h"

namespace morvane {

/// What a copy is called until it is whole. No listing of textures takes the name.
inline const QString partialCopySuffix = u".morvane-part"_s;

/// Beside the target, and in messages under its name: what a failure is about is the target.
inline FilePath partOf(const FilePath& target) {
    return target.withEnding(partialCopySuffix);
}

/// Copies the contents of `source` over `target` so that at every moment, a kill or a full disk included, the
/// target is whole: the old file or the new one. A replaced file keeps its spelling and its mode, a new one
/// gets the normal mode; a link is replaced by a plain file and what it points to is left alone.
/// Raises "Permission denied" for a read-only target, which a replacing rename would not notice by itself.
void replaceFile(FileSystem& files, const FilePath& source, const FilePath& target);

/// Its two halves, for a place in the spelling of the disk: the copy is written beside it, with the mode of
/// what it will replace; and takes the place. Either removes the part when it fails.
void writePart(FileSystem& files, const FilePath& source, const FilePath& place);
void putPart(FileSystem& files, const FilePath& place);

/// Replaces the file's contents so that a cut of power leaves the old ones or these, never a name with
/// nothing behind it. For the few files that say what others are.
void writeDurably(FileSystem& files, const FilePath& file, const QByteArray& contents);

/// Whether that may be what a cut of power left of a copy, whose blocks come to the disk in any order: it is
/// no longer than the whole and every byte of it is the whole's or zero, so it holds nothing that this does
/// not.
bool isRemnant(const QByteArray& contents, const QByteArray& whole);

/// Removes what a killed run left beside its targets in that folder.
void removePartialCopies(FileSystem& files, const FilePath& folder);

} // namespace morvane
