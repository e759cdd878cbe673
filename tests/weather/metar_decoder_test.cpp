#include "weather/metar_decoder.h"

#include "core/error.h"
#include "support/printing.h"
#include "support/scripted_user.h"
#include "weather/curated_reports.h"
#include "weather/decoded_fields.h"

#include <QRegularExpression>
#include <gtest/gtest.h>

namespace morvane {
namespace {

/// The report decoded, every set property, without the station.
QStringList decoded(const QString& report) {
    test::ScriptedUser user;
    clsDecodeMetar metar(user);
    metar.decodeMetarString(report);
    EXPECT_TRUE(user.messages.empty()) << report.toStdString();
    return test::decodedFields(metar);
}

QString field(const QString& report, const QString& name) {
    const QStringList values = decoded(report).filter(QRegularExpression(u'^' + name + u'='));
    return values.isEmpty() ? QString() : values.front().mid(name.size() + 1);
}

TEST(MetarDecoder, curatedReportsWhole) {
    for (const auto& [report, fields] : test::curatedReports)
        EXPECT_EQ(decoded(QString::fromUtf8(report)), QString::fromUtf8(fields).split(u'\n')) << report;
}

TEST(MetarDecoder, blankLinesSetNothing) {
    for (const QString& line : {u""_s, u" "_s, u"     "_s})
        EXPECT_EQ(decoded(line), QStringList());
    EXPECT_EQ(decoded(u" EGLL 18/11"_s), (QStringList{u"MetarTemp=18"_s, u"MetarDewpoint=11"_s}))
        << "a leading blank makes the first token empty, and the station is a group like any other";
    EXPECT_EQ(decoded(u"\t"_s), QStringList{u"MetarICAO=\t"_s}) << "only blanks are trimmed";
}

struct WindCase {
    const char* groups;
    QStringList direction_speed_unit;
    QString gust = {};
};

void PrintTo(const WindCase& wind, std::ostream* out) {
    *out << wind.groups;
}

class MetarWind : public testing::TestWithParam<WindCase> {};

TEST_P(MetarWind, isRead) {
    const QString report = u"XXXX "_s + QString::fromLatin1(GetParam().groups);
    const QStringList found{field(report, u"WindDirection"_s), field(report, u"WindSpeed"_s),
                            field(report, u"WindSpeedMeasurement"_s)};
    EXPECT_EQ(found, GetParam().direction_speed_unit);
    EXPECT_EQ(field(report, u"WindGust"_s), GetParam().gust);
    EXPECT_EQ(field(report, u"WindGusting"_s), GetParam().gust.isEmpty() ? QString() : u"True"_s);
}

INSTANTIATE_TEST_SUITE_P(
    Groups, MetarWind,
    testing::Values(
        WindCase{"24015G28KT", {"240 degrees", "015", "kts"}, "28"},
        WindCase{"05005MPS", {"050 degrees", "005", "mps"}},
        WindCase{"240115KTS", {"240 degrees", "115", "kts"}},
        WindCase{"24015g28kt", {"240 degrees", "015", "kts"}, "28"},
        WindCase{"2405KT", {"240 degrees", "5", "kts"}}, WindCase{"24KT", {"24 degrees", "", "kts"}},
        WindCase{"VRB03KT", {"Variable", "03", "kts"}}, WindCase{"vrb02mps", {"Variable", "02", "mps"}},
        WindCase{"VRB12G25KT", {"Variable", "12", "kts"}, "25"},
        WindCase{"VRB/03KT", {"Variable", "", "kts"}}, WindCase{"VRB00KT", {"Calm", "0", "kts"}},
        WindCase{"00000KT", {"Calm", "0", "kts"}}, WindCase{"24000KT", {"Calm", "0", "kts"}},
        WindCase{"///10KT", {"", "10", "kts"}}, WindCase{"/////KT", {"", "", "kts"}},
        WindCase{"/////KT 24010KT", {"240 degrees", "010", "kts"}},
        WindCase{"240//KT", {"240 degrees", "", "kts"}}, WindCase{"///10G20KT", {"", "10", "kts"}},
        WindCase{"24012KT 36020MPS", {"240 degrees", "012", "mps"}},
        WindCase{"24012 24013KT", {"240 degrees", "013", "kts"}},
        WindCase{"250P99KT", {"250 degrees", "", "kts"}},
        WindCase{"25050GP99KT", {"250 degrees", "050", "kts"}, "99"}, WindCase{"24015G//KT", {"", "", ""}},
        WindCase{"2401500KT", {"", "", ""}}, WindCase{"AUTOKT 24012KT", {"240 degrees", "012", "kts"}},
        WindCase{"AUTOKT", {"", "", ""}}, WindCase{"Q1012 24012KT", {"", "", ""}},
        WindCase{"RMK 24012KT", {"", "", ""}}, WindCase{"KT", {"", "", "kts"}},
        WindCase{"////KT 24010KT", {"240 degrees", "010", "kts"}}, WindCase{"///KT 24010KT", {"", "", "kts"}},
        WindCase{"VRBM02KT", {"Variable", "02", "kts"}},
        WindCase{"24015G28K9KT", {"240 degrees", "015", "kts"}, "28"}));

TEST(MetarDecoder, windVariation) {
    struct Case {
        QString groups, from, to;
    };
    const Case cases[] = {
        {u"17005KT 080V220"_s, u"080"_s, u"220"_s},
        {u"17005KT 080V220 100V300"_s, u"080"_s, u"220"_s},
        {u"080v220 17005KT"_s, u"080"_s, u"220"_s},
        {u"17005KT 80V2200"_s, {}, {}},
        {u"17005KT 080V22"_s, {}, {}},
        {u"17005KT RMK 080V220"_s, {}, {}},
        {u"080V220"_s, {}, {}},
        {u"1700555KT 080V220"_s, {}, {}}, // a wind that is thrown out takes its variation along
    };
    for (const auto& [groups, from, to] : cases) {
        const QString report = u"EGLL "_s + groups;
        EXPECT_EQ(field(report, u"WindVaryingFrom"_s), from) << groups.toStdString();
        EXPECT_EQ(field(report, u"WindVaryingTo"_s), to) << groups.toStdString();
        EXPECT_EQ(field(report, u"WindVarying"_s), from.isEmpty() ? QString() : u"True"_s);
    }
}

/// Groups behind a station, and all that they decode to.
struct GroupCase {
    const char* groups;
    QStringList fields;
};

void expectGroups(const std::vector<GroupCase>& cases) {
    for (const auto& [groups, fields] : cases)
        EXPECT_EQ(decoded(u"EGLL "_s + QString::fromLatin1(groups)).mid(1), fields) << groups;
}

TEST(MetarDecoder, timeGroups) {
    expectGroups({
        {"141520Z 151630Z", {"MetarDate=14", "MetarTime=1520"}},
        {"141520z", {"MetarDate=14", "MetarTime=1520"}},
        {"AUTO14Z 141520Z", {"MetarDate=14", "MetarTime=1520"}},
        {"14152Z 1415200Z", {}},
        {"NOSIG 141520Z", {}},
    });
}

QStringList visibility(const QString& text, const QString& format) {
    return {u"MetarVisiblity="_s + text, u"MetarVisibilityFormat="_s + format};
}

TEST(MetarDecoder, visibilityGroups) {
    expectGroups({
        {"1 1/2SM", visibility(u"1 1/2 Mile(s)"_s, u"mph"_s)},
        {"10SM", visibility(u"10 Mile(s)"_s, u"mph"_s)},
        {"P6sm", visibility(u"P6 Mile(s)"_s, u"mph"_s)},
        {"SM", visibility(u" Mile(s)"_s, u"mph"_s)},
        {"1 AUTO 1/2SM", visibility(u"1/2 Mile(s)"_s, u"mph"_s)},
        {"1 AUTOSM 3SM", visibility(u"1 3 Mile(s)"_s, u"mph"_s)},
        {"12 1/2SM", visibility(u"1/2 Mile(s)"_s, u"mph"_s)},
        {"0000", visibility(u"Less than 50 meters"_s, u"km"_s)},
        {"9999", visibility(u"Greater than 10km"_s, u"km"_s)},
        {"0800 9999 3SM", visibility(u"0800m"_s, u"km"_s)},
        {"3SM 0800", visibility(u"3 Mile(s)"_s, u"mph"_s)},
        {"080 08000 9999NDV 1", {}},
        {"TEMPO 9999", {}},
        {"Q1012 9999", {"MetarPressure=1012 Millibars"}},
    });
}

TEST(MetarDecoder, weatherGroups) {
    const auto weather = [](const QString& text, const QString& strength) {
        return QStringList{u"MetarWeather="_s + text, u"MetarWeatherStrength="_s + strength};
    };
    expectGroups({
        {"RA", weather(u"Rain"_s, u"Moderate "_s)},
        {"-shra", weather(u"Shower(s) and Rain"_s, u"Light "_s)},
        {"+TSRAGR", weather(u"Thunderstorm and Rain and Hail"_s, u"Heavy "_s)},
        {"VCTS", weather(u"In Vicinity (not at aerodrome), Thunderstorm"_s, u"Moderate "_s)},
        {"RA SN", weather(u"Snow"_s, u"Moderate "_s)},
        {"RA -SN", weather(u"Snow"_s, u"Light "_s)},
        {"-RA +SN", weather(u"Snow"_s, u"Heavy "_s)},
        {"SHX", {"MetarWeatherStrength=Moderate "}}, // the last "pair" is a single letter without a text
        {"RA -", weather(u"Rain"_s, u"Light "_s)},
        {"RA1 AUTORA SKY", {}},
        {"SHBR", {"MetarWeatherStrength=Moderate ", "MetarObscuration=Mist"}},
    });
}

TEST(MetarDecoder, obscurationGroups) {
    expectGroups({
        {"BR HZ", {"MetarObscuration=Mist and Haze"}},
        {"BR  HZ", {"MetarObscuration=Mist and Haze"}},
        {"fzfg", {"MetarObscuration=Freezing Fog"}},
        {"MIFG", {"MetarObscuration=Shallow Fog"}},
        {"BCFG HZ FU", {"MetarObscuration=Patches Fog and Haze and Smoke"}},
        {"-BR", {"MetarWeatherStrength=Light "}},
        {"BRX", {}},
    });
}

TEST(MetarDecoder, cloudGroups) {
    const auto cloud = [](const QString& text, int cloudClass) {
        return QStringList{u"MetarCloud="_s + text, u"MetarMaxCloud="_s + QString::number(cloudClass)};
    };
    const QStringList cavok = visibility(u"Greater than 10km"_s, u"cavok"_s);
    expectGroups({
        {"FEW020 BKN030CB OVC100", cloud(u"Overcast: Cumulonimbus observed"_s, 5)},
        {"SCT030TCU", cloud(u"Partly Cloudy: Towering Cumulonimbus observed"_s, 3)},
        {"OVC010CU FEW020TCU SCT030CB",
         cloud(u"Overcast: Cumulonimbus observed: Towering Cumulonimbus observed: Cumulus observed"_s, 5)},
        {"OVC010 SKC CLR NSC FEW SCT020 BKN030", cloud(u"Overcast"_s, 5)},
        {"NCD SCT020", cloud(u"No Cloud Data Available"_s, 3)}, // the first of equals stays
        {"SKC CAVOK", cloud(u"Sky Clear"_s, 1)},
        {"SKC FEW020", cloud(u"Mostly Clear"_s, 2)},
        {"ovc010 VV001", cloud(u"Sky obscured"_s, 6)},
        {"NCD FEW020CB", cloud(u"No Cloud Data Available: Cumulonimbus observed"_s, 3)},
        {"CAVOK", cavok + cloud(u"No significant cloud below 5000 feet (CAVOK)"_s, 1)},
        {"CAVOK FEW020", cavok + cloud(u"Mostly Clear"_s, 2)},
        {"8000 FEW020 CAVOK", visibility(u"8000m"_s, u"km"_s) + cloud(u"Mostly Clear"_s, 2)},
        {"VV CAVOKX NCDX AUTOOVC", {}},
        {"RMK OVC010", {}},
    });
}

TEST(MetarDecoder, temperatureGroups) {
    expectGroups({
        {"M04/M06", {"MetarTemp=Minus 04", "MetarDewpoint=Minus 06"}},
        {"m04/m06", {"MetarTemp=Minus 04", "MetarDewpoint=Minus 06"}},
        {"12/", {"MetarTemp=12"}},
        {"12//", {"MetarTemp=12"}},
        {"12/M", {"MetarTemp=12", "MetarDewpoint=Minus "}},
        {"/10 12/11 13/12", {"MetarTemp=12", "MetarDewpoint=11"}},
        {"R24L/2000 XX/XX", {"MetarTemp=XX", "MetarDewpoint=XX"}},
        {"1/2SM 18/11",
         visibility(u"1/2 Mile(s)"_s, u"mph"_s) + QStringList{"MetarTemp=18", "MetarDewpoint=11"}},
        {"AUTO/1 18/11", {"MetarTemp=18", "MetarDewpoint=11"}},
        {"Q1012 18/11", {"MetarPressure=1012 Millibars"}}, // hidden behind the "q"
    });
}

TEST(MetarDecoder, pressureGroups) {
    expectGroups({
        {"A2992", {"MetarPressure=29.92 Inches of Mercury"}},
        {"q0998 A2992", {"MetarPressure=0998 Millibars"}},
        {"A2992 Q1013", {"MetarPressure=29.92 Inches of Mercury"}},
        {"QNH12", {"MetarPressure=NH12 Millibars"}},
        {"Q101 Q10122 AUTO1 A3001", {"MetarPressure=30.01 Inches of Mercury"}},
        {"RMK A2992", {}},
        {"TEMPO Q1012", {}},
        {"NOSIG Q1012", {}},
    });
    EXPECT_EQ(field(u"Q1012 18/11"_s, u"MetarPressure"_s), "1012 Millibars")
        << "the station's place is walked, too";
}

TEST(MetarDecoder, datesAndCodes) {
    test::ScriptedUser user;
    clsDecodeMetar metar(user);
    metar.decodeMetarDate(u"2007/03/12"_s);
    EXPECT_EQ(test::decodedFields(metar), (QStringList{u"MetarMonth=March"_s, u"MetarYear=2007"_s}));
    EXPECT_THROW(metar.decodeMetarDate(u"2007-03-12"_s), Error);
    EXPECT_THROW(metar.decodeMetarDate(u"2007/March/12"_s), Error);
    EXPECT_EQ(clsDecodeMetar::getMonthName(1), "January");
    EXPECT_EQ(clsDecodeMetar::getMonthName(12), "December");
    for (const int none : {-1, 0, 13})
        EXPECT_EQ(clsDecodeMetar::getMonthName(none), QString()) << none;
    EXPECT_EQ(clsDecodeMetar::decodeWeatherCode(u"Fc"), "Funnel Clouds (Tornado or Water-spout)");
    EXPECT_EQ(clsDecodeMetar::decodeWeatherCode(u"br"), QString());
    EXPECT_EQ(clsDecodeMetar::decodeObscurationCode(u"VA"), "Volcanic Ash");
    EXPECT_EQ(clsDecodeMetar::decodeObscurationCode(u"b"), QString());
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
    FailingDecoder metar(user);
    metar.decodeMetarString(u"EGLL 141520Z 17005KT CAVOK 18/11 Q1018"_s);
    QStringList expected;
    for (const char* pass : {"Wind", "DateTime", "Visibility", "Weather", "Obscuration", "CloudCover",
                             "TempDewpoint", "Pressure"})
        expected << u"Error|METAR Error|clsDecodeMetar, sub %1: Overflow"_s.arg(QLatin1String(pass));
    EXPECT_EQ(user.told(), expected);
    EXPECT_EQ(test::decodedFields(metar), QStringList{u"MetarICAO=EGLL"_s});
}

} // namespace
} // namespace morvane
