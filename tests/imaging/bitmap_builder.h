#pragma once

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>
#include <QtEndian>

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

inline QByteArray bitmapFile(const BitmapParts& parts) {
    QByteArray file;
    QDataStream out(&file, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    const bool isOldest = parts.infoSize == 12;
    const QByteArray behind =
        (isOldest ? parts.behindHeader : parts.behindHeader.leftJustified(parts.infoSize - 40, '\0')) +
        parts.gap;
    // The file's own length, as second field, is 0 in many files; nobody may rely on it.
    out << quint16{0x4D42} << quint64{0} << static_cast<quint32>(14 + (isOldest ? 12 : 40) + behind.size())
        << parts.infoSize;
    const auto bits = static_cast<quint16>(parts.bits);
    if (isOldest)
        out << static_cast<quint16>(parts.width) << static_cast<quint16>(parts.height) << quint16{1} << bits;
    else
        out << parts.width << parts.height << quint16{1} << bits << parts.compression << quint64{0} << 0
            << parts.usedColours << 0;
    return file + behind + parts.pixels;
}

/// The number stored at that offset, and the file with another one there; little-endian.
inline quint32 longIn(const QByteArray& file, int at) {
    quint32 number = 0;
    for (int i = 3; i >= 0; --i)
        number = number << 8 | static_cast<quint8>(file.at(at + i));
    return number;
}
inline QByteArray withLong(QByteArray file, int at, quint32 value) {
    qToLittleEndian<quint32>(value, file.data() + at);
    return file;
}

/// Bytes from hexadecimal text with blanks.
inline QByteArray hex(const QByteArray& text) {
    return QByteArray::fromHex(text);
}

} // namespace morvane::test
