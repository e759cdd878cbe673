#pragma once

#include "imaging/paper_palette.h"
#include "skin_pictograms.h"

#include <QImage>
#include <span>

namespace morvane::skin {

/// A picture beside a title or a message: its file without ending, its side in logical pixels and what it
/// shows.
struct IconImage {
    QStringView name;
    int side;
    Pictogram pictogram;
};

std::span<const IconImage> iconImages();

/// In the colour of text on key colour; its lines are blended with paper, on which all icons lie.
QImage drawIcon(const IconImage& icon, int scale, PaperPalette palette);

/// The weather chart's disc for a cloud cover: `quarters` of it, 0 to 4, are full.
struct CoverImage {
    QStringView name;
    int side;
    int quarters;
};

std::span<const CoverImage> coverImages();

/// Like an icon.
QImage drawCover(const CoverImage& cover, int scale, PaperPalette palette);

/// The same disc in any colour, with a ring of that width.
void drawCoverDisc(QPainter& painter, const QRectF& place, int quarters, qreal ringWidth,
                   const QColor& colour);

} // namespace morvane::skin
