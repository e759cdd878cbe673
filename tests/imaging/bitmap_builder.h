#pragma once

#include "imaging/picture.h"

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>
#include <QString>
#include <QtEndian>
#include <array>
#include <map>

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

using Colour = std::array<int, 3>; ///< red, green, blue

/// The pixel at column x of row y, row 0 being the bottom one.
inline Colour pixelAt(const Picture& picture, int x, int y) {
    const std::uint8_t* pixel = picture.rows.data() + bytesPerRow(picture.width) * y + 3 * x;
    return {pixel[2], pixel[1], pixel[0]};
}

/// The picture as a person sees it, top row first, rows parted by "/". A pixel is one letter, r g b y w k for
/// red, green, blue, yellow, white and black at full strength, or "#rrggbb".
inline std::string lettersOf(const Picture& picture) {
    const std::map<Colour, std::string> letters = {{{255, 0, 0}, "r"},     {{0, 255, 0}, "g"},
                                                   {{0, 0, 255}, "b"},     {{255, 255, 0}, "y"},
                                                   {{255, 255, 255}, "w"}, {{0, 0, 0}, "k"}};
    std::string seen;
    for (int y = picture.height - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width; ++x) {
            const Colour colour = pixelAt(picture, x, y);
            const auto known = letters.find(colour);
            seen += known != letters.end()
                        ? known->second
                        : QString::asprintf("#%02x%02x%02x", colour[0], colour[1], colour[2]).toStdString();
        }
        if (y > 0) seen += '/';
    }
    return seen;
}

} // namespace morvane::test
