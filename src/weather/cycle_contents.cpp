#include "weather/cycle_contents.h"

#include "core/bounded_reading.h"
#include "core/error.h"
#include "weather/gzip_reader.h"

namespace morvane {

namespace {

/// What stands first behind a byte order mark and blanks, and behind the zero half of a wide letter; 0 when
/// nothing does.
char firstLetterOf(const QByteArray& text) {
    qsizetype at = 0;
    for (const QByteArrayView mark : {"\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"})
        if (text.startsWith(mark)) at = mark.size();
    while (at < text.size() && (text[at] == '\0' || QChar::isSpace(static_cast<uchar>(text[at]))))
        ++at;
    return at < text.size() ? text[at] : '\0';
}

} // namespace

QByteArray cycleContents(const QByteArray& bytes, std::int64_t largestSize) {
    const QByteArray contents = isGzip(bytes) ? unpackGzip(bytes, largestSize) : bytes;
    const char first = firstLetterOf(contents);
    if (first == '<' || first == '{' || first == '[')
        throw Error::withDescription(ErrorCode::ioFailure, u"the file is a page instead of reports"_s);
    if (isGzip(contents))
        throw Error::withDescription(ErrorCode::ioFailure, u"the file is compressed more than once"_s);
    requireBoundedLines(contents);
    return contents;
}

bool isBlank(const QByteArray& contents) {
    return firstLetterOf(contents) == '\0';
}

} // namespace morvane
