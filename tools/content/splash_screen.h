#pragma once

#include <QImage>
#include <QString>

namespace morvane {

/// The simulator's start picture, 500 x 350 in 24 bits: a landscape under a sky with as many clouds as the
/// cover word tells ("SKC", "FEW", "SCT", "BKN" or "OVC"), the name "Morvane" and the word. An empty word
/// gives the name alone under scattered clouds, any other the same with that word.
QImage drawSplash(const QString& coverWord);

} // namespace morvane
