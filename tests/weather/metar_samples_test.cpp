#include "weather/metar_decoder.h"

#include "support/printing.h"
#include "support/scripted_user.h"
#include "weather/decoded_fields.h"
#include "weather/sample_reports.h"

#include <gtest/gtest.h>

#include <random>

namespace morvane {
namespace {

QRegularExpression whole(const QString& pattern) {
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

const std::pair<QString clsWxFinder::*, QRegularExpression> textShapes[] = {
    {&clsWxFinder::WxFinderWindDirection, whole(u"|Variable|Calm|[0-9]+ degrees"_s)},
    {&clsWxFinder::WxFinderWindSpeed, whole(u"[0-9]*"_s)},
    {&clsWxFinder::WxFinderWindSpeedMeasurement, whole(u"|kts|mps"_s)},
    {&clsWxFinder::WxFinderVisibilityFormat, whole(u"|km|mph|cavok"_s)},
    {&clsWxFinder::WxFinderCloudCover,
     whole(u"|(Sky Clear|Mostly Clear|Partly Cloudy|Mostly Cloudy|Overcast|Sky obscured|"
           "No significant cloud below 5000 feet \\(CAVOK\\)|No Cloud Data Available)"
           "(: Cumulonimbus observed)?(: Towering Cumulonimbus observed)?(: Cumulus observed)?"_s)},
};

/// Decodes any text, a report or not, and checks what always holds.
QStringList decodedSoundly(const QString& report) {
    SCOPED_TRACE(report.toStdString());
    test::ScriptedUser user;
    const clsWxFinder metar = clsDecodeMetar(user).decodeMetarString(report);
    EXPECT_TRUE(user.messages.empty());
    EXPECT_EQ(metar.WxFinderIcao, report.section(u' ', 0, 0));
    for (const auto& [value, shape] : textShapes)
        EXPECT_TRUE(shape.match(metar.*value).hasMatch()) << (metar.*value).toStdString();
    EXPECT_EQ(metar.WxFinderWindVarying, metar.WxFinderWindVaryingFrom.size() == 3);
    EXPECT_TRUE(metar.WxFinderDate.size() == 2 || metar.WxFinderTime.isEmpty());
    EXPECT_EQ(metar.WxFinderCloudCover.isEmpty(), metar.WxFinderMaxCloud == 0);
    EXPECT_EQ(metar.WxFinderVisibility.isEmpty(), metar.WxFinderVisibilityFormat.isEmpty());
    return test::decodedFields(metar);
}

TEST(MetarSamples, allReportsDecodeWithoutAMessage) {
    QMap<QString, int> set;
    for (const QString& report : test::sampleReports())
        for (const QString& field : decodedSoundly(report))
            ++set[field.section(u'=', 0, 0)];
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
    std::mt19937 random(20111123);
    for (QString report : test::sampleReports())
        for (int change = 0; change < 12; ++change)
            decodedSoundly(report = mutated(report, random));
}

TEST(MetarSamples, longLinesOfOneKind) {
    test::ScriptedUser user;
    for (const QString& unit : {u"/"_s, u"G"_s, u" "_s, u"RE"_s, u" 1"_s, u"24010KT "_s}) {
        const clsWxFinder metar = clsDecodeMetar(user).decodeMetarString(u"EGLL "_s + unit.repeated(100'000));
        EXPECT_TRUE(metar.WxFinderIcao == u"EGLL" && user.messages.empty()) << unit.toStdString();
    }
}

} // namespace
} // namespace morvane
