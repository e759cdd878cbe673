#pragma once

#include <QRgb>

namespace morvane {

/// What pages and dialogs are painted in. Bezel, deck, keys and the start picture are the same in both, and
/// textures, skies and previews are never dimmed: they are there to be judged.
enum class PaperPalette { day, night };

/// One role of a colour in both palettes.
struct PaperColour {
    QRgb day, night;

    constexpr QRgb in(PaperPalette palette) const { return palette == PaperPalette::day ? day : night; }
    bool operator==(const PaperColour&) const = default;
};

/// Every colour of the paper, by role: the windows paint with them, the content tool draws with them. Any
/// text on its ground has a contrast of 4.5 to 1 at least.
namespace paper {

constexpr PaperColour top{qRgb(250, 250, 246), qRgb(16, 24, 32)};
constexpr PaperColour foot{qRgb(241, 243, 240), qRgb(11, 17, 23)};
constexpr PaperColour topShade{qRgba(12, 32, 48, 51), qRgba(0, 0, 0, 97)}; ///< fades within 6 pixels
constexpr PaperColour text{qRgb(0, 101, 161), qRgb(118, 186, 226)};        ///< pictograms and discs, too
constexpr PaperColour hillTop{qRgba(0, 101, 161, 22), qRgba(118, 186, 226, 26)};
constexpr PaperColour hillFoot{qRgba(0, 101, 161, 5), qRgba(118, 186, 226, 8)};
constexpr PaperColour signalRed{qRgb(200, 0, 0), qRgb(255, 122, 112)};
constexpr PaperColour quietTitle{qRgb(92, 104, 130), qRgb(120, 148, 165)};
constexpr PaperColour textOff{qRgb(78, 106, 124), qRgb(120, 148, 165)}; ///< of a dead control
constexpr PaperColour accent{qRgb(19, 135, 190), qRgb(76, 196, 242)};   ///< never of a text

constexpr PaperColour field{qRgb(255, 255, 255), qRgb(8, 13, 18)};
constexpr PaperColour fieldShade{qRgba(20, 50, 70, 26), qRgba(0, 0, 0, 89)};
constexpr PaperColour fieldLine{qRgb(159, 182, 195), qRgb(55, 80, 97)};
constexpr PaperColour markLine{qRgb(110, 147, 169), qRgb(91, 130, 154)}; ///< of boxes; fills a fixed one
constexpr PaperColour tick{qRgb(255, 255, 255), qRgb(8, 13, 18)};        ///< in a box that text fills

constexpr PaperColour selectedRow{qRgb(216, 234, 244), qRgb(18, 52, 72)};
constexpr PaperColour headTop{qRgb(238, 243, 245), qRgb(30, 43, 54)}; ///< of a list
constexpr PaperColour headFoot{qRgb(225, 233, 237), qRgb(23, 34, 43)};
constexpr PaperColour headGap{qRgb(195, 208, 216), qRgb(55, 76, 91)};
constexpr PaperColour rule{qRgb(185, 201, 210), qRgb(52, 74, 89)};
constexpr PaperColour hair{qRgb(220, 228, 230), qRgb(30, 43, 53)};
constexpr PaperColour rowLine{qRgb(237, 241, 243), qRgb(19, 28, 36)};
constexpr PaperColour scrollGround{qRgb(238, 242, 244), qRgb(14, 21, 28)};
constexpr PaperColour scrollHandle{qRgb(169, 190, 202), qRgb(62, 88, 105)};

constexpr PaperColour buttonTop{qRgb(255, 255, 255), qRgb(40, 57, 70)}; ///< of a plain button
constexpr PaperColour buttonFoot{qRgb(233, 239, 241), qRgb(29, 42, 52)};
constexpr PaperColour buttonDead{qRgb(236, 240, 240), qRgb(22, 32, 40)};
constexpr PaperColour rail{qRgb(203, 215, 221), qRgb(36, 51, 62)};
constexpr PaperColour railTop{qRgb(152, 175, 189), qRgb(6, 10, 14)};
constexpr PaperColour pictureLine{qRgb(95, 124, 141), qRgb(70, 98, 115)};
constexpr PaperColour pictureEdge{qRgb(255, 255, 255), qRgb(8, 13, 18)}; ///< outside the line
constexpr PaperColour pictureShade{qRgba(20, 50, 70, 64), qRgba(0, 0, 0, 153)};
constexpr PaperColour tipText{qRgb(45, 45, 45), qRgb(230, 239, 244)};
constexpr PaperColour tipGround{qRgb(231, 231, 231), qRgb(43, 59, 71)};

} // namespace paper

} // namespace morvane
