#include "weather/metar_decoder.h"

#include "core/error.h"
#include "support/printing.h"
#include "support/scripted_user.h"
#include "weather/decoded_fields.h"
#include "weather/sample_reports.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

QStringList decoded(const QString& report) {
    test::ScriptedUser user;
    const QStringList fields = test::decodedFields(clsDecodeMetar(user).decodeMetarString(report));
    EXPECT_TRUE(user.messages.empty()) << report.toStdString();
    return fields;
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
        const QStringList fields = decoded(station + cells[0]);
        EXPECT_EQ(fields, stationFields + cells.mid(1)) << (heading + u'\n' + cells[0]).toStdString();
        ++rows;
    }
    return rows;
}

TEST(MetarDecoder, curatedReportsWhole) {
    EXPECT_EQ(decodeTable(u"curated_reports.tsv"_s, {}, {}), 25);
}

TEST(MetarDecoder, groupsAndWantedOddities) {
    EXPECT_EQ(decodeTable(u"report_groups.tsv"_s, u"EGLL "_s, {u"MetarICAO=EGLL"_s}), 117);
}

TEST(MetarDecoder, placeOfTheStation) {
    const std::pair<QString, QStringList> cases[] = {
        {u""_s, {}},
        {u"   "_s, {}},
        {u"\t"_s, {u"MetarICAO=\t"_s}}, // only blanks are trimmed
        // A leading blank makes the first token empty, and the station is a group like any other.
        {u" EGLL 18/11"_s, {u"MetarTemp=18"_s, u"MetarDewpoint=11"_s}},
        // The pressure is looked for in the station's place, too, and does not end the groups there.
        {u"Q1012 18/11"_s,
         {u"MetarICAO=Q1012"_s, u"MetarTemp=18"_s, u"MetarDewpoint=11"_s, u"MetarPressure=1012 Millibars"_s}},
    };
    for (const auto& [report, fields] : cases)
        EXPECT_EQ(decoded(report), fields);
}

/// Fails in every pass.
class FailingDecoder : public clsDecodeMetar {
public:
    using clsDecodeMetar::clsDecodeMetar;

private:
    [[noreturn]] static void fail() { throw Error(ErrorCode::overflow); }
    void Wind(const MetarTokens&) override { fail(); }
    void DateTime(const MetarTokens&) override { fail(); }
    void Visibility(const MetarTokens&) override { fail(); }
    void Weather(const MetarTokens&) override { fail(); }
    void Obscuration(const MetarTokens&) override { fail(); }
    void CloudCover(const MetarTokens&) override { fail(); }
    void TempDewpoint(const MetarTokens&) override { fail(); }
    void Pressure(const MetarTokens&) override { fail(); }
};

TEST(MetarDecoder, everyPassTellsItsFailureAndTheNextRuns) {
    test::ScriptedUser user;
    const QString line = u"EGLL 141520Z 17005KT CAVOK 18/11 Q1018"_s;
    const clsWxFinder report = FailingDecoder(user).decodeMetarString(line);
    QStringList expected;
    for (const char* pass : {"Wind", "DateTime", "Visibility", "Weather", "Obscuration", "CloudCover",
                             "TempDewpoint", "Pressure"})
        expected << u"Error|METAR Error|clsDecodeMetar, sub %1: Overflow"_s.arg(QLatin1String(pass));
    EXPECT_EQ(user.told(), expected);
    EXPECT_EQ(test::decodedFields(report), QStringList{u"MetarICAO=EGLL"_s});
}

} // namespace
} // namespace morvane
