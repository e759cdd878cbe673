#include "cli/nearest_word.h"

#include <algorithm>
#include <vector>

namespace morvane {

namespace {

/// How many slips lead from one text to the other.
qsizetype slipsBetween(const QString& a, const QString& b) {
    std::vector<std::vector<qsizetype>> slips(static_cast<std::size_t>(a.size()) + 1);
    for (auto& row : slips)
        row.resize(static_cast<std::size_t>(b.size()) + 1);
    for (std::size_t i = 0; i < slips.size(); ++i)
        for (std::size_t j = 0; j < slips[i].size(); ++j) {
            if (i == 0 || j == 0) {
                slips[i][j] = static_cast<qsizetype>(std::max(i, j));
                continue;
            }
            const auto at = [](const QString& text, std::size_t place) {
                return text[static_cast<qsizetype>(place)];
            };
            const qsizetype other = at(a, i - 1) == at(b, j - 1) ? 0 : 1;
            slips[i][j] = std::min({slips[i - 1][j] + 1, slips[i][j - 1] + 1, slips[i - 1][j - 1] + other});
            const bool isSwapped =
                i > 1 && j > 1 && at(a, i - 1) == at(b, j - 2) && at(a, i - 2) == at(b, j - 1);
            if (isSwapped) slips[i][j] = std::min(slips[i][j], slips[i - 2][j - 2] + 1);
        }
    return slips.back().back();
}

} // namespace

QString nearestWord(const QString& word, const QStringList& known) {
    constexpr qsizetype longest = 60; // nobody misspells a word of that length, and it would take long
    constexpr qsizetype shortestPart = 3;
    const QString typed = word.toLower();
    if (typed.isEmpty() || typed.size() > longest) return {};
    QString nearest;
    qsizetype fewest = std::max<qsizetype>(1, typed.size() / 3) + 1;
    for (const QString& candidate : known) {
        const QString text = candidate.toLower();
        const bool isPart = typed.size() >= shortestPart && text.contains(typed);
        const qsizetype slips = isPart ? 0 : slipsBetween(typed, text);
        if (slips >= fewest) continue;
        fewest = slips;
        nearest = candidate;
    }
    return nearest;
}

} // namespace morvane
