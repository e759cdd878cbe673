#include "weather/metar_decoder.h"

#include "core/failure_report.h"
#include "core/numbers.h"
#include "weather/metar_clouds.h"
#include "weather/metar_pairs.h"
#include "weather/metar_text.h"
#include "weather/metar_tokens.h"
#include "weather/metar_wind.h"

#include <QStringBuilder>
#include <array>
#include <utility>

namespace morvane {

namespace {

/// A wind text that is longer holds something that is no wind.
constexpr qsizetype longestWind = 6;
constexpr qsizetype longestTemperatureGroup = 7;

QString windUnit(QStringView lower) {
    if (lower.endsWith(u"kt") || lower.endsWith(u"kts")) return u"kts"_s;
    return lower.endsWith(u"mps") ? u"mps"_s : QString();
}

bool isVariation(const MetarToken& token) {
    return token.lower.size() == 7 && token.lower[3] == u'v';
}

QString visibilityText(QStringView metres) {
    if (metres == u"0000") return u"Less than 50 meters"_s;
    if (metres == u"9999") return u"Greater than 10km"_s;
    return metres % u'm';
}

bool isMiles(const MetarToken& token) {
    return token.lower.endsWith(u"sm");
}

QString temperatureText(QStringView text) {
    const bool isMinus = text.startsWith(u'm', Qt::CaseInsensitive);
    return isMinus ? u"Minus "_s % text.mid(1) : text.toString();
}

QString pressureText(const MetarToken& token) {
    if (token.lower.startsWith(u'q')) return token.text.mid(1) % u" Millibars"_s;
    return token.text.mid(1, 2) % u'.' % token.text.mid(3, 2) % u" Inches of Mercury"_s;
}

/// Only length and letter decide: "Q////" and "ABOVE" are pressures, too.
bool isPressure(const MetarToken& token) {
    return token.lower.size() == 5 && (token.lower[0] == u'q' || token.lower[0] == u'a');
}

} // namespace

clsWxFinder clsDecodeMetar::decodeMetarString(const QString& metar) {
    struct Pass {
        QString prefix;
        void (clsDecodeMetar::*run)(const MetarTokens&);
    };
    static const std::array<Pass, 8> passes{{
        {u"clsDecodeMetar, sub Wind: "_s, &clsDecodeMetar::Wind},
        {u"clsDecodeMetar, sub DateTime: "_s, &clsDecodeMetar::DateTime},
        {u"clsDecodeMetar, sub Visibility: "_s, &clsDecodeMetar::Visibility},
        {u"clsDecodeMetar, sub Weather: "_s, &clsDecodeMetar::Weather},
        {u"clsDecodeMetar, sub Obscuration: "_s, &clsDecodeMetar::Obscuration},
        {u"clsDecodeMetar, sub CloudCover: "_s, &clsDecodeMetar::CloudCover},
        {u"clsDecodeMetar, sub TempDewpoint: "_s, &clsDecodeMetar::TempDewpoint},
        {u"clsDecodeMetar, sub Pressure: "_s, &clsDecodeMetar::Pressure},
    }};
    report_.WxFinderMetar = trimMetarString(metar);
    if (trimmedBlanksView(metar).isEmpty()) return std::exchange(report_, {});
    const MetarTokens tokens(metar);
    report_.WxFinderIcao = tokens.station().toString();
    for (const Pass& pass : passes)
        reportFailures(user_, {u"METAR Error"_s, MessageKind::error, pass.prefix},
                       [&] { (this->*pass.run)(tokens); });
    return std::exchange(report_, {});
}

void clsDecodeMetar::Wind(const MetarTokens& tokens) {
    WindReader reader;
    for (const MetarToken& token : tokens.groups()) {
        const QString unit = token.isAuto ? QString() : windUnit(token.lower);
        if (unit.isEmpty()) continue;
        report_.WxFinderWindSpeedMeasurement =
            unit; // a later wind token changes the unit, though not the wind
        if (reader.text().isEmpty()) reader.read(token);
    }
    if (reader.text().isEmpty()) return;
    if (reader.text().size() > longestWind) {
        report_.WxFinderWindSpeedMeasurement.clear();
        return;
    }
    setDirectionAndSpeed(reader.text());
    report_.WxFinderWindGusting = reader.gusting();
    report_.WxFinderWindGust = reader.gust();
    setVariation(tokens);
}

void clsDecodeMetar::setDirectionAndSpeed(QStringView wind) {
    const QStringView direction = wind.left(3);
    const QStringView speed = wind.mid(3);
    const bool hasDegrees = isDigits(direction);
    if (hasDegrees)
        report_.WxFinderWindDirection = direction % u" degrees"_s;
    else if (direction.compare(u"vrb", Qt::CaseInsensitive) == 0)
        report_.WxFinderWindDirection = u"Variable"_s;
    if (!isDigits(speed)) return;
    if (speed.toInt() == 0) {
        report_.WxFinderWindDirection = u"Calm"_s;
        report_.WxFinderWindSpeed = u"0"_s;
        return;
    }
    // Three digits beside degrees, two beside "VRB" or slashes: lists and stored rows hold it so.
    report_.WxFinderWindSpeed = hasDegrees && speed.size() == 2 ? u'0' % speed : speed.toString();
}

void clsDecodeMetar::setVariation(const MetarTokens& tokens) {
    for (const MetarToken& token : tokens.groups()) {
        if (!isVariation(token)) continue;
        report_.WxFinderWindVarying = true;
        report_.WxFinderWindVaryingFrom = token.text.left(3).toString();
        report_.WxFinderWindVaryingTo = token.text.mid(4).toString();
        return;
    }
}

void clsDecodeMetar::DateTime(const MetarTokens& tokens) {
    for (const MetarToken& token : tokens.groups()) {
        if (token.isAuto || token.lower.size() != 7 || !token.lower.endsWith(u'z')) continue;
        report_.WxFinderDate = token.text.left(2).toString();
        report_.WxFinderTime = token.text.mid(2, 4).toString();
        return;
    }
}

void clsDecodeMetar::Visibility(const MetarTokens& tokens) {
    QString wholeMiles;
    const auto groups = tokens.groups();
    for (std::size_t i = 0; i < groups.size(); ++i) {
        const MetarToken& token = groups[i];
        if (token.isAuto) continue;
        if (isMiles(token))
            return setVisibility(wholeMiles % token.text.chopped(2) % u" Mile(s)"_s, u"mph"_s);
        if (!isDigits(token.text)) continue;
        if (token.text.size() == 4) return setVisibility(visibilityText(token.text), u"km"_s);
        if (token.text.size() == 1 && i + 1 < groups.size() && isMiles(groups[i + 1]))
            wholeMiles = token.text % u' ';
    }
}

void clsDecodeMetar::setVisibility(const QString& text, const QString& format) {
    report_.WxFinderVisibility = text;
    report_.WxFinderVisibilityFormat = format;
}

void clsDecodeMetar::Weather(const MetarTokens& tokens) {
    const PairGrammar plain{weatherCodes(), 0, u" and ", true};
    const PairGrammar behindSign{weatherCodes(), 1, u" and ", false};
    QString text; // wanted: not cleared between tokens, see readPairs
    for (const MetarToken& token : tokens.groups()) {
        if (token.isAuto || token.hasDigit) continue;
        setStrengthOfSign(token);
        // Wanted: the strength of an earlier token counts, so behind "-RA" a plain "SN" is read as if it had
        // a sign, too, and is not found.
        const bool isSigned = isStrengthOfSign();
        const PairsFound found = readPairs(token.lower, isSigned ? behindSign : plain, text);
        if (found.any && !isSigned) report_.WxFinderWeatherStrength = u"Moderate "_s;
        if (found.last) report_.WxFinderWeather = trimmedBlanks(text);
    }
}

void clsDecodeMetar::setStrengthOfSign(const MetarToken& token) {
    if (token.text.startsWith(u'-')) report_.WxFinderWeatherStrength = u"Light "_s;
    if (token.text.startsWith(u'+')) report_.WxFinderWeatherStrength = u"Heavy "_s;
}

bool clsDecodeMetar::isStrengthOfSign() const {
    return report_.WxFinderWeatherStrength == u"Light "_s || report_.WxFinderWeatherStrength == u"Heavy "_s;
}

void clsDecodeMetar::Obscuration(const MetarTokens& tokens) {
    // Unlike the weather it takes no notice of a sign, which puts the pairs of "-BR" out of step.
    const PairGrammar grammar{obscurationCodes(), 0, u" ", true};
    QString text; // not cleared between tokens, like the weather's
    for (const MetarToken& token : tokens.groups()) {
        if (token.isAuto || token.hasDigit) continue;
        if (!readPairs(token.lower, grammar, text).last) continue;
        if (trimmedBlanksView(report_.WxFinderFog).isEmpty())
            report_.WxFinderFog = trimmedBlanks(text);
        else
            report_.WxFinderFog += u" and "_s + text;
    }
}

void clsDecodeMetar::CloudCover(const MetarTokens& tokens) {
    CumulusMarks marks;
    for (const MetarToken& token : tokens.groups()) {
        const CloudLayer* layer = token.isAuto ? nullptr : findCloudLayer(token.lower);
        if (!layer) continue;
        if (layer->takesMarks) marks.note(token.lower);
        if (report_.WxFinderMaxCloud >= layer->cloudClass) continue;
        report_.WxFinderMaxCloud = layer->cloudClass;
        report_.WxFinderCloudCover = layer->text.toString();
        if (layer->word == u"cavok") setVisibility(u"Greater than 10km"_s, u"cavok"_s);
    }
    if (!report_.WxFinderCloudCover.isEmpty()) report_.WxFinderCloudCover += marks.text();
}

void clsDecodeMetar::TempDewpoint(const MetarTokens& tokens) {
    for (const MetarToken& token : tokens.groups()) {
        if (token.isAuto || isMiles(token) || token.text.size() > longestTemperatureGroup) continue;
        const qsizetype slash = token.text.indexOf(u'/');
        if (slash < 1) continue;
        report_.WxFinderTemperature = temperatureText(token.text.left(slash));
        const QStringView dewpoint = token.text.mid(slash + 1);
        if (!dewpoint.startsWith(u'/')) report_.WxFinderDewpoint = temperatureText(dewpoint);
        return;
    }
}

void clsDecodeMetar::Pressure(const MetarTokens& tokens) {
    for (const MetarToken& token : tokens.pressureGroups()) {
        if (token.isAuto || !isPressure(token)) continue;
        report_.WxFinderPressure = pressureText(token);
        return;
    }
}

} // namespace morvane
