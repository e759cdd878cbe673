#pragma once

#include "core/user_interface.h"

#include <QString>
#include <QStringView>
#include <cstdint>

namespace morvane {

class MetarTokens;
struct MetarToken;

/// Turns one raw METAR line into English display texts and a cloud class. It validates nothing: eight passes
/// look for their group among the tokens, and a group that no pass knows leaves its property empty.
///
/// One object serves one report, since some passes read back what they wrote for an earlier token.
class clsDecodeMetar {
public:
    explicit clsDecodeMetar(UserInterface& user) : user_(user) {}
    virtual ~clsDecodeMetar() = default;

    /// Decodes a line into the properties; an empty or blank one changes nothing. A failing pass shows its
    /// message and the next ones still run.
    void decodeMetarString(const QString& metar);
    /// Sets month and year from "2007/03/12"; the day is not read. Raises "Subscript out of range" for a text
    /// without "/" and "Type mismatch" when the month is no number.
    void decodeMetarDate(const QString& date);

    /// English name of the months 1 to 12; empty for any other number.
    static QString getMonthName(int number);
    /// Text of a two-letter code in any case; empty for an unknown one.
    static QString decodeWeatherCode(QStringView pair);
    static QString decodeObscurationCode(QStringView pair);

    QString MetarICAO;            ///< first token of the line, unchanged
    QString WindSpeedMeasurement; ///< "kts" or "mps"
    QString WindDirection;        ///< "240 degrees", "Variable" or "Calm"
    QString WindSpeed;            ///< digits: "015", "0" when calm
    bool WindGusting = false;
    QString WindGust; ///< digits as written
    bool WindVarying = false;
    QString WindVaryingFrom; ///< "200" of "200V260"
    QString WindVaryingTo;
    QString MetarDate;  ///< day of month, two characters
    QString MetarTime;  ///< HHMM
    QString MetarMonth; ///< only from decodeMetarDate, like the year
    QString MetarYear;
    QString MetarVisiblity;
    QString MetarVisibilityFormat; ///< "km" (metres), "mph" (miles: the misnomer is wanted) or "cavok"
    QString MetarWeather;
    QString MetarWeatherStrength; ///< "Light ", "Heavy " or "Moderate ", with the blank
    QString MetarObscuration;
    QString MetarCloud;             ///< heaviest layer and the cumulus marks
    std::int16_t MetarMaxCloud = 0; ///< 0 none seen, 1 clear to 5 overcast, 6 sky obscured
    QString MetarTemp;              ///< "18" or "Minus 04"
    QString MetarDewpoint;
    QString MetarPressure; ///< "1012 Millibars" or "29.92 Inches of Mercury"

private:
    // Virtual so that a test can make one fail: no report is known to.
    virtual void Wind(const MetarTokens& tokens);
    virtual void DateTime(const MetarTokens& tokens);
    virtual void Visibility(const MetarTokens& tokens);
    virtual void Weather(const MetarTokens& tokens);
    virtual void Obscuration(const MetarTokens& tokens);
    virtual void CloudCover(const MetarTokens& tokens);
    virtual void TempDewpoint(const MetarTokens& tokens);
    virtual void Pressure(const MetarTokens& tokens);

    void setDirectionAndSpeed(QStringView wind);
    void setVariation(const MetarTokens& tokens);
    void setVisibility(const QString& text, const QString& format);
    void setStrengthOfSign(const MetarToken& token);
    bool isStrengthOfSign() const;

    UserInterface& user_;
};

} // namespace morvane
