#include "skin_splash.h"

#include "core/literals.h"
#include "landscape.h"
#include "skin_drawing.h"
#include "skin_icons.h"
#include "skin_palette.h"

#include <QPolygonF>

namespace morvane::skin {

namespace {

constexpr int width = 700;
constexpr int height = 500;
constexpr int landscapeHeight = 366;
constexpr int horizonRow = 196;

struct CoverColumn {
    const char16_t* code;
    /// Where its disc lies in the band.
    int discLeft;
};
constexpr CoverColumn columns[] = {{u"SKC", 40}, {u"FEW", 181}, {u"SCT", 327}, {u"BKN", 473}, {u"OVC", 609}};

/// The slanted line at the right of a weather, 0 to 3, at the landscape's top and foot.
QLineF dividerAfter(int column) {
    const qreal shift = 146 * column;
    return {195.5 + shift, 0, 137.5 + shift, landscapeHeight};
}

/// The part of the landscape between two dividers.
QPainterPath weatherPlace(int column) {
    const QLineF left = column == 0 ? QLineF(0, 0, 0, landscapeHeight) : dividerAfter(column - 1);
    const QLineF right = column == 4 ? QLineF(width, 0, width, landscapeHeight) : dividerAfter(column);
    QPainterPath path;
    path.addPolygon(QPolygonF({left.p1(), right.p1(), right.p2(), left.p2()}));
    return path;
}

void drawWeathers(QPainter& painter) {
    // Not smoothed: two neighbours' edges would let the ground shine through; the dividers lie over them.
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (int column = 0; column < 5; ++column) {
        const QImage landscape =
            drawLandscape(QString::fromUtf16(columns[column].code), {{width, landscapeHeight}, horizonRow});
        painter.setClipPath(weatherPlace(column));
        painter.drawImage(0, 0, landscape);
    }
    painter.setClipping(false);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(faded(white, 0.55), 1));
    for (int column = 0; column < 4; ++column)
        painter.drawLine(dividerAfter(column));
}

/// The aircraft mark on the horizon, with a dark rim to stand out from the land.
void drawMark(QPainter& painter) {
    QPainterPath mark;
    for (const qreal sign : {-1.0, 1.0}) {
        mark.moveTo(width / 2.0 + sign * 63, horizonRow + 0.5);
        mark.lineTo(width / 2.0 + sign * 27.5, horizonRow + 0.5);
        mark.lineTo(width / 2.0 + sign * 19, horizonRow + 12.5);
    }
    const QRectF dot(width / 2.0 - 2.5, horizonRow - 2, 5, 5);
    const auto draw = [&](const QColor& colour, qreal pen, qreal rim) {
        painter.strokePath(mark, QPen(colour, pen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.fillPath(roundedPath(dot.adjusted(-rim, -rim, rim, rim), 1), colour);
    };
    draw(faded(outlineColour, 0.55), 5, 1);
    draw(white, 3, 0);
}

void drawCovers(QPainter& painter) {
    int quarters = 0;
    for (const CoverColumn& column : columns) {
        drawCoverDisc(painter, QRectF(column.discLeft, 378, 12, 12), quarters, 1, textBright);
        drawSpacedText(painter, QRectF(column.discLeft + 18, 377, 60, 14), programFont(11, QFont::Bold), 1.2,
                       textBright, QString::fromUtf16(column.code), Qt::AlignLeft);
        if (quarters < 4)
            painter.fillRect(QRectF(dividerAfter(quarters).x2() - 0.5, 374, 1, 20), faded(white, 0.14));
        ++quarters;
    }
}

void drawBand(QPainter& painter) {
    const QRectF band(0, landscapeHeight, width, height - landscapeHeight);
    painter.fillRect(band, downward(band, QColor(34, 50, 62), QColor(19, 28, 36)));
    painter.fillRect(QRectF(0, landscapeHeight, width, 1), accent);
    drawCovers(painter);
    drawSpacedText(painter, {28, 408, 320, 42}, programFont(34, QFont::Bold), 12, wordMark, u"MORVANE"_s,
                   Qt::AlignLeft);
    drawText(painter, {30, 452, 320, 17}, programFont(13, QFont::Normal), textQuiet,
             u"Ground, sky and night textures by the weather"_s);
}

} // namespace

QImage drawStartPicture() {
    return drawPicture({width, height}, 1, deck, [](QPainter& painter) {
        drawWeathers(painter);
        drawMark(painter);
        drawBand(painter);
        painter.setPen(QPen(outlineColour, 1));
        painter.drawRect(QRectF(0.5, 0.5, width - 1, height - 1));
    });
}

} // namespace morvane::skin
