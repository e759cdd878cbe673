#pragma once

#include "core/user_interface.h"
#include "weather/weather_report.h"

#include <QStringView>

namespace morvane {

class MetarTokens;
struct MetarToken;

/// Turns one raw METAR line into English display texts and a cloud class. It validates nothing: eight passes
/// look for their group among the tokens, and a group that no pass knows leaves its property empty. Month,
/// year and cycle are the caller's: they depend on where the report is from.
class clsDecodeMetar {
public:
    explicit clsDecodeMetar(UserInterface& user) : user_(user) {}

    /// The report of a line; of an empty or blank one only the line itself. A failing pass shows its message
    /// and the next ones still run.
    clsWxFinder decodeMetarString(const QString& metar);

private:
    void Wind(const MetarTokens& tokens);
    void DateTime(const MetarTokens& tokens);
    void Visibility(const MetarTokens& tokens);
    void Weather(const MetarTokens& tokens);
    void Obscuration(const MetarTokens& tokens);
    void CloudCover(const MetarTokens& tokens);
    void TempDewpoint(const MetarTokens& tokens);
    void Pressure(const MetarTokens& tokens);

    void setDirectionAndSpeed(QStringView wind);
    void setVariation(const MetarTokens& tokens);
    void setVisibility(const QString& text, const QString& format);
    void setStrengthOfSign(const MetarToken& token);
    bool isStrengthOfSign() const;

    UserInterface& user_;
    clsWxFinder report_; ///< some passes read back what they wrote for an earlier token
};

} // namespace morvane
