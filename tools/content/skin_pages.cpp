#include "skin_pages.h"

#include "skin_drawing.h"
#include "skin_palette.h"

namespace morvane::skin {

namespace {

constexpr PagePicture pages[] = {
    {u"page_plain"},
    {u"page_status", 40, 388, true},
    {u"page_colour", 36, 390},
    {u"page_open", 40, 450},
};

/// All papers have the same gradient, whether a deck hides its end or not.
constexpr qreal paperLength = 390;
constexpr QRectF pagePlace(0, 0, pageSize.width(), pageSize.height());

/// A hill from its ground line at the left edge; between the turning points of its crest the slope is that of
/// a sine.
QPainterPath hillPath(std::initializer_list<QPointF> crest, qreal foot) {
    QPainterPath path(QPointF(0, foot));
    path.lineTo(*crest.begin());
    for (const QPointF& next : crest) {
        const QPointF last = path.currentPosition();
        const qreal middle = (last.x() + next.x()) / 2;
        path.cubicTo(middle, last.y(), middle, next.y(), next.x(), next.y());
    }
    path.lineTo(pageSize.width(), foot);
    return path;
}

void drawHills(QPainter& painter, qreal foot, PaperPalette palette) {
    const QPainterPath hills[] = {
        hillPath({{-30, 350}, {112, 322}, {186, 336}, {316, 303}, {426, 328}, {590, 297}, {620, 300}}, foot),
        hillPath({{-60, 370}, {178, 347}, {378, 363}, {558, 344}, {640, 348}}, foot),
    };
    painter.setClipRect(QRectF(0, 290, pageSize.width(), foot - 290));
    for (const QPainterPath& hill : hills) {
        const QRectF bounds = hill.boundingRect();
        painter.fillPath(hill,
                         downward(bounds, inkOf(paper::hillTop, palette), inkOf(paper::hillFoot, palette)));
    }
    painter.setClipping(false);
}

/// The lines of the tables on the status page: where they lie and how long they are.
void drawStatusLines(QPainter& painter, PaperPalette palette) {
    const QColor rule = inkOf(paper::rule, palette), hair = inkOf(paper::hair, palette);
    const auto draw = [&](int x, int width, std::initializer_list<int> tops, const QColor& colour) {
        for (const int top : tops)
            painter.fillRect(x, top, width, 1, colour);
    };
    draw(14, 290, {86}, rule);
    draw(14, 290, {108, 130, 152, 174, 196}, hair);
    painter.fillRect(230, 54, 1, 163, hair);
    draw(326, 256, {70, 211}, rule);
    draw(326, 256, {110, 150, 176, 234, 257, 280, 303}, hair);
}

void drawDeck(QPainter& painter, int top) {
    const QRectF place(0, top, pageSize.width(), pageSize.height() - top);
    painter.fillRect(place, deck);
    painter.fillRect(QRectF(0, top, place.width(), 1), lineColour);
    painter.fillRect(QRectF(0, top + 1, place.width(), 1), deckRim);
}

} // namespace

std::span<const PagePicture> pagePictures() {
    return pages;
}

QImage drawPage(const PagePicture& page, int scale, PaperPalette palette) {
    return drawPicture(pageSize, scale, lineColour, [&](QPainter& painter) {
        drawPaper(painter, pagePlace, paperLength, palette);
        if (page.isStatus) {
            drawHills(painter, page.deckTop, palette);
            drawStatusLines(painter, palette);
        }
        painter.fillRect(14, page.ruleTop, pageSize.width() - 28, 1, inkOf(paper::rule, palette));
        if (page.deckTop < pageSize.height()) drawDeck(painter, page.deckTop);
        // The page lies in a frame with round corners; it paints the frame's inner ones itself.
        QPainterPath corners;
        corners.addRect(pagePlace);
        painter.fillPath(corners.subtracted(roundedPath(pagePlace, 6)), lineColour);
    });
}

} // namespace morvane::skin
