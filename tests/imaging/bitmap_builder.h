#pragma once

#include <QByteArray>

namespace morvane::test {

/// A bitmap file by its parts. Wrong ones are wanted too, so nothing is checked.
struct BitmapParts {
    int width = 3;
    int height = 2;
    int bits = 24;
    quint32 compression = 0;
    int infoSize = 40;
    quint32 usedColours = 0;
    QByteArray behindHeader = {}; ///< masks or palette; masks of the longer headers lie inside them
    QByteArray gap = {};          ///< what stands between that and the pixels
    QByteArray pixels = {};
};

QByteArray bitmapFile(const BitmapParts& parts);

/// The number stored at that offset, and the file with another one there; little-endian.
quint32 longIn(const QByteArray& file, int at);
QByteArray withLong(QByteArray file, int at, quint32 value);

/// The four letters of a compression as its number.
quint32 fourLetters(const char* letters);

/// Bytes from hexadecimal text with blanks.
QByteArray hex(const char* text);

} // namespace morvane::test
