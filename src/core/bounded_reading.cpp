#include "core/bounded_reading.h"

#include "core/error.h"
#include "core/numbers.h"
#include "core/reading_limits.h"

#include <QIODevice>
#include <algorithm>

namespace morvane {

namespace {

QString megabytesText(std::int64_t bytes) {
    return u"more than %1 MB"_s.arg(bytes / megabyte);
}

/// The most brackets that are open at once, those inside texts left out.
int depthOf(QByteArrayView json) {
    int depth = 0, deepest = 0;
    bool isText = false;
    for (qsizetype at = 0; at < json.size(); ++at) {
        const char c = json[at];
        if (isText && c == '\\') ++at;
        if (c == '"') isText = !isText;
        if (isText) continue;
        depth += (c == '[' || c == '{') - (c == ']' || c == '}');
        deepest = std::max(deepest, depth);
    }
    return deepest;
}

} // namespace

QString tooLargeText(const QString& kind, std::int64_t most) {
    return u"far too large for "_s + kind + u": "_s + megabytesText(most);
}

/// A part, as the size that a device or a growing file tells is none.
QByteArray readAtMost(FileSystem& files, const FilePath& file, std::int64_t most, const QString& kind) {
    QByteArray contents = files.readPart(file, 0, most + 1);
    if (contents.size() > most)
        throw Error::withDescription(ErrorCode::ioFailure,
                                     file.fileName() + u" is "_s + tooLargeText(kind, most));
    return contents;
}

QByteArray readUpTo(QIODevice& device, std::int64_t most) {
    QByteArray contents;
    while (contents.size() < most) {
        const QByteArray part = device.read(std::min<std::int64_t>(megabyte, most - contents.size()));
        if (part.isEmpty()) break;
        contents += part;
    }
    return contents;
}

void requireBoundedLines(QByteArrayView text) {
    for (int number = 1; !text.isEmpty(); ++number) {
        const qsizetype end = text.indexOf('\n');
        if ((end < 0 ? text.size() : end) > longestTextLine)
            throw Error::withDescription(ErrorCode::ioFailure,
                                         u"line %1 has "_s.arg(number) + megabytesText(longestTextLine));
        if (number > mostTextLines)
            throw Error::withDescription(ErrorCode::ioFailure,
                                         u"the file has more than "_s + countText(mostTextLines, u"line"_s));
        text = end < 0 ? QByteArrayView() : text.sliced(end + 1);
    }
}

QJsonDocument parseJson(const QByteArray& bytes) {
    if (depthOf(bytes) > deepestJson)
        throw Error::withDescription(ErrorCode::invalidPropertyValue,
                                     u"it is nested deeper than %1 brackets"_s.arg(deepestJson));
    return QJsonDocument::fromJson(bytes);
}

} // namespace morvane
