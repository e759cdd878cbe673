#include "cli/console.h"

#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::runConsole;

TEST(DecodeCommand, givesEveryPropertyByItsName) {
    const auto run = runConsole(u"decode"_s, {}, "EHAM 241225Z 24015G28KT 9999 BKN030 18/M09 Q1012\n");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.messages, QString());
    const QJsonObject report = run.objects().at(0);
    EXPECT_EQ(report.keys().join(u' '),
              u"MetarCloud MetarDate MetarDewpoint MetarICAO MetarMaxCloud MetarMonth MetarObscuration "
              u"MetarPressure MetarTemp MetarTime MetarVisibilityFormat MetarVisiblity MetarWeather "
              u"MetarWeatherStrength MetarYear WindDirection WindGust WindGusting WindSpeed "
              u"WindSpeedMeasurement WindVarying WindVaryingFrom WindVaryingTo"_s);
    EXPECT_EQ(report[u"WindGusting"], QJsonValue(true));
    EXPECT_EQ(report[u"MetarMaxCloud"], QJsonValue(4));
    EXPECT_EQ(report[u"WindSpeed"], QJsonValue(u"015"_s));
    EXPECT_EQ(report[u"MetarDewpoint"], QJsonValue(u"Minus 09"_s));
}

TEST(DecodeCommand, answersEveryLineWhateverItsBytes) {
    const std::pair<QByteArray, QStringList> cases[] = {
        // The station of each object.
        {{}, {}},
        {"\n", {{}}},
        {"EHAM 241225Z", {u"EHAM"_s}}, // without a line end
        {"EHAM 241225Z\r\n\r\n\nKSEA\r\n", {u"EHAM"_s, {}, {}, u"KSEA"_s}},
        {"\xc3\x89HAM 241225Z\n", {u"ÉHAM"_s}},                   // UTF-8
        {"\xc9HAM 241225Z\nCAF\xc9 1\n", {u"ÉHAM"_s, u"CAFÉ"_s}}, // Latin-1
        {QByteArray("EHAM\0Z\n\0\n", 9), {u"EHAM"_s, {}}},        // a NUL is a blank
        {"\357\273\277EHAM\n", {u"EHAM"_s}},                      // a mark of the byte order
        {QByteArray(1 << 20, 'A') + '\n', {QString(1 << 20, u'A')}},
        {"\xff\xfe\x01\x7f\t\n", {u"\u00ff\u00fe\u0001\u007f\t"_s}},
    };
    for (const auto& [input, expected] : cases) {
        const auto run = runConsole(u"decode"_s, {}, input);
        EXPECT_EQ(run.status, 0);
        QStringList stations;
        for (const QJsonObject& report : run.objects())
            stations << report[u"MetarICAO"].toString();
        EXPECT_EQ(stations, expected) << input.left(40).constData();
    }
}

} // namespace
} // namespace morvane
