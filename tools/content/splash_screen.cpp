#include "splash_screen.h"

#include "core/literals.h"
#include "landscape.h"
#include "splash_lettering.h"

#include <QPainter>

namespace morvane {

namespace {

void writeOn(QImage& image, const QString& text, qreal size, QPointF baseLine) {
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPainterPath path = letteringPath(text, size).translated(baseLine);
    const auto stroke = [&](const QColor& color, qreal pen, QPointF shift) {
        painter.strokePath(path.translated(shift),
                           QPen(color, pen, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    };
    stroke(QColor(15, 30, 50, 90), size / 5.5, {2, 3});
    stroke(QColor(255, 255, 255), size / 7, {0, 0});
}

} // namespace

QImage drawSplash(const QString& coverWord) {
    QImage image = drawLandscape(coverWord, {{500, 350}, 206});
    writeOn(image, u"Morvane"_s, 48, {34, 104});
    writeOn(image, coverWord, 22,
            {image.width() - 34 - letteringWidth(coverWord, 22), image.height() - 28.0});
    return image;
}

} // namespace morvane
