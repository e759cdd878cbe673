#pragma once

#include "core/file_system.h"

#include <QJsonDocument>

class QIODevice;

namespace morvane {

/// The contents of a file of at most `most` bytes, a whole number of megabytes. Raises "NAME is far too large
/// for KIND: more than 4 MB" for a larger one, however much of it there is, and what FileSystem::readPart
/// raises. `kind` comes with its article.
QByteArray readAtMost(FileSystem& files, const FilePath& file, std::int64_t most, const QString& kind);
/// "far too large for a cycle: more than 64 MB".
QString tooLargeText(const QString& kind, std::int64_t most);

/// The next bytes of an open device, to its end or to so many: a single read of a pipe gives what is in it.
QByteArray readUpTo(QIODevice& device, std::int64_t most);

/// Raises "line 12 has more than 1 MB" for the first line beyond `longestTextLine`, and "the file has more
/// than 1,000,000 lines" beyond `mostTextLines`.
void requireBoundedLines(QByteArrayView text);

/// Null for what is no JSON; raises for one that is nested deeper than `deepestJson`.
QJsonDocument parseJson(const QByteArray& bytes);

} // namespace morvane
