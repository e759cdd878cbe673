#include "skin_keys.h"

#include "skin_drawing.h"
#include "skin_palette.h"

#include <array>

namespace morvane::skin {

namespace {

constexpr qreal cornerRadius = 6;
constexpr std::size_t stateCount = 4;

constexpr KeyImage images[] = {
    {u"btn_Home", KeyFamily::medium, Pictogram::gauge},
    {u"btn_MVTextures", KeyFamily::medium, Pictogram::peaks},
    {u"btn_Sky", KeyFamily::medium, Pictogram::cloud},
    {u"btn_Night", KeyFamily::medium, Pictogram::moon},
    {u"btn_MVConfig", KeyFamily::medium, Pictogram::windsock},
    {u"btn_Links", KeyFamily::medium, Pictogram::faders},
    {u"btn_Config", KeyFamily::medium, Pictogram::box},
    {u"btn_MainLinks", KeyFamily::medium, Pictogram::globe},
    {u"btn_Help", KeyFamily::medium, Pictogram::question},
    {u"btn_About", KeyFamily::medium, Pictogram::information},
    {u"btn_Back", KeyFamily::medium, Pictogram::arrowLeft},
    {u"btn_CreateSets", KeyFamily::medium, Pictogram::layers},
    {u"btn_2d", KeyFamily::medium, Pictogram::drop},
    {u"btn_SkyColor", KeyFamily::medium, Pictogram::cloudWithDrop},
    {u"btn_Exit", KeyFamily::small, Pictogram::cross},
    {u"btn_Minimize", KeyFamily::small, Pictogram::lowLine},
    {u"btn_CheckAll", KeyFamily::standard, Pictogram::tick},
    {u"btn_Cancel", KeyFamily::standard, Pictogram::cross},
    {u"btn_Clockwise", KeyFamily::standard, Pictogram::arrowRound},
    {u"btn_Create", KeyFamily::large, Pictogram::layersWithPlus},
    {u"btn_Install", KeyFamily::large, Pictogram::aircraftOverTray},
    {u"btn_Activate", KeyFamily::large, Pictogram::powerSign},
    {u"btn_Delete", KeyFamily::large, Pictogram::bin},
    {u"btn_Accept", KeyFamily::large, Pictogram::star},
    {u"btn_Load_Image", KeyFamily::large, Pictogram::picture},
    {u"btn_Random", KeyFamily::large, Pictogram::die},
    {u"btn_Save", KeyFamily::large, Pictogram::disk},
    {u"btn_Backup", KeyFamily::large, Pictogram::archiveIn},
    {u"btn_Restore_Backup", KeyFamily::large, Pictogram::archiveOut},
    {u"btn_Undo", KeyFamily::large, Pictogram::arrowBack},
    {u"btn_Beside", KeyFamily::large, Pictogram::twoHalves},
    {u"btn_Take", KeyFamily::large, Pictogram::shieldWithTick},
    {u"btn_Update", KeyFamily::large, Pictogram::arrowDownInRing},
    {u"btn_WxFinder", KeyFamily::large, Pictogram::lensWithCloud},
    {u"btn_WxRefresh", KeyFamily::large, Pictogram::turningArrows},
    {u"btn_SelectFlight", KeyFamily::large, Pictogram::route},
    {u"btn_MetarProcess", KeyFamily::large, Pictogram::linesWithArrow},
};

struct Measures {
    QSize size;
    QRectF pictogramPlace;
    qreal lineWidth;
};

Measures measuresOf(KeyFamily family) {
    switch (family) {
    case KeyFamily::large:
        return {{128, 43}, {10, 9, 24, 24}, 1.6};
    case KeyFamily::medium:
        return {{126, 44}, {14, 12, 20, 20}, 1.8};
    case KeyFamily::standard:
        return {{48, 44}, {12, 10, 24, 24}, 2.0};
    case KeyFamily::small:
        return {{40, 28}, {12, 6, 16, 16}, 2.4};
    }
    return {};
}

/// The look of a frame apart from its inner edge.
struct Look {
    QColor fillTop;
    QColor fillFoot;
    QColor edge;
    QColor pictogram;
    QColor lamp;
};

using Looks = std::array<Look, stateCount>;

const Looks& looksOf(KeyFamily family) {
    static const Looks plain = {{
        {{58, 78, 92}, {42, 59, 71}, lineColour, textBright, {22, 33, 42}},
        {{74, 100, 117}, {53, 75, 90}, lineColour, accent, {47, 111, 141}},
        {{24, 36, 45}, {34, 49, 60}, lineColour, accent, accent},
        {{31, 44, 54}, {31, 44, 54}, {19, 28, 36}, pictogramOff, {}},
    }};
    // A medium key is disabled on its own page only: the frame says "you are here".
    static const Looks medium = [] {
        Looks looks = plain;
        looks[3] = {{18, 56, 76}, {22, 76, 102}, {8, 19, 26}, white, accent};
        return looks;
    }();
    return family == KeyFamily::medium ? medium : plain;
}

constexpr std::size_t hoverState = 1, pressedState = 2, disabledState = 3;

/// The part of `shape` that a copy of it, moved by `offset`, leaves free.
void fillCrescent(QPainter& painter, const QPainterPath& shape, QPointF offset, const QColor& colour) {
    painter.fillPath(shape.subtracted(shape.translated(offset)), colour);
}

void drawInside(QPainter& painter, const QRectF& inside, std::size_t state, KeyFamily family) {
    const QPainterPath shape = roundedPath(inside, cornerRadius - 1);
    const bool isCurrent = state == disabledState && family == KeyFamily::medium;
    if (state == hoverState) {
        drawInnerEdge(painter, shape, 1, faded(accent, 0.55));
    } else if (state == pressedState) {
        const QRectF shade(inside.topLeft(), QSizeF(inside.width(), 4));
        painter.save();
        painter.setClipPath(shape);
        painter.fillRect(shade, downward(shade, faded(black, 0.5), faded(black, 0)));
        painter.restore();
    } else if (state == disabledState) {
        drawInnerEdge(painter, shape, 1, isCurrent ? faded(accent, 0.28) : faded(white, 0.03));
    } else {
        fillCrescent(painter, shape, {0, 1}, faded(white, 0.16));
        fillCrescent(painter, shape, {0, -1}, faded(black, 0.22));
    }
}

/// The lamp at the left of a medium key. Its glow, of layers that grow and fade, stays inside the key.
void drawLamp(QPainter& painter, const QRectF& inside, const QColor& colour, bool glows) {
    const QRectF lamp(6, 12, 3, 20);
    constexpr int glowReach = 7;
    painter.save();
    painter.setClipPath(roundedPath(inside, cornerRadius - 1));
    for (int spread = glowReach; glows && spread > 0; --spread)
        painter.fillPath(roundedPath(lamp.adjusted(-spread, -spread, spread, spread), 1.5 + spread),
                         faded(colour, 0.0135 * (glowReach + 1 - spread)));
    painter.restore();
    painter.fillPath(roundedPath(lamp, 1.5), colour);
}

void drawFrame(QPainter& painter, const KeyImage& image, std::size_t state) {
    const Measures measures = measuresOf(image.family);
    const QRectF place(QPointF(0, 0), measures.size);
    const Look& look = looksOf(image.family)[state];
    // The edge is painted past the shape: what lies outside is cut away, nothing is blended with it.
    painter.fillRect(place, look.edge);
    const QRectF inside = place.adjusted(1, 1, -1, -1);
    painter.fillPath(roundedPath(inside, cornerRadius - 1), downward(place, look.fillTop, look.fillFoot));
    drawInside(painter, inside, state, image.family);
    if (image.family == KeyFamily::medium) drawLamp(painter, inside, look.lamp, state == disabledState);
    const qreal drop = state == pressedState ? 1 : 0;
    drawPictogram(painter, image.pictogram, measures.pictogramPlace.translated(0, drop), measures.lineWidth,
                  look.pictogram);
}

} // namespace

std::span<const KeyImage> keyImages() {
    return images;
}

QSize keySize(KeyFamily family) {
    return measuresOf(family).size;
}

QImage drawKeyStrip(const KeyImage& image, int scale) {
    const QSize frame = keySize(image.family);
    QPainterPath shapes;
    for (std::size_t state = 0; state < stateCount; ++state)
        shapes.addRoundedRect(QRectF(QPointF(0, static_cast<int>(state) * frame.height()), frame),
                              cornerRadius, cornerRadius);
    QImage strip = drawPicture({frame.width(), frame.height() * static_cast<int>(stateCount)}, scale, bezel,
                               [&](QPainter& painter) {
                                   for (std::size_t state = 0; state < stateCount; ++state) {
                                       drawFrame(painter, image, state);
                                       painter.translate(0, frame.height());
                                   }
                               });
    cutToOutline(strip, shapes, scale);
    return strip;
}

} // namespace morvane::skin
