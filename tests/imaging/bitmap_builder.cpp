#include "imaging/bitmap_builder.h"

#include <QtEndian>

namespace morvane::test {

namespace {

QByteArray little(qint64 value, int bytes) {
    QByteArray number(8, '\0');
    qToLittleEndian<qint64>(value, number.data());
    return number.left(bytes);
}

QByteArray infoHeader(const BitmapParts& parts) {
    if (parts.infoSize == 12)
        return little(12, 4) + little(parts.width, 2) + little(parts.height, 2) + little(1, 2) +
               little(parts.bits, 2) + parts.behindHeader;
    const QByteArray usual = little(parts.infoSize, 4) + little(parts.width, 4) + little(parts.height, 4) +
                             little(1, 2) + little(parts.bits, 2) + little(parts.compression, 4) +
                             QByteArray(12, '\0') + little(parts.usedColours, 4) + little(0, 4);
    return usual + parts.behindHeader.leftJustified(parts.infoSize - 40, '\0');
}

} // namespace

QByteArray bitmapFile(const BitmapParts& parts) {
    const QByteArray info = infoHeader(parts) + parts.gap;
    const qsizetype pixelsAt = 14 + info.size();
    // The file's own length, as second field, is 0 in many files; nobody may rely on it.
    return "BM" + little(0, 8) + little(pixelsAt, 4) + info + parts.pixels;
}

quint32 longIn(const QByteArray& file, int at) {
    return qFromLittleEndian<quint32>(file.constData() + at);
}

QByteArray withLong(QByteArray file, int at, quint32 value) {
    qToLittleEndian<quint32>(value, file.data() + at);
    return file;
}

quint32 fourLetters(const char* letters) {
    return qFromLittleEndian<quint32>(letters);
}

QByteArray hex(const char* text) {
    return QByteArray::fromHex(text);
}

} // namespace morvane::test
