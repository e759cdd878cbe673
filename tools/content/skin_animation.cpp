#include "skin_animation.h"

#include "skin_drawing.h"
#include "skin_palette.h"
#include "skin_pictograms.h"

#include <QDataStream>
#include <QIODevice>

namespace morvane::skin {

namespace {

constexpr int frameSide = 27;
/// The arrows look the same after half a turn.
constexpr int frameCount = 8;
constexpr qreal degreesPerFrame = 180.0 / frameCount;
constexpr quint16 hundredthsPerFrame = 9;

/// Colours from paper to that of text.
constexpr int shadeCount = 128;
/// log2 of the shades: the code size with which an image begins.
constexpr quint8 shadeBits = 7;

QImage drawTurned(qreal degrees) {
    return drawPicture({frameSide, frameSide}, 1, white, [&](QPainter& painter) {
        const QRectF place(1.5, 1.5, frameSide - 3, frameSide - 3);
        painter.translate(place.center());
        painter.rotate(degrees);
        painter.translate(-place.center());
        drawPictogram(painter, Pictogram::turningArrows, place, 1.8, black);
    });
}

/// The image's pixels as LZW codes without compression: a clear code comes so often that no code ever gets
/// longer than eight bits, and so each is one byte.
QByteArray codesOf(const QImage& image) {
    constexpr char clearCode = static_cast<char>(shadeCount), endCode = static_cast<char>(shadeCount + 1);
    constexpr int codesBeforeClear = 100;
    QByteArray codes;
    int sinceClear = codesBeforeClear;
    for (int y = 0; y < frameSide; ++y)
        for (int x = 0; x < frameSide; ++x) {
            if (sinceClear == codesBeforeClear) {
                codes.append(clearCode);
                sinceClear = 0;
            }
            codes.append(static_cast<char>((255 - qGray(image.pixel(x, y))) / 2));
            ++sinceClear;
        }
    codes.append(endCode);
    return codes;
}

void writeBytes(QDataStream& stream, const QByteArray& bytes) {
    stream.writeRawData(bytes.constData(), static_cast<int>(bytes.size()));
}

void writeHead(QDataStream& stream, PaperPalette palette) {
    writeBytes(stream, "GIF89a");
    const quint8 hasTable = 0x80, tableBits = shadeBits - 1;
    stream << quint16(frameSide) << quint16(frameSide) << quint8(hasTable | tableBits) << quint8(0)
           << quint8(0);
    const QColor ground = inkOf(paper::top, palette), ink = inkOf(paper::text, palette);
    for (int shade = 0; shade < shadeCount; ++shade) {
        const auto mixed = [&](int from, int to) {
            return static_cast<quint8>(from + (to - from) * shade / (shadeCount - 1));
        };
        stream << mixed(ground.red(), ink.red()) << mixed(ground.green(), ink.green())
               << mixed(ground.blue(), ink.blue());
    }
    // The extension that every reader takes for "without end".
    writeBytes(stream, QByteArray("\x21\xFF\x0BNETSCAPE2.0\x03\x01\x00\x00\x00", 19));
}

void writeFrame(QDataStream& stream, const QImage& image) {
    writeBytes(stream, QByteArray("\x21\xF9\x04\x00", 4));
    stream << hundredthsPerFrame << quint16(0);
    stream << quint8(0x2C) << quint16(0) << quint16(0) << quint16(frameSide) << quint16(frameSide)
           << quint8(0);
    stream << shadeBits;
    const QByteArray codes = codesOf(image);
    constexpr qsizetype longestBlock = 255;
    for (qsizetype at = 0; at < codes.size(); at += longestBlock) {
        const QByteArray block = codes.mid(at, longestBlock);
        stream << static_cast<quint8>(block.size());
        writeBytes(stream, block);
    }
    stream << quint8(0);
}

} // namespace

QByteArray turningArrowsAnimation(PaperPalette palette) {
    QByteArray file;
    QDataStream stream(&file, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    writeHead(stream, palette);
    for (int frame = 0; frame < frameCount; ++frame)
        writeFrame(stream, drawTurned(frame * degreesPerFrame));
    stream << quint8(0x3B);
    return file;
}

} // namespace morvane::skin
