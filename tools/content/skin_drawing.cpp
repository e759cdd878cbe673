#include "skin_drawing.h"

#include "core/literals.h"
#include "skin_palette.h"

#include <QFontMetricsF>

namespace morvane::skin {

QImage drawPicture(QSize size, int scale, const QColor& ground, const Paint& paint) {
    QImage picture(size * scale, QImage::Format_RGB32);
    picture.fill(ground);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    paint(painter);
    return picture;
}

void cutToOutline(QImage& picture, const QPainterPath& shape, int scale) {
    QImage cover(picture.size(), QImage::Format_Alpha8);
    cover.fill(0);
    QPainter painter(&cover);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.fillPath(shape, Qt::black);
    painter.end();
    for (int y = 0; y < picture.height(); ++y) {
        const uchar* covered = cover.constScanLine(y);
        auto* pixels = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x)
            if (covered[x] < 128) pixels[x] = keyColour.rgb();
    }
}

QPainterPath roundedPath(const QRectF& rectangle, qreal radius) {
    QPainterPath path;
    path.addRoundedRect(rectangle, radius, radius);
    return path;
}

QLinearGradient downward(const QRectF& rectangle, const QColor& top, const QColor& foot) {
    QLinearGradient gradient(rectangle.topLeft(), rectangle.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, foot);
    return gradient;
}

void drawInnerEdge(QPainter& painter, const QPainterPath& shape, qreal width, const QBrush& brush) {
    painter.save();
    painter.setClipPath(shape);
    painter.strokePath(shape, QPen(brush, 2 * width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.restore();
}

void drawPaper(QPainter& painter, const QRectF& place, qreal length, PaperPalette palette) {
    const QRectF gradientPlace(place.topLeft(), QSizeF(place.width(), length));
    painter.fillRect(place, downward(gradientPlace, inkOf(paper::top, palette), inkOf(paper::foot, palette)));
    const QRectF shadePlace(place.topLeft(), QSizeF(place.width(), 6));
    const QColor shade = inkOf(paper::topShade, palette);
    painter.fillRect(shadePlace, downward(shadePlace, shade, faded(shade, 0)));
}

QFont programFont(int pixels, QFont::Weight weight) {
    QFont font(u"Roboto"_s);
    font.setPixelSize(pixels);
    font.setHintingPreference(QFont::PreferNoHinting); // else letters stand on whole pixels on Windows
    font.setWeight(weight);
    return font;
}

void drawText(QPainter& painter, const QRectF& place, const QFont& font, const QColor& colour,
              const QString& text, Qt::Alignment across) {
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(place, static_cast<int>(across | Qt::AlignVCenter) | Qt::TextDontClip, text);
}

void drawSpacedText(QPainter& painter, const QRectF& place, QFont font, qreal gap, const QColor& colour,
                    const QString& text, Qt::Alignment across) {
    font.setLetterSpacing(QFont::AbsoluteSpacing, gap);
    const QPointF shift(across == Qt::AlignHCenter ? gap / 2 : 0, 0);
    drawText(painter, place.translated(shift), font, colour, text, across);
}

} // namespace morvane::skin
