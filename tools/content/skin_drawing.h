#pragma once

#include "imaging/paper_palette.h"

#include <QFont>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <functional>

/// How every picture of the skin is drawn: in logical pixels, on an image of one or more device pixels each.
namespace morvane::skin {

using Paint = std::function<void(QPainter&)>;

/// An opaque picture of `size` logical pixels, `scale` device pixels each, filled with `ground`.
QImage drawPicture(QSize size, int scale, const QColor& ground, const Paint& paint);

/// Gives every pixel that the outline covers by less than half the key colour. No pixel is blended with it,
/// so that a window's region and a key's corners come out hard.
void cutToOutline(QImage& picture, const QPainterPath& shape, int scale);

QPainterPath roundedPath(const QRectF& rectangle, qreal radius);

/// A gradient from the upper to the lower edge of a rectangle.
QLinearGradient downward(const QRectF& rectangle, const QColor& top, const QColor& foot);

/// A line of that width along the inside of the shape's edge.
void drawInnerEdge(QPainter& painter, const QPainterPath& shape, qreal width, const QBrush& brush);

/// Paper with its shade below the upper edge; the gradient ends `length` below the top.
void drawPaper(QPainter& painter, const QRectF& place, qreal length, PaperPalette palette);

/// The program's typeface in whole pixels.
QFont programFont(int pixels, QFont::Weight weight);

/// One line of text, upright in the middle of the place.
void drawText(QPainter& painter, const QRectF& place, const QFont& font, const QColor& colour,
              const QString& text, Qt::Alignment across = Qt::AlignLeft);

/// Upper-case text with wide gaps, centred on its letters: no gap counts behind the last one.
void drawSpacedText(QPainter& painter, const QRectF& place, QFont font, qreal gap, const QColor& colour,
                    const QString& text, Qt::Alignment across = Qt::AlignHCenter);

} // namespace morvane::skin
