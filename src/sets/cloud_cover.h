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

    // As the cover of a flight is shown.
    QString picture; ///< file below "\Media": "skc.bmp"
    QString caption; ///< "Clear Skies"
};

/// The five covers in order.
const CloudCover* cloudCovers();
inline constexpr int cloudCoverCount = 5;
/// By number or by word (trimmed, exact); nullptr when there is none.
const CloudCover* cloudCover(int number);
const CloudCover* cloudCover(const QString& word);
/// By command-line code, compared exactly; nullptr when there is none.
const CloudCover* cloudCoverOfCode(const QString& code);
/// Of a report's class: 1 to 5 are the covers themselves. An obscured sky's 6, and 0 where no class is known,
/// count as the one in the middle, "Partly Cloudy".
const CloudCover& coverOfClass(int cloudClass);

} // namespace morvane
