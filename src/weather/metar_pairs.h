#pragma once

#include <QString>
#include <QStringView>
#include <span>

namespace morvane {

/// A two-letter code, in small letters, and what is shown for it.
struct CodeText {
    QStringView code;
    QStringView text;
};

std::span<const CodeText> weatherCodes();
std::span<const CodeText> obscurationCodes();
/// The text of a pair in small letters; empty for an unknown one.
QStringView textOfCode(std::span<const CodeText> codes, QStringView pair);

/// How the pairs of a token are read and joined.
struct PairGrammar {
    std::span<const CodeText> codes;
    qsizetype start = 0; ///< index of the first pair
    QStringView joiner;  ///< between the texts of two pairs
    /// "In Vicinity (not at aerodrome)" and "Recent Weather" in front get ", " and no joiner behind them.
    bool hasIntroductions = true;
};

/// What a walk over the pairs of one token found.
struct PairsFound {
    bool any = false;  ///< some pair has a text
    bool last = false; ///< the last pair has one: only then the text counts
};

/// Reads a token, in small letters, two letters at a time; a single letter at its end is a pair, too. The
/// first pair replaces `text`, each later one is joined to it. When the first is unknown, the later ones join
/// what `text` held before, which is wanted: "FZRA" alone reads "and Rain".
PairsFound readPairs(QStringView token, const PairGrammar& grammar, QString& text);

} // namespace morvane
