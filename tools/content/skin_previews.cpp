#include "skin_previews.h"

#include "base_image_contact_sheet.h"
#include "base_image_drawing.h"
#include "core/error.h"
#include "ground_art_random.h"
#include "skin_palette.h"

#include <QPainter>
#include <QRadialGradient>
#include <algorithm>

namespace morvane::skin {

namespace {

constexpr QRect cutting(13, 40, 230, 140);
constexpr std::uint64_t lampSeed = 20040704;

constexpr PreviewPicture previews[] = {
    {u"MV_Day.bmp", u"GENERIC WORLD", LandKind::village},
    {u"MV_Night.bmp", u"GENERIC WORLD", LandKind::city, true},
    {u"MV_UTGolf.bmp", u"UT EUROPE", LandKind::golfCourse},
    {u"MV_UTInd.bmp", u"UTIND", LandKind::industry},
};

BaseImage shownImage(const PreviewPicture& preview) {
    const std::vector<BaseImage> stock = baseImageList(lowestStockDensity);
    const auto found = std::find_if(stock.begin(), stock.end(), [&](const BaseImage& image) {
        return image.resourceFolder == preview.resourceFolder && image.kind == preview.kind &&
               image.season == BaseImageSeason::summer;
    });
    if (found == stock.end()) throw Error(ErrorCode::invalidCall, preview.fileName.toString());
    return *found;
}

void drawLamp(QPainter& painter, QPointF place, qreal reach) {
    QRadialGradient light(place, reach);
    light.setColorAt(0, QColor(255, 226, 170, 235));
    light.setColorAt(0.25, QColor(255, 190, 100, 120));
    light.setColorAt(1, QColor(255, 170, 70, 0));
    painter.fillRect(QRectF(place - QPointF(reach, reach), QSizeF(2 * reach, 2 * reach)), light);
}

/// The same ground by night: dark blue, with lamps along its lighter parts, which are streets and roofs.
QImage byNight(const QImage& day) {
    QImage night = day;
    QPainter painter(&night);
    painter.fillRect(night.rect(), QColor(6, 12, 28, 205));
    art::RandomStream random(lampSeed);
    for (int draw = 0; draw < 900; ++draw) {
        const int x = random.below(day.width());
        const int y = random.below(day.height());
        const qreal reach = 2.5 + 2.5 * static_cast<qreal>(random.unit());
        if (qGray(day.pixel(x, y)) > 140) drawLamp(painter, {x + 0.5, y + 0.5}, reach);
    }
    return night;
}

} // namespace

std::span<const PreviewPicture> previewPictures() {
    return previews;
}

QImage drawPreview(const PreviewPicture& preview) {
    const QImage tile = toImage(drawBaseImage(shownImage(preview))).convertToFormat(QImage::Format_RGB32);
    const QImage day = tile.copy(cutting);
    return preview.isNight ? byNight(day) : day;
}

} // namespace morvane::skin
