#pragma once

#include <QString>

namespace morvane {

/// What the program knows of a cloud cover, by its number 1 to 5.
struct CloudCover {
    int number;
    QString word;   ///< what is stored: "Sky Clear"
    QString code;   ///< as in a METAR and on the command line: "CLR" for 1, "SKC" in the tag
    QString tag;    ///< behind the word in progress texts: " (SKC)"
    QString splash; ///< file below "\Media" that shows it: "dlgSplashSKC.bmp"
};

/// The five covers in order.
const CloudCover* cloudCovers();
inline constexpr int cloudCoverCount = 5;
/// By number or by word (trimmed, exact); nullptr when there is none.
const CloudCover* cloudCover(int number);
const CloudCover* cloudCover(const QString& word);
/// By command-line code, compared exactly; nullptr when there is none.
const CloudCover* cloudCoverOfCode(const QString& code);

} // namespace morvane
