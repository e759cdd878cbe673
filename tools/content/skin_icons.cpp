#include "skin_icons.h"

#include "skin_drawing.h"
#include "skin_palette.h"

#include <algorithm>

namespace morvane::skin {

namespace {

constexpr int titleSide = 24;
constexpr int messageSide = 40;
constexpr int markSide = 16;

constexpr IconImage icons[] = {
    {u"icon_MVHome", titleSide, Pictogram::gauge},
    {u"icon_Randomizer", titleSide, Pictogram::faders},
    {u"icon_Config", titleSide, Pictogram::box},
    {u"icon_WxFinder", titleSide, Pictogram::lensWithCloud},
    {u"icon_About", titleSide, Pictogram::information},
    {u"icon_MainLinks", titleSide, Pictogram::globe},
    {u"icon_MVOpen", titleSide, Pictogram::openFolder},
    {u"icon_Ground", titleSide, Pictogram::drop},
    {u"icon_Sky", titleSide, Pictogram::cloudWithDrop},
    {u"icon_Information", messageSide, Pictogram::information},
    {u"icon_Exclamation", messageSide, Pictogram::warning},
    // Some messages ask for these spellings.
    {u"icon_Exlamation", messageSide, Pictogram::warning},
    {u"icon_Exclamtion", messageSide, Pictogram::warning},
    {u"icon_Error", messageSide, Pictogram::stop},
    {u"icon_Question", messageSide, Pictogram::question},
    {u"icon_Progress", messageSide, Pictogram::clock},
    {u"mark_whole", markSide, Pictogram::tickInRing},
    {u"mark_own", markSide, Pictogram::shieldWithTick},
    {u"mark_changed", markSide, Pictogram::warning},
    {u"mark_missing", markSide, Pictogram::lineInRing},
    {u"mark_kept", markSide, Pictogram::archiveIn},
};

constexpr CoverImage covers[] = {
    {u"skc", 44, 0},       {u"few", 44, 1},       {u"sct", 44, 2},       {u"bkn", 44, 3},
    {u"ovc", 44, 4},       {u"cover_skc", 12, 0}, {u"cover_few", 12, 1}, {u"cover_sct", 12, 2},
    {u"cover_bkn", 12, 3}, {u"cover_ovc", 12, 4},
};

/// Draws on paper and gives every pixel that stayed untouched the key colour.
QImage drawOnPaper(int side, int scale, PaperPalette palette, const Paint& paint) {
    const QColor ground = inkOf(paper::top, palette);
    QImage picture = drawPicture({side, side}, scale, ground, paint);
    for (int y = 0; y < picture.height(); ++y) {
        auto* pixels = reinterpret_cast<QRgb*>(picture.scanLine(y));
        std::replace(pixels, pixels + picture.width(), ground.rgb(), keyColour.rgb());
    }
    return picture;
}

} // namespace

std::span<const IconImage> iconImages() {
    return icons;
}

QImage drawIcon(const IconImage& icon, int scale, PaperPalette palette) {
    return drawOnPaper(icon.side, scale, palette, [&](QPainter& painter) {
        drawPictogram(painter, icon.pictogram, QRectF(0, 0, icon.side, icon.side), 1.6,
                      inkOf(paper::text, palette));
    });
}

std::span<const CoverImage> coverImages() {
    return covers;
}

QImage drawCover(const CoverImage& cover, int scale, PaperPalette palette) {
    const bool isSmall = cover.side < titleSide;
    return drawOnPaper(cover.side, scale, palette, [&](QPainter& painter) {
        const qreal margin = isSmall ? 0 : 2;
        const QRectF place = QRectF(0, 0, cover.side, cover.side).adjusted(margin, margin, -margin, -margin);
        drawCoverDisc(painter, place, cover.quarters, isSmall ? 1 : 1.6, inkOf(paper::text, palette));
    });
}

void drawCoverDisc(QPainter& painter, const QRectF& place, int quarters, qreal ringWidth,
                   const QColor& colour) {
    const qreal inset = ringWidth / 2;
    const QRectF ring = place.adjusted(inset, inset, -inset, -inset);
    QPainterPath full(ring.center());
    if (quarters > 0) full.arcTo(ring, 90, -90 * quarters);
    painter.fillPath(full, colour);
    painter.setPen(QPen(colour, ringWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(ring);
}

} // namespace morvane::skin
