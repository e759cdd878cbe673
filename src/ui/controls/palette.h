#pragma once

#include "imaging/paper_palette.h"

class QPalette;

/// The colours of the windows, each told once. Those of the paper stand in the table of both palettes; here
/// are the dark parts, which look the same by day and at night. The accent means "live".
namespace morvane::palette {

/// The palette that everything is painted in.
PaperPalette inUse();
/// That role's colour in it.
QRgb now(const PaperColour& colour);
/// The same for the toolkit's own painting; what it has no name for goes by "BrightText" (signal red),
/// "LinkVisited" (a quiet title), "Dark" (rule) and "Midlight" (hair).
QPalette ofWidgets();
/// Paints in that one from now on: everything that is open, at once.
void use(PaperPalette palette);

constexpr QRgb key = qRgb(255, 0, 255); ///< transparent in the pictures
constexpr QRgb outline = qRgb(7, 12, 17);
constexpr QRgb line = qRgb(11, 18, 25);
constexpr QRgb bezel = qRgb(30, 43, 54);
constexpr QRgb bezelMid = qRgb(44, 61, 73);
constexpr QRgb deck = qRgb(22, 32, 42);
constexpr QRgb accent = qRgb(76, 196, 242);
constexpr QRgb glow = qRgba(76, 196, 242, 70); ///< round a progress bar's fill

constexpr QRgb textBright = qRgb(230, 239, 244);
constexpr QRgb textQuiet = qRgb(175, 194, 206);
constexpr QRgb textOff = qRgb(127, 149, 163);
constexpr QRgb textLit = qRgb(255, 255, 255); ///< of a key below the mouse

constexpr QRgb keyTop = qRgb(58, 78, 92); ///< a skinned key, and the plain button that looks like one
constexpr QRgb keyFoot = qRgb(42, 59, 71);
constexpr QRgb keyHoverTop = qRgb(74, 100, 117);
constexpr QRgb keyHoverFoot = qRgb(53, 75, 90);
constexpr QRgb keyPressedTop = qRgb(24, 36, 45);
constexpr QRgb keyPressedFoot = qRgb(34, 49, 60);
constexpr QRgb keyDisabled = qRgb(31, 44, 54);
constexpr QRgb keyHoverLine = qRgb(19, 135, 190);
constexpr QRgb keyLight = qRgba(255, 255, 255, 41); ///< its upper and its lower edge
constexpr QRgb keyShade = qRgba(0, 0, 0, 56);

constexpr QRgb thumbTop = qRgb(74, 97, 113);
constexpr QRgb thumbFoot = qRgb(38, 54, 65);
constexpr QRgb thumbLight = qRgba(255, 255, 255, 64);
constexpr QRgb progressTop = qRgb(122, 214, 247);
constexpr QRgb progressFoot = qRgb(47, 168, 218);
/// Lines over a texture.
constexpr QRgb overPicture = qRgb(255, 255, 255);

} // namespace morvane::palette
