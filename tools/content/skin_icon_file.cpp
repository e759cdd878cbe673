#include "skin_icon_file.h"

#include <QDataStream>
#include <QIODevice>

namespace morvane::skin {

namespace {

enum class FileKind : quint16 { icon = 1, cursor = 2 };

constexpr quint32 directorySize = 6;
constexpr quint32 entrySize = 16;
constexpr quint32 bitmapHeaderSize = 40;
constexpr quint16 bitsPerPixel = 32;

/// Rows of the one-bit mask are rounded up to 32 bits.
int maskRowSize(int side) {
    return (side + 31) / 32 * 4;
}

/// A bitmap without file header. Its height counts the picture and the mask behind it; the mask stays empty,
/// as alpha does its work.
QByteArray bitmapOf(const QImage& picture) {
    const QImage pixels = picture.convertToFormat(QImage::Format_ARGB32);
    const int side = pixels.width();
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream << bitmapHeaderSize << qint32(side) << qint32(2 * side) << quint16(1) << bitsPerPixel;
    for (int unused = 0; unused < 6; ++unused)
        stream << quint32(0);
    for (int y = side - 1; y >= 0; --y)
        for (int x = 0; x < side; ++x)
            stream << quint32(pixels.pixel(x, y));
    return bytes + QByteArray(side * maskRowSize(side), '\0');
}

/// `first` and `second` are planes and bits in an icon, the hot spot in a cursor.
void writeEntry(QDataStream& stream, const QImage& picture, quint16 first, quint16 second, quint32 size,
                quint32 offset) {
    const auto side = static_cast<quint8>(picture.width()); // 256 is written as 0
    stream << side << side << quint16(0) << first << second << size << offset;
}

} // namespace

QByteArray iconFile(const std::vector<QImage>& pictures) {
    QByteArray head, bitmaps;
    QDataStream stream(&head, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    const auto count = static_cast<quint16>(pictures.size());
    stream << quint16(0) << static_cast<quint16>(FileKind::icon) << count;
    for (const QImage& picture : pictures) {
        const QByteArray bitmap = bitmapOf(picture);
        const auto offset = directorySize + count * entrySize + static_cast<quint32>(bitmaps.size());
        writeEntry(stream, picture, 1, bitsPerPixel, static_cast<quint32>(bitmap.size()), offset);
        bitmaps += bitmap;
    }
    return head + bitmaps;
}

QByteArray cursorFile(const QImage& picture, QPoint hotSpot) {
    QByteArray head;
    QDataStream stream(&head, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    const QByteArray bitmap = bitmapOf(picture);
    stream << quint16(0) << static_cast<quint16>(FileKind::cursor) << quint16(1);
    writeEntry(stream, picture, static_cast<quint16>(hotSpot.x()), static_cast<quint16>(hotSpot.y()),
               static_cast<quint32>(bitmap.size()), directorySize + entrySize);
    return head + bitmap;
}

} // namespace morvane::skin
