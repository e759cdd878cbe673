#pragma once

#include <QImage>
#include <QString>

namespace morvane {

/// How much of the landscape a picture shows: its size and the row of the horizon, in pixels.
struct LandscapeView {
    QSize size;
    int horizon = 0;
};

/// Fields to the horizon in 24 bits, under a sky with as many clouds as the cover word tells ("SKC", "FEW",
/// "SCT", "BKN" or "OVC"; any other word gives scattered clouds). The land and the clouds are the same in
/// every weather.
QImage drawLandscape(const QString& coverWord, const LandscapeView& view);

} // namespace morvane
