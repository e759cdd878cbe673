#include "ui/skin.h"

#include "core/bounded_reading.h"
#include "core/literals.h"
#include "core/reading_limits.h"
#include "imaging/window_region.h"
#include "ui/controls/palette.h"

#include <QBuffer>
#include <QDataStream>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <algorithm>

namespace morvane {

namespace {

constexpr int denseFactor = 2;
constexpr int hotSpotOffset = 10; ///< in a ".cur" file

QString denseName(const QString& fileName) {
    const QFileInfo name(fileName);
    return name.completeBaseName() + u"@2x."_s + name.suffix();
}

bool isNight() {
    return palette::inUse() == PaperPalette::night;
}

QString nightName(const QString& fileName, QStringView ending) {
    return QFileInfo(fileName).completeBaseName() + ending.toString();
}

QImage withoutKeyColour(const QImage& picture) {
    QImage masked = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < masked.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(masked.scanLine(y));
        std::replace(row, row + masked.width(), palette::key, QRgb(0));
    }
    return masked;
}

} // namespace

/// What is said of it the first time stays.
void Skin::noteMissing(const QString& fileName, const QString& remark) {
    const auto isOfFile = [&](const QString& told) {
        return told == fileName || told.startsWith(fileName + u" ("_s);
    };
    if (std::ranges::none_of(missing_, isOfFile)) missing_ << fileName + remark;
}

QByteArray Skin::bytesOf(const QString& fileName) {
    try {
        return readAtMost(files_, media_ / fileName, largestPictureFile, u"a picture"_s);
    } catch (const std::exception&) {
        return {};
    }
}

/// The size is looked at before memory is taken.
QImage Skin::imageOf(const QString& fileName) {
    QByteArray bytes = bytesOf(fileName);
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    if (std::max(size.width(), size.height()) <= largestPictureSide) return reader.read();
    noteMissing(fileName, u" (larger than %1 pixels a side)"_s.arg(largestPictureSide));
    return {};
}

QPixmap Skin::picture(const QString& fileName) {
    if (const auto known = pictures_.constFind(fileName); known != pictures_.constEnd()) return *known;
    const bool isDense = qGuiApp->devicePixelRatio() > 1;
    QImage image = isDense ? imageOf(denseName(fileName)) : QImage();
    const bool foundDense = !image.isNull();
    if (!foundDense) image = imageOf(fileName);
    if (image.isNull()) noteMissing(fileName);
    QPixmap picture = image.isNull() ? QPixmap() : QPixmap::fromImage(withoutKeyColour(image));
    if (foundDense) picture.setDevicePixelRatio(denseFactor);
    return *pictures_.insert(fileName, picture);
}

QPixmap Skin::ground(const QString& fileName) {
    return picture(isNight() ? nightName(fileName, u"_night.png") : fileName);
}

QPixmap Skin::sign(const QString& fileName) {
    const QPixmap own = ground(fileName);
    return own.isNull() ? picture(fileName) : own;
}

FilePath Skin::animation(const QString& fileName) const {
    const FilePath ofNight = media_.child(nightName(fileName, u"_night.gif"));
    return isNight() && files_.exists(ofNight) ? ofNight : media_.child(fileName);
}

QRegion Skin::outline(const QString& fileName) {
    try {
        const WindowRegion region = readWindowRegion(bytesOf(fileName));
        QRegion outline;
        outline.setRects(region.rectangles.data(), static_cast<int>(region.rectangles.size()));
        return outline;
    } catch (const std::exception&) {
        noteMissing(fileName);
        return {};
    }
}

/// Each key asks for the same one, so the file is read once.
QCursor Skin::cursor(const QString& fileName, Qt::CursorShape otherwise) {
    if (const auto known = cursors_.constFind(fileName); known != cursors_.constEnd()) return *known;
    const QPixmap pointer = picture(fileName);
    if (pointer.isNull()) return QCursor(otherwise);
    // The reader of pictures leaves the point out that clicks; it stands in the file's first entry.
    const QByteArray point = bytesOf(fileName).mid(hotSpotOffset, 4);
    QDataStream coordinates(point);
    coordinates.setByteOrder(QDataStream::LittleEndian);
    quint16 x = 0, y = 0;
    coordinates >> x >> y;
    return *cursors_.insert(fileName, QCursor(pointer, x, y));
}

} // namespace morvane
