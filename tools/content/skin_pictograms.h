#pragma once

#include <QColor>
#include <QPainter>

namespace morvane::skin {

/// The line pictograms of keys, titles and messages, by what they show.
enum class Pictogram {
    gauge,
    peaks,
    cloud,
    moon,
    windsock,
    faders,
    box,
    globe,
    question,
    information,
    arrowLeft,
    layers,
    drop,
    cloudWithDrop,
    cross,
    lowLine,
    layersWithPlus,
    aircraftOverTray,
    powerSign,
    bin,
    star,
    picture,
    die,
    disk,
    archiveIn,
    archiveOut,
    arrowDownInRing,
    lensWithCloud,
    turningArrows,
    route,
    linesWithArrow,
    tick,
    arrowRound,
    arrowBack,
    tickInRing,
    lineInRing,
    shieldWithTick,
    twoHalves,
    openFolder,
    warning,
    stop,
    clock,
};

/// Draws it into a square place. `lineWidth` is on the grid of 24 units on which all of them are designed.
void drawPictogram(QPainter& painter, Pictogram pictogram, const QRectF& place, qreal lineWidth,
                   const QColor& colour);

} // namespace morvane::skin
