#include "weather/metar_decoder.h"

#include "cli/json_output.h"
#include "support/printing.h"
#include "support/scripted_user.h"
#include "weather/sample_reports.h"

#include <gtest/gtest.h>

#include <map>

namespace morvane::test {
namespace {

/// Every property that is not empty, false or 0, as "WindSpeed=015", sorted.
QStringList decodedFields(const clsWxFinder& report) {
    const QJsonObject properties = toJson(report);
    QStringList fields;
    for (auto property = properties.begin(); property != properties.end(); ++property)
        if (*property != u""_s && *property != false && *property != 0)
            fields << property.key() + u'=' + property->toVariant().toString();
    fields.sort();
    return fields;
}

/// No report is a reason for a message.
clsWxFinder decodedReport(const QString& report) {
    ScriptedUser user;
    clsWxFinder decoded = clsDecodeMetar(user).decodeMetarString(report);
    EXPECT_TRUE(user.messages.empty()) << report.toStdString();
    return decoded;
}

/// Decodes the rows of a table beside this file: a text to put behind `station`, and all fields that it
/// decodes to, split by tabs. A line with "#" explains the rows below it. Gives the number of rows.
int decodeTable(const QString& name, const QString& station, const QStringList& stationFields) {
    int rows = 0;
    QString heading;
    const FilePath table(QStringLiteral(MORVANE_REPORT_TABLES_DIR "/") + name);
    for (const QString& line : splitLines(decodeText(NativeFileSystem().read(table)))) {
        if (line.startsWith(u'#')) heading = line;
        if (line.isEmpty() || line == heading) continue;
        const QStringList cells = line.split(u'\t');
        const QStringList fields = decodedFields(decodedReport(station + cells[0]));
        QStringList expected = stationFields + cells.mid(1);
        expected.sort();
        EXPECT_EQ(fields, expected) << (heading + u'\n' + cells[0]).toStdString();
        ++rows;
    }
    return rows;
}

TEST(MetarDecoder, curatedReportsWhole) {
    EXPECT_EQ(decodeTable(u"curated_reports.tsv"_s, {}, {}), 25);
}

TEST(MetarDecoder, groupsAndWantedOddities) {
    EXPECT_EQ(decodeTable(u"report_groups.tsv"_s, u"EGLL "_s, {u"MetarICAO=EGLL"_s}), 63);
}

/// Decodes any text, a report or not, and checks what always holds.
void decodeSoundly(const QString& report) {
    SCOPED_TRACE(report.toStdString());
    const clsWxFinder metar = decodedReport(report);
    EXPECT_EQ(metar.WxFinderIcao, report.section(u' ', 0, 0));
    EXPECT_EQ(metar.WxFinderWindVarying, metar.WxFinderWindVaryingFrom.size() == 3);
    EXPECT_TRUE(metar.WxFinderDate.size() == 2 || metar.WxFinderTime.isEmpty());
    EXPECT_EQ(metar.WxFinderCloudCover.isEmpty(), metar.WxFinderMaxCloud == 0);
    EXPECT_EQ(metar.WxFinderVisibility.isEmpty(), metar.WxFinderVisibilityFormat.isEmpty());
}

TEST(MetarSamples, neitherTheyNorDamagedOnesBreakTheDecoder) {
    const QString strange = u"/ kKgGvVmMqQaAsSzZ0129-+\t\r\n\0é\u0130\u212A\U0001F327"_s;
    for (const QString& report : sampleReports())
        for (qsizetype n = 0; n < report.size(); n += 5) {
            decodeSoundly(report.left(n));
            decodeSoundly(report.left(n) + strange[(n + report.size()) % strange.size()] + report.mid(n));
            decodeSoundly(report.left(n) + report.mid(n + 1));
        }
}

// The weather service's own reading of the sample reports, compared in meaning wherever both sides say
// something.

using Ours = const clsWxFinder&;

/// Compares a number of ours with the first group of the pattern in one column of the service's table.
struct Comparison {
    const char* figure;
    int count; ///< reports in which both give the figure
    int column;
    QString pattern;
    QString (*ours)(Ours);
    double tolerance = 0;
    QString setAside = {}; ///< how the reports begin that are read differently for a reason, joined by "|"
};

QString inKnots(Ours ours, const QString& speed) {
    return ours.WxFinderWindSpeedMeasurement == u"kts" ? speed : QString();
}
QString signedDegrees(QString degrees) {
    return degrees.replace(u"Minus "_s, u"-"_s);
}
QString pressureIn(Ours ours, QStringView unit) {
    return ours.WxFinderPressure.endsWith(unit) ? ours.WxFinderPressure.section(u' ', 0, 0) : QString();
}

// A cloud group without a height, or a heading, stands where a temperature is looked for.
const QString noTemperature =
    u"FQTT 161200Z|KEKA 041600Z|LIBE 030905Z|RJNW 290700Z|SCBP 240300Z|TEDF 101600Z|WIND 090008KT"_s;
// Groups that are not five characters; two pressures, of which the service takes the other.
const QString otherPressure =
    u"HLLS 091750Z|KQYQ 302055Z|MHTG 171200Z|OPPS 171055Z|SAST 121630Z|VILD 290700Z"_s;

const Comparison comparisons[] = {
    {"wind direction", 310, 3, u"\\((\\d+) degrees\\)"_s,
     [](Ours ours) { return ours.WxFinderWindDirection.section(u' ', 0, 0); }, 0,
     u"SVJP 151100KT"_s}, // its time
    {"wind speed", 305, 3, u"at \\d+ MPH \\((\\d+) KT\\)"_s,
     [](Ours ours) { return inKnots(ours, ours.WxFinderWindSpeed); }},
    {"gust", 16, 3, u"to \\d+ MPH \\((\\d+) KT\\)"_s,
     [](Ours ours) { return inKnots(ours, ours.WxFinderWindGust); }},
    // Half a degree apart: the service takes tenths from the remarks where there are some.
    {"temperature", 376, 8, u"\\((-?[\\d.]+) C\\)"_s,
     [](Ours ours) { return signedDegrees(ours.WxFinderTemperature); }, 0.5, noTemperature},
    {"dewpoint", 367, 11, u"\\((-?[\\d.]+) C\\)"_s,
     [](Ours ours) { return signedDegrees(ours.WxFinderDewpoint); }, 0.5, noTemperature},
    {"inches", 142, 13, u"^([\\d.]+) in. Hg"_s, [](Ours ours) { return pressureIn(ours, u"Mercury"); }, 0,
     otherPressure},
    {"millibars", 196, 13, u"\\((\\d+) hPa\\)"_s, [](Ours ours) { return pressureIn(ours, u"Millibars"); }, 0,
     otherPressure},
    {"cloud class", 304, 5, u"^([1-6])$"_s, [](Ours ours) { return QString::number(ours.WxFinderMaxCloud); }},
};

TEST(MetarService, readsEveryFigureLikeTheDecoder) {
    const QStringList skies =
        u"|clear|mostly clear|partly cloudy|mostly cloudy|overcast|obscured"_s.split(u'|');
    std::map<std::string, int> made;
    for (const QString& line : splitLines(dataText(u"metar/noaa_decoded.tsv"_s)).mid(1)) {
        QStringList theirs = line.split(u'\t');
        if (theirs.size() < 14) continue;
        theirs[5] = QString::number(skies.indexOf(theirs[5]));
        const clsWxFinder report = decodedReport(theirs[0]);
        for (const Comparison& comparison : comparisons) {
            const auto match = QRegularExpression(comparison.pattern).match(theirs[comparison.column]);
            const QString ours = comparison.ours(report);
            if (!match.hasMatch() || ours.isEmpty()) continue;
            if (comparison.setAside.split(u'|').contains(theirs[0].section(u' ', 0, 1))) continue;
            ++made[comparison.figure];
            EXPECT_NEAR(ours.toDouble(), match.captured(1).toDouble(), comparison.tolerance)
                << comparison.figure << " of " << theirs[0].toStdString();
        }
    }
    for (const Comparison& comparison : comparisons)
        EXPECT_EQ(made[comparison.figure], comparison.count) << comparison.figure;
}

} // namespace
} // namespace morvane::test
