#include "skin_windows.h"

#include "core/error.h"
#include "skin_drawing.h"
#include "skin_outlines.h"
#include "skin_palette.h"
#include "skin_pictograms.h"

#include <QRadialGradient>
#include <algorithm>

namespace morvane::skin {

namespace {

constexpr QSize mainSize(880, 580);
constexpr QSize messageSize(400, 300);
constexpr QSize listSize(400, 360);
constexpr QSize wideSize(700, 500);
constexpr QSize readySize(520, 424);

constexpr WindowPicture pictures[] = {
    {u"MVMainInterface", u"MainRegion.dat", mainSize},
    {u"MVGroundInterface", {}, mainSize},
    {u"MVSkyInterface", {}, mainSize},
    {u"MVNightInterface", {}, mainSize},
    {u"MVMsg_BG", u"MsgRegion.dat", messageSize},
    {u"MVAdd_BG", u"AddRegion.dat", listSize},
    {u"MVWide_BG", u"RandomizerRegion.dat", wideSize},
    {u"MVReady_BG", u"ReadyRegion.dat", readySize},
    {u"MVSheet_BG", u"SheetRegion.dat", mainSize},
};

/// What the windows with pages show besides the frame, in the order of their pictures.
struct PageWindow {
    Pictogram pictogram;
    QStringView label;
    /// Keys at the left edge; the places of the others are blank slots. The main window has all ten keys.
    int leftKeys;
    int rightKeys;
};

constexpr PageWindow pageWindows[] = {
    {Pictogram::gauge, u"System", 5, 5},
    {Pictogram::peaks, u"Ground Textures", 3, 0},
    {Pictogram::cloud, u"Sky Textures", 3, 0},
    {Pictogram::moon, u"Night Textures", 3, 0},
};

bool hasPages(const WindowPicture& picture) {
    return &picture - pictures < static_cast<std::ptrdiff_t>(std::size(pageWindows));
}

WindowOutline outlineOf(const WindowPicture& picture) {
    const QSize size = picture.size;
    if (hasPages(picture)) return {size, 24, 18, 288, 64};
    if (size == mainSize) return {size, 12, 14, 380, 56};
    // The lip with its shoulders takes about the middle half.
    if (size == wideSize) return {size, 12, 14, 254, 48};
    if (size == readySize) return {size, 12, 14, 176, 44};
    return {size, 12, 14, 128, 40};
}

void drawBlankSlots(QPainter& painter, qreal x, int from) {
    for (int i = from; i < 5; ++i) {
        const QRectF slot(x, 137 + 80 * i, 126, 44);
        painter.fillPath(roundedPath(slot.translated(0, 1), 6).subtracted(roundedPath(slot, 6)),
                         faded(white, 0.05));
        drawInnerEdge(painter, roundedPath(slot, 6), 1, slotLine);
    }
}

void drawHorizonGlow(QPainter& painter) {
    QRadialGradient glow(QPointF(0, 0), 1);
    glow.setColorAt(0, faded(accent, 0.20));
    glow.setColorAt(1, faded(accent, 0));
    painter.save();
    painter.translate(440, 62);
    painter.scale(270, 30);
    painter.fillRect(QRectF(-1, -1, 2, 2), glow);
    painter.restore();
}

void drawPageWindow(QPainter& painter, const PageWindow& window) {
    drawHorizonGlow(painter);
    drawHorizon(painter, {{440, 62}, 330, 30, 1});
    drawSpacedText(painter, {240, 21, 400, 28}, programFont(21, QFont::Bold), 8, wordMark,
                   QStringLiteral("MORVANE"));
    drawPictogram(painter, window.pictogram, {18, 44, 20, 20}, 1.8, textQuiet);
    drawText(painter, {44, 44, 180, 17}, programFont(13, QFont::Medium), textBright, window.label.toString());
    drawPageFrame(painter, {142, 94, 596, 450});
    drawBlankSlots(painter, 8, window.leftKeys);
    drawBlankSlots(painter, 746, window.rightKeys);
}

/// Message and dialogs: paper down to the band that holds their keys.
void drawPaperWindow(QPainter& painter, QSizeF size, PaperPalette palette) {
    const qreal middle = size.width() / 2;
    const QRectF paper(12, 46, size.width() - 24, size.height() - 116);
    drawHorizon(painter, {{middle, 30}, middle - 50, 24, 20.0 / 26});
    drawPageFrame(painter, paper);
    painter.setClipPath(roundedPath(paper, 6));
    drawPaper(painter, paper, paper.height(), palette);
    painter.setClipping(false);
}

} // namespace

std::span<const WindowPicture> windowPictures() {
    return pictures;
}

bool hasPaper(const WindowPicture& window) {
    return !hasPages(window);
}

QImage drawWindow(QStringView name, int scale, PaperPalette palette) {
    const auto* found = std::find_if(std::begin(pictures), std::end(pictures),
                                     [&](const auto& picture) { return name == picture.name; });
    if (found == std::end(pictures)) throw Error(ErrorCode::invalidCall, name.toString());
    const WindowOutline shape = outlineOf(*found);
    QImage picture = drawPicture(found->size, scale, bezel, [&](QPainter& painter) {
        drawBezel(painter, shape, hasPages(*found) ? 94 : 44);
        if (hasPages(*found))
            drawPageWindow(painter, pageWindows[found - pictures]);
        else
            drawPaperWindow(painter, found->size, palette);
        drawBezelEdge(painter, shape);
    });
    cutToOutline(picture, outlinePath(shape), scale);
    return picture;
}

} // namespace morvane::skin
