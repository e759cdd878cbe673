#include "weather/metar_decoder.h"

#include "cli/json_output.h"
#include "support/scripted_user.h"
#include "support/testing.h"
#include "weather/sample_reports.h"

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

/// Of the weather service's own reading of the sample reports: in how many both give the same figure. It
/// takes tenths of a degree and the other of two pressures from elsewhere, so it never is all of them.
TEST(MetarService, givesTheDecodersFigures) {
    using Ours = const clsWxFinder&;
    static const QStringList skies =
        u"|clear|mostly clear|partly cloudy|mostly cloudy|overcast|obscured"_s.split(u'|');
    const struct {
        const char* name;
        int column;     ///< of the service's table
        QString theirs; ///< what stands there, with our figure for %1
        QString (*ours)(Ours);
        int count;
    } comparisons[] = {
        {"direction", 3, u"\\(0*%1 degrees\\)"_s, [](Ours ours) { return ours.WxFinderWindDirection; }, 310},
        {"speed", 3, u"at \\d+ MPH \\(%1 KT\\)"_s, [](Ours ours) { return ours.WxFinderWindSpeed; }, 305},
        {"gust", 3, u"to \\d+ MPH \\(%1 KT\\)"_s, [](Ours ours) { return ours.WxFinderWindGust; }, 16},
        {"temperature", 8, u"\\(%1 C\\)"_s, [](Ours ours) { return ours.WxFinderTemperature; }, 299},
        {"dewpoint", 11, u"\\(%1 C\\)"_s, [](Ours ours) { return ours.WxFinderDewpoint; }, 289},
        {"pressure", 13, u"^%1 in. Hg|\\(%1 hPa\\)"_s, [](Ours ours) { return ours.WxFinderPressure; }, 319},
        {"cloud", 5, u"^%1$"_s, [](Ours ours) { return skies.value(ours.WxFinderMaxCloud); }, 304},
    };
    std::map<std::string, int> equal;
    for (const QString& line : splitLines(dataText(u"metar/noaa_decoded.tsv"_s)).mid(1)) {
        const QStringList theirs = line.split(u'\t');
        if (theirs.size() < 14) continue;
        const clsWxFinder report = decodedReport(theirs[0]);
        for (const auto& [name, column, text, ours, count] : comparisons) {
            QString figure = ours(report).replace(u"Minus "_s, u"-"_s);
            if (column != 5) figure = figure.section(u' ', 0, 0);
            figure.remove(QRegularExpression(u"(?<![\\d.])0+(?=\\d)"_s));
            equal[name] += !figure.isEmpty() && theirs[column].contains(QRegularExpression(text.arg(figure)));
        }
    }
    for (const auto& comparison : comparisons)
        EXPECT_EQ(equal[comparison.name], comparison.count) << comparison.name;
}

} // namespace
} // namespace morvane::test
