#include "weather/metar_decoder.h"

#include "core/numbers.h"
#include "support/printing.h"
#include "support/scripted_user.h"
#include "weather/decoded_fields.h"
#include "weather/metar_pairs.h"
#include "weather/sample_reports.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

namespace morvane {
namespace {

/// True when nothing but texts of the codes and what joins them is in the text.
bool isOfVocabulary(QString text, std::span<const CodeText> codes) {
    std::vector<CodeText> longestFirst(codes.begin(), codes.end()); // "Snow Grains" before "Snow"
    std::sort(longestFirst.begin(), longestFirst.end(),
              [](const CodeText& a, const CodeText& b) { return a.text.size() > b.text.size(); });
    for (const CodeText& entry : longestFirst)
        text.remove(entry.text.toString());
    return text.remove(u" and "_s).remove(u"and "_s).remove(u", "_s).remove(u',').remove(u' ').isEmpty();
}

bool isCloudText(QString text) {
    for (const QString& mark :
         {u": Cumulus observed"_s, u": Towering Cumulonimbus observed"_s, u": Cumulonimbus observed"_s})
        if (text.endsWith(mark)) text.chop(mark.size());
    static const std::set<QString> layers{
        u"Sky Clear"_s,
        u"Mostly Clear"_s,
        u"Partly Cloudy"_s,
        u"Mostly Cloudy"_s,
        u"Overcast"_s,
        u"Sky obscured"_s,
        u"No significant cloud below 5000 feet (CAVOK)"_s,
        u"No Cloud Data Available"_s,
    };
    return layers.contains(text);
}

bool isDirection(const QString& text) {
    return text.isEmpty() || text == u"Variable" || text == u"Calm" ||
           (text.endsWith(u" degrees") && isDigits(text.chopped(8)));
}

/// What holds for every text that is decoded, a report or not.
void expectSound(const QString& report, const clsDecodeMetar& metar) {
    SCOPED_TRACE(report.toStdString());
    EXPECT_EQ(metar.MetarICAO, report.section(u' ', 0, 0));
    EXPECT_TRUE(isDirection(metar.WindDirection)) << metar.WindDirection.toStdString();
    EXPECT_TRUE(metar.WindSpeed.isEmpty() || isDigits(metar.WindSpeed));
    EXPECT_TRUE(metar.WindSpeedMeasurement.isEmpty() || metar.WindSpeedMeasurement == u"kts" ||
                metar.WindSpeedMeasurement == u"mps");
    EXPECT_EQ(metar.WindVarying, metar.WindVaryingFrom.size() == 3);
    EXPECT_TRUE(metar.MetarDate.size() == 2 || metar.MetarTime.isEmpty());
    EXPECT_TRUE(isOfVocabulary(metar.MetarWeather, weatherCodes())) << metar.MetarWeather.toStdString();
    EXPECT_TRUE(isOfVocabulary(metar.MetarObscuration, obscurationCodes()))
        << metar.MetarObscuration.toStdString();
    EXPECT_TRUE(metar.MetarMaxCloud >= 0 && metar.MetarMaxCloud <= 6);
    EXPECT_EQ(metar.MetarCloud.isEmpty(), metar.MetarMaxCloud == 0);
    EXPECT_TRUE(metar.MetarCloud.isEmpty() || isCloudText(metar.MetarCloud))
        << metar.MetarCloud.toStdString();
    EXPECT_EQ(metar.MetarVisiblity.isEmpty(), metar.MetarVisibilityFormat.isEmpty());
    EXPECT_TRUE(metar.MetarPressure.isEmpty() || metar.MetarPressure.endsWith(u" Millibars") ||
                metar.MetarPressure.endsWith(u" Inches of Mercury"));
}

TEST(MetarSamples, allReportsDecodeWithoutAMessage) {
    test::ScriptedUser user;
    QMap<QString, int> set;
    for (const QString& report : test::sampleReports()) {
        clsDecodeMetar metar(user);
        metar.decodeMetarString(report);
        expectSound(report, metar);
        for (const QString& field : test::decodedFields(metar))
            ++set[field.section(u'=', 0, 0)];
    }
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(set[u"MetarICAO"_s], 2761);
    EXPECT_EQ(set.size(), 21) << "every property but month and year is met in the samples";
}

/// One change to a text: a character replaced, removed, doubled, or the rest cut away.
QString mutated(QString report, std::mt19937& random) {
    static const QString alphabet = u"/ kKgGvVmMqQaAsSzZ0129-+\t\r\n\0é\u0130\u212A\U0001F327"_s;
    const auto draw = [&random](qsizetype bound) {
        return static_cast<qsizetype>(random() % static_cast<std::uint32_t>(bound));
    };
    if (report.isEmpty()) return alphabet;
    const qsizetype place = draw(report.size());
    switch (draw(4)) {
    case 0:
        return report.replace(place, 1, alphabet[draw(alphabet.size())]);
    case 1:
        return report.remove(place, 1 + draw(4));
    case 2:
        return report.insert(place, report.mid(draw(report.size()), 3));
    default:
        return report.left(place);
    }
}

TEST(MetarSamples, changedReportsNeverBreakTheDecoder) {
    test::ScriptedUser user;
    std::mt19937 random(20111123);
    for (const QString& report : test::sampleReports()) {
        QString text = report;
        for (int change = 0; change < 12; ++change) {
            text = mutated(text, random);
            clsDecodeMetar metar(user);
            metar.decodeMetarString(text);
            if (!trimmedBlanks(text).isEmpty()) expectSound(text, metar);
        }
    }
    EXPECT_TRUE(user.messages.empty());
}

TEST(MetarSamples, bytesThatAreNoText) {
    test::ScriptedUser user;
    std::mt19937 random(2011);
    for (int round = 0; round < 2000; ++round) {
        QByteArray bytes(static_cast<qsizetype>(random() % 200), '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(random());
        const QString text = decodeText(bytes);
        clsDecodeMetar metar(user);
        metar.decodeMetarString(text);
        if (!trimmedBlanks(text).isEmpty()) expectSound(text, metar);
    }
    EXPECT_TRUE(user.messages.empty());
}

TEST(MetarSamples, longLinesOfOneKind) {
    test::ScriptedUser user;
    for (const QString& unit : {u"/"_s, u"G"_s, u" "_s, u"RE"_s, u" BR"_s, u" 1"_s, u"24010KT "_s}) {
        clsDecodeMetar metar(user);
        metar.decodeMetarString(u"EGLL "_s + unit.repeated(100'000));
        EXPECT_EQ(metar.MetarICAO, "EGLL");
    }
    EXPECT_TRUE(user.messages.empty());
}

} // namespace
} // namespace morvane
