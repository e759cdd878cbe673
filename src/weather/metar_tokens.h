#pragma once

#include <QString>
#include <QStringView>
#include <QVarLengthArray>
#include <span>

namespace morvane {

/// One token of a report. The grammar is case-blind and compares `lower`; texts are copied from `text`.
struct MetarToken {
    QStringView text;
    QStringView lower;     ///< A to Z in small letters, every other character as it is
    bool isAuto = false;   ///< begins with "auto"; no pass decodes it
    bool hasDigit = false; ///< holds a digit 0 to 9
};

/// A report split at each single blank: two blanks have an empty token between them. The report's text must
/// outlive the tokens.
class MetarTokens {
public:
    explicit MetarTokens(QStringView report);
    MetarTokens(const MetarTokens&) = delete;
    MetarTokens& operator=(const MetarTokens&) = delete;

    QStringView station() const { return tokens_[0].text; }
    /// Behind the station up to the first token that is "tempo", "rmk" or "nosig" or begins with "q". What
    /// stands behind the pressure is hidden by that "q", be it a trend or the temperature.
    std::span<const MetarToken> groups() const { return upTo(groupsEnd_).subspan(1); }
    /// From the station up to "tempo", "rmk" or "nosig": where the pressure is looked for.
    std::span<const MetarToken> pressureGroups() const { return upTo(pressureEnd_); }

private:
    void append(QStringView text, QStringView lower);
    void findEnds();
    std::span<const MetarToken> upTo(qsizetype end) const {
        return {tokens_.data(), static_cast<std::size_t>(end)};
    }

    QString lower_;
    QVarLengthArray<MetarToken, 48> tokens_;
    qsizetype groupsEnd_ = 0; ///< at least 1: the station is never a stop for the groups
    qsizetype pressureEnd_ = 0;
};

} // namespace morvane
