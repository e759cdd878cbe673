#include "skin_pictograms.h"

#include "skin_strokes.h"

#include <algorithm>
#include <iterator>

namespace morvane::skin {

namespace {

struct Drawing {
    Pictogram pictogram;
    /// In the notation of skin_strokes.h.
    const char* strokes;
};

// clang-format off
const Drawing drawings[] = {
    {Pictogram::gauge,
     "A 12 13 8.6 -37 254 M 12 6.8 L 12 8.4 M 6 13.4 L 7.4 13.4 M 16.6 13.4 L 18 13.4 "
     "M 12 13.4 L 16.4 8.9 D 12 13.4 1.2"},
    {Pictogram::peaks,
     "M 2.6 19.4 L 9.2 7.3 L 13.4 15 L 15.9 10.9 L 21.4 19.4 Z M 6.6 12.2 L 8.2 13.4 L 9.8 12.2 L 11.8 12.2"},
    {Pictogram::cloud,
     "M 7 18.4 C 4.4 18.4 2.7 16.8 2.7 14.6 C 2.7 12.5 4.2 10.9 6.4 10.7 C 7 8 9.2 6.3 12 6.3 "
     "C 14.8 6.3 17 8.1 17.6 10.6 C 19.7 10.7 21.3 12.4 21.3 14.5 C 21.3 16.8 19.6 18.4 17.3 18.4 Z"},
    {Pictogram::moon,
     "M 9.6 4.3 C 5.7 5.4 3.2 8.8 3.2 12.6 C 3.2 17 6.7 20.4 11.1 20.4 C 15.2 20.4 18.6 17.8 19.7 14.1 "
     "C 13.6 15.8 7.6 10.6 9.6 4.3 Z M 16.5 3.6 L 16.5 7.8 M 14.4 5.7 L 18.6 5.7"},
    {Pictogram::windsock,
     "M 4.5 2.8 L 4.5 21.4 M 4.5 5 L 19.9 7.8 L 19.9 11.4 L 4.5 14.4 M 9.6 6.1 L 9.6 13.3 M 14.8 7 L 14.8 12.3"},
    {Pictogram::faders,
     "M 6 3.5 L 6 8.1 M 6 12.7 L 6 20.5 O 6 10.4 2.3 M 12 3.5 L 12 12.2 M 12 16.8 L 12 20.5 O 12 14.5 2.3 "
     "M 18 3.5 L 18 5.9 M 18 10.5 L 18 20.5 O 18 8.2 2.3"},
    {Pictogram::box,
     "M 12 3 L 20 7.5 L 20 16.4 L 12 20.9 L 4 16.4 L 4 7.5 Z M 4 7.5 L 12 12 L 20 7.5 M 12 12 L 12 20.9 "
     "M 8 5.2 L 16 9.7"},
    {Pictogram::globe, "O 12 12 9 E 12 12 4 9 M 3.4 9.5 L 20.6 9.5 M 3.4 14.5 L 20.6 14.5"},
    {Pictogram::question,
     "O 12 12 9 M 9.2 9.8 C 9.3 8.2 10.4 7.2 12 7.2 C 13.6 7.2 14.8 8.2 14.8 9.7 C 14.8 11.7 12 11.9 12 13.8 "
     "D 12 16.7 1"},
    {Pictogram::information, "O 12 12 9 M 12 11 L 12 16.6 D 12 7.6 1"},
    {Pictogram::arrowLeft, "M 19.5 12 L 4.6 12 M 10.2 6.3 L 4.5 12 L 10.2 17.7"},
    {Pictogram::layers,
     "M 12 3.4 L 20.6 7.7 L 12 12 L 3.4 7.7 Z M 3.4 12 L 12 16.3 L 20.6 12 M 3.4 16 L 12 20.3 L 20.6 16"},
    {Pictogram::drop,
     "M 12 3 C 14.9 6.9 18.2 10.4 18.2 14.1 C 18.2 17.5 15.4 20.2 12 20.2 C 8.6 20.2 5.8 17.5 5.8 14.1 "
     "C 5.8 10.4 9.1 6.9 12 3 Z M 8.9 14.6 C 9.1 16.1 10.2 17.1 11.8 17.2"},
    {Pictogram::cloudWithDrop,
     "M 11.4 17.3 L 6.5 17.3 C 4.3 17.3 2.7 15.8 2.7 13.8 C 2.7 12 4 10.7 5.7 10.4 C 6.2 8.5 7.8 7.3 9.8 7.3 "
     "C 11.8 7.3 13.4 8.4 14 10.1 M 17.3 11.1 C 18.9 13.3 20.7 15.1 20.7 17.2 C 20.7 19.2 19.2 20.7 17.3 20.7 "
     "C 15.4 20.7 13.9 19.2 13.9 17.2 C 13.9 15.1 15.7 13.3 17.3 11.1 Z"},
    {Pictogram::cross, "M 6.2 6.2 L 17.8 17.8 M 17.8 6.2 L 6.2 17.8"},
    {Pictogram::lowLine, "M 5.6 16.5 L 18.4 16.5"},
    {Pictogram::layersWithPlus,
     "M 12 3.4 L 20.8 7.7 L 12 12 L 3.2 7.7 Z M 3.4 11.9 L 9.4 14.9 M 3.4 16.1 L 8.8 18.8 "
     "M 16.5 13 L 16.5 21 M 12.5 17 L 20.5 17"},
    {Pictogram::aircraftOverTray,
     "M 12 2.4 C 10.9 2.4 10.6 3.4 10.6 4.6 L 10.6 7.9 L 4.4 11.1 L 4.4 12.8 L 10.6 11.5 L 10.6 14.1 "
     "L 8.7 15.4 L 8.7 16.5 L 12 15.8 L 15.3 16.5 L 15.3 15.4 L 13.4 14.1 L 13.4 11.5 L 19.6 12.8 L 19.6 11.1 "
     "L 13.4 7.9 L 13.4 4.6 C 13.4 3.4 13.1 2.4 12 2.4 Z M 3.2 17 L 3.2 20.7 L 20.8 20.7 L 20.8 17"},
    {Pictogram::powerSign, "M 12 3.2 L 12 11.6 A 12 12.8 8.3 57 -294"},
    {Pictogram::bin,
     "M 4.2 6.4 L 19.8 6.4 M 9 6.4 L 9 3.8 L 15 3.8 L 15 6.4 M 6.2 6.4 L 7.1 20.5 L 16.9 20.5 L 17.8 6.4 "
     "M 10 10 L 10 16.9 M 14 10 L 14 16.9"},
    {Pictogram::star,
     "M 12 3.3 L 14.4 9.3 L 20.8 9.8 L 15.9 13.9 L 17.4 20.2 L 12 16.8 L 6.6 20.2 L 8.1 13.9 L 3.2 9.8 "
     "L 9.6 9.3 Z"},
    {Pictogram::picture,
     "R 3 4.4 18 15.2 1.8 M 3.4 16.6 L 8.4 11.5 L 12.7 15.8 L 15.7 13.2 L 20.6 17.2 O 16.1 8.7 1.7"},
    {Pictogram::die,
     "R 3.5 3.5 17 17 3.2 D 8.3 8.4 1.3 D 15.7 8.4 1.3 D 12 12 1.3 D 8.3 15.7 1.3 D 15.7 15.7 1.3"},
    {Pictogram::disk,
     "M 3.9 3.8 L 16.6 3.8 L 20.1 7.3 L 20.1 20.2 L 3.9 20.2 Z M 7.8 3.8 L 7.8 8.5 L 15.7 8.5 L 15.7 3.8 "
     "M 7.1 20.2 L 7.1 13.4 L 16.9 13.4 L 16.9 20.2"},
    {Pictogram::archiveIn,
     "R 3.1 3.8 17.8 4.7 1 M 4.8 8.5 L 4.8 19.7 L 19.2 19.7 L 19.2 8.5 M 12 10.9 L 12 16.9 "
     "M 9.2 14.2 L 12 17 L 14.8 14.2"},
    {Pictogram::archiveOut,
     "R 3.1 3.8 17.8 4.7 1 M 4.8 8.5 L 4.8 19.7 L 19.2 19.7 L 19.2 8.5 M 12 16.9 L 12 10.9 "
     "M 9.2 13.6 L 12 10.8 L 14.8 13.6"},
    {Pictogram::arrowDownInRing, "O 12 12 9 M 12 7 L 12 16.6 M 8.3 13 L 12 16.7 L 15.7 13"},
    {Pictogram::lensWithCloud,
     "O 10.5 10.5 7.6 M 16 16 L 21.2 21.2 M 8 13.3 C 6.8 13.3 6 12.5 6 11.5 C 6 10.5 6.7 9.8 7.7 9.7 "
     "C 8 8.4 9.1 7.6 10.3 7.6 C 11.6 7.6 12.7 8.4 13 9.7 C 14.1 9.8 14.8 10.5 14.8 11.5 "
     "C 14.8 12.5 14 13.3 12.9 13.3 Z"},
    {Pictogram::turningArrows,
     "A 12 12 8.4 172 -150 M 20.4 3.7 L 20.4 9 L 15.1 9 A 12 12 8.4 -8 -150 M 3.6 20.3 L 3.6 15 L 8.9 15"},
    {Pictogram::route,
     "O 5.1 18.7 2.1 M 9.2 17.5 L 10.2 16.5 M 11.2 14.6 L 11.7 12.7 M 12.3 10.6 L 12.7 9 "
     "M 21 4.1 L 10.8 6.5 L 14.2 7.9 L 15.2 11 Z"},
    {Pictogram::linesWithArrow,
     "M 3.5 6 L 15.1 6 M 3.5 10.5 L 11.6 10.5 M 3.5 15 L 9 15 M 11.5 18 L 20.4 18 "
     "M 16.6 14 L 20.6 18 L 16.6 22"},
    {Pictogram::tick, "M 4.4 12.7 L 9.6 17.9 L 20 6.5"},
    {Pictogram::arrowRound, "A 12 12.2 8.2 0 -328 M 20.3 3.7 L 20.3 8.9 L 15.1 8.9"},
    {Pictogram::arrowBack, "A 12 12.2 8.2 180 328 M 3.7 3.7 L 3.7 8.9 L 8.9 8.9"},
    {Pictogram::tickInRing, "O 12 12 9 M 7.9 12.4 L 10.8 15.3 L 16.2 9.2"},
    {Pictogram::lineInRing, "O 12 12 9 M 7.8 12 L 16.2 12"},
    {Pictogram::shieldWithTick,
     "M 12 2.8 L 19.8 5.6 L 19.8 11.6 C 19.8 16.2 16.6 19.6 12 21.3 C 7.4 19.6 4.2 16.2 4.2 11.6 L 4.2 5.6 Z "
     "M 8.4 11.9 L 11 14.5 L 15.8 9.2"},
    {Pictogram::twoHalves,
     "R 3 4.4 18 15.2 1.8 M 12 2.2 L 12 21.8 M 6.2 8.4 L 9.2 8.4 M 6.2 12 L 9.2 12 M 6.2 15.6 L 9.2 15.6"},
    {Pictogram::openFolder,
     "M 3.4 19 L 3.4 5 L 9.4 5 L 11.4 7.4 L 19 7.4 L 19 10.4 M 3.4 19 L 6.3 10.4 L 21.6 10.4 L 18.8 19 Z"},
    {Pictogram::warning, "M 12 3.3 L 21.6 20.4 L 2.4 20.4 Z M 12 9.4 L 12 14.8 D 12 17.6 1"},
    {Pictogram::stop,
     "M 8.2 2.8 L 15.8 2.8 L 21.2 8.2 L 21.2 15.8 L 15.8 21.2 L 8.2 21.2 L 2.8 15.8 L 2.8 8.2 Z "
     "M 9 9 L 15 15 M 15 9 L 9 15"},
    {Pictogram::clock, "O 12 12 9 M 12 6.4 L 12 12.2 L 15.9 14.3"},
};
// clang-format on

const char* strokesOf(Pictogram pictogram) {
    return std::find_if(std::begin(drawings), std::end(drawings),
                        [&](const Drawing& drawing) { return drawing.pictogram == pictogram; })
        ->strokes;
}

} // namespace

void drawPictogram(QPainter& painter, Pictogram pictogram, const QRectF& place, qreal lineWidth,
                   const QColor& colour) {
    constexpr qreal gridSide = 24;
    const Strokes strokes = strokesFrom(strokesOf(pictogram));
    painter.save();
    painter.translate(place.topLeft());
    painter.scale(place.width() / gridSide, place.height() / gridSide);
    painter.strokePath(strokes.lines, QPen(colour, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(strokes.dots, colour);
    painter.restore();
}

} // namespace morvane::skin
