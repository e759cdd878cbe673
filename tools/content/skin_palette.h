#pragma once

#include "imaging/paper_palette.h"

#include <QColor>

/// The colours of the window program's skin, but for those of the paper.
namespace morvane::skin {

/// Cut away by the program: outside windows, in the corners of keys, round icons. Nowhere else.
constexpr QColor keyColour(255, 0, 255);

// Dark parts.
constexpr QColor outlineColour(7, 12, 17);
constexpr QColor lineColour(11, 18, 24);
constexpr QColor bezelTop(67, 90, 105);
constexpr QColor bezelMiddle(44, 61, 73);
constexpr QColor bezel(30, 43, 54);
constexpr QColor deck(22, 32, 42);
constexpr QColor deckRim(43, 59, 71);
constexpr QColor slotLine(24, 35, 44);
/// What is live: the current page, the pointer's key, the horizon. On dark only.
constexpr QColor accent(76, 196, 242);
constexpr QColor textBright(230, 239, 244);
constexpr QColor textQuiet(175, 194, 206);
constexpr QColor pictogramOff(98, 119, 133); ///< 3 to 1 on a dead key
constexpr QColor wordMark(242, 247, 250);

constexpr QColor white(255, 255, 255);
constexpr QColor black(0, 0, 0);

/// A colour of the paper.
inline QColor inkOf(const PaperColour& colour, PaperPalette palette) {
    return QColor::fromRgba(colour.in(palette));
}

/// The colour at that opacity, 0 to 1.
inline QColor faded(QColor colour, double opacity) {
    colour.setAlphaF(static_cast<float>(opacity));
    return colour;
}

} // namespace morvane::skin
