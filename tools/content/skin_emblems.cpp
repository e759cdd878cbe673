#include "skin_emblems.h"

#include "skin_drawing.h"
#include "skin_palette.h"
#include "skin_pictograms.h"
#include "skin_strokes.h"

namespace morvane::skin {

namespace {

/// Side of the grid on which icon and cursors are designed.
constexpr qreal gridSide = 32;
constexpr int serviceSide = 27;

template <class Paint>
QImage drawOnGrid(int side, Paint paint) {
    QImage picture(side, side, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / gridSide, side / gridSide);
    paint(painter);
    return picture;
}

QImage drawCursor(const char* shape, const char* inside) {
    return drawOnGrid(static_cast<int>(gridSide), [&](QPainter& painter) {
        const QPen pen(outlineColour, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
        const QPainterPath path = strokesFrom(shape).lines;
        painter.fillPath(path, white);
        painter.strokePath(path, pen);
        painter.strokePath(strokesFrom(inside).lines, pen);
    });
}

QImage drawServicePicture(Pictogram pictogram) {
    return drawPicture({serviceSide, serviceSide}, 1, outlineColour, [&](QPainter& painter) {
        const QRectF place(1, 1, serviceSide - 2, serviceSide - 2);
        painter.fillRect(place, downward(place, QColor(44, 104, 158), QColor(126, 176, 212)));
        drawPictogram(painter, pictogram, {3.5, 3.5, 20, 20}, 1.8, white);
    });
}

} // namespace

QImage drawProgramIcon(int side) {
    return drawOnGrid(side, [](QPainter& painter) {
        const QPainterPath body = roundedPath({0.5, 0.5, 31, 31}, 7);
        const QRectF sky(0, 0, 32, 17), ground(0, 17, 32, 15);
        painter.setClipPath(body);
        painter.fillRect(sky, downward(sky, QColor(19, 98, 160), accent));
        painter.fillRect(ground, downward(ground, bezelTop, outlineColour));
        painter.fillRect(QRectF(0, 16.4, 32, 1.2), wordMark);
        painter.setClipping(false);
        painter.strokePath(body, QPen(outlineColour, 1));
        const QPainterPath mark =
            strokesFrom("M 4 17 L 10.6 17 L 13.2 21.6 M 28 17 L 21.4 17 L 18.8 21.6").lines;
        const auto draw = [&](const QColor& colour, qreal width) {
            painter.strokePath(mark, QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            painter.fillRect(QRectF(16 - width / 2, 16.6 - width / 2, width, width), colour);
        };
        draw(outlineColour, 3.8);
        draw(wordMark, 2.2);
    });
}

QImage drawHandCursor() {
    return drawCursor("M 9.5 20.5 L 9.5 5 C 9.5 2.8 13 2.8 13 5 L 13 13 C 13 11 16.4 11 16.4 13 L 16.4 14 "
                      "C 16.4 12.2 19.8 12.2 19.8 14 L 19.8 15 C 19.8 13.4 23 13.4 23 15.2 L 23 21 "
                      "C 23 26 20 29 16 29 C 12.5 29 10.8 27.2 9 24.5 L 5.2 18.8 C 4 17 6.2 15.4 7.8 17 Z",
                      "M 13 13 L 13 18 M 16.4 14 L 16.4 18 M 19.8 15 L 19.8 18");
}

QImage drawMoveCursor() {
    return drawCursor("M 16 2 L 21 7 L 17.5 7 L 17.5 14.5 L 25 14.5 L 25 11 L 30 16 L 25 21 L 25 17.5 "
                      "L 17.5 17.5 L 17.5 25 L 21 25 L 16 30 L 11 25 L 14.5 25 L 14.5 17.5 L 7 17.5 L 7 21 "
                      "L 2 16 L 7 11 L 7 14.5 L 14.5 14.5 L 14.5 7 L 11 7 Z",
                      "");
}

QImage drawWeatherProgramPicture() {
    return drawServicePicture(Pictogram::cloud);
}

QImage drawReportServerPicture() {
    return drawServicePicture(Pictogram::globe);
}

} // namespace morvane::skin
