#pragma once

#include <QRgb>

/// The colours of the skin, each told once. Text on paper is text blue throughout; the accent stands on dark
/// only, where it means "live".
namespace morvane::palette {

constexpr QRgb key = qRgb(255, 0, 255); ///< transparent in the pictures
constexpr QRgb outline = qRgb(7, 12, 17);
constexpr QRgb line = qRgb(11, 18, 25);
constexpr QRgb bezel = qRgb(30, 43, 54);
constexpr QRgb bezelTop = qRgb(67, 90, 105);
constexpr QRgb bezelMid = qRgb(44, 61, 73);
constexpr QRgb deck = qRgb(22, 32, 42);
constexpr QRgb deckRim = qRgb(43, 59, 71);
constexpr QRgb accent = qRgb(76, 196, 242);
constexpr QRgb accentOnPaper = qRgb(19, 135, 190); ///< never a colour of text: too light for it

constexpr QRgb textBright = qRgb(230, 239, 244);
constexpr QRgb textQuiet = qRgb(175, 194, 206);
constexpr QRgb textOff = qRgb(127, 149, 163);
constexpr QRgb pictogramOff = qRgb(86, 107, 121);
constexpr QRgb wordMark = qRgb(242, 247, 250);
constexpr QRgb textBlue = qRgb(0, 101, 161);
constexpr QRgb signalRed = qRgb(200, 0, 0);

constexpr QRgb paperTop = qRgb(250, 250, 246);
constexpr QRgb paperFoot = qRgb(241, 243, 240);
constexpr QRgb field = qRgb(255, 255, 255);
constexpr QRgb fieldLine = qRgb(159, 182, 195);
constexpr QRgb fieldShade = qRgba(20, 50, 70, 26);
constexpr QRgb markLine = qRgb(110, 147, 169);
constexpr QRgb rule = qRgb(185, 201, 210);
constexpr QRgb hair = qRgb(220, 228, 230);
constexpr QRgb rowLine = qRgb(237, 241, 243);
constexpr QRgb selectedRow = qRgb(216, 234, 244);
constexpr QRgb listHeadTop = qRgb(238, 243, 245);
constexpr QRgb listHeadFoot = qRgb(225, 233, 237);
constexpr QRgb listHeadGap = qRgb(195, 208, 216);
constexpr QRgb scrollGround = qRgb(238, 242, 244);
constexpr QRgb scrollHandle = qRgb(169, 190, 202);
constexpr QRgb buttonFoot = qRgb(233, 239, 241); ///< of a plain button, whose top is white
constexpr QRgb tipText = qRgb(45, 45, 45);
constexpr QRgb tipGround = qRgb(231, 231, 231);

constexpr QRgb keyTop = qRgb(58, 78, 92); ///< a skinned key, and the plain button that looks like one
constexpr QRgb keyFoot = qRgb(42, 59, 71);
constexpr QRgb keyHoverTop = qRgb(74, 100, 117);
constexpr QRgb keyHoverFoot = qRgb(53, 75, 90);
constexpr QRgb keyPressedTop = qRgb(24, 36, 45);
constexpr QRgb keyPressedFoot = qRgb(34, 49, 60);
constexpr QRgb keyDisabled = qRgb(31, 44, 54);

constexpr QRgb rail = qRgb(203, 215, 221);
constexpr QRgb railShade = qRgb(152, 175, 189);
constexpr QRgb thumbTop = qRgb(74, 97, 113);
constexpr QRgb thumbFoot = qRgb(38, 54, 65);
constexpr QRgb progressTop = qRgb(122, 214, 247);
constexpr QRgb progressFoot = qRgb(47, 168, 218);
constexpr QRgb pictureLine = qRgb(95, 124, 141);
constexpr QRgb pictureShade = qRgba(20, 50, 70, 64);

} // namespace morvane::palette
