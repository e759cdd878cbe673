#include "cli/console.h"

#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::runConsole;

TEST(DecodeCommand, givesEveryPropertyByItsName) {
    const auto run = runConsole({u"decode"_s}, "EHAM 241225Z 24015G28KT 9999 BKN030 18/M09 Q1012\n");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.messages, QString());
    const auto objects = run.objects();
    ASSERT_EQ(objects.size(), 1u);
    EXPECT_EQ(objects[0].keys(), QStringList({"MetarCloud",
                                              "MetarDate",
                                              "MetarDewpoint",
                                              "MetarICAO",
                                              "MetarMaxCloud",
                                              "MetarMonth",
                                              "MetarObscuration",
                                              "MetarPressure",
                                              "MetarTemp",
                                              "MetarTime",
                                              "MetarVisibilityFormat",
                                              "MetarVisiblity",
                                              "MetarWeather",
                                              "MetarWeatherStrength",
                                              "MetarYear",
                                              "WindDirection",
                                              "WindGust",
                                              "WindGusting",
                                              "WindSpeed",
                                              "WindSpeedMeasurement",
                                              "WindVarying",
                                              "WindVaryingFrom",
                                              "WindVaryingTo"}));
    EXPECT_EQ(objects[0][u"WindGusting"], QJsonValue(true));
    EXPECT_EQ(objects[0][u"WindVarying"], QJsonValue(false));
    EXPECT_EQ(objects[0][u"MetarMaxCloud"], QJsonValue(4));
    EXPECT_EQ(objects[0][u"WindSpeed"], QJsonValue(u"015"_s));
    EXPECT_EQ(objects[0][u"MetarDewpoint"], QJsonValue(u"Minus 09"_s));
}

TEST(DecodeCommand, answersEveryLineWhateverItsBytes) {
    struct Case {
        QByteArray input;
        QStringList stations; ///< of the objects, in order
    };
    const Case cases[] = {
        {{}, {}},
        {"\n", {{}}},
        {"EHAM 241225Z", {u"EHAM"_s}}, // without a line end
        {"EHAM 241225Z\r\n\r\n\nKSEA\r\n", {u"EHAM"_s, {}, {}, u"KSEA"_s}},
        {"\xc3\x89HAM 241225Z\n", {u"ÉHAM"_s}},                   // UTF-8
        {"\xc9HAM 241225Z\nCAF\xc9 1\n", {u"ÉHAM"_s, u"CAFÉ"_s}}, // Latin-1
        {QByteArray("EHAM\0"
                    "241225Z\n\0\n",
                    15),
         {u"EHAM"_s, {}}}, // a NUL is a blank
        {"\xef\xbb\xbf"
         "EHAM\n",
         {u"EHAM"_s}}, // a mark of the byte order
        {QByteArray(1 << 20, 'A') + '\n', {QString(1 << 20, u'A')}},
        {"\xff\xfe\x01\x7f\t\n", {u"\u00ff\u00fe\u0001\u007f\t"_s}},
    };
    for (const Case& c : cases) {
        const auto run = runConsole({u"decode"_s}, c.input);
        EXPECT_EQ(run.status, 0);
        QStringList stations;
        for (const QJsonObject& report : run.objects())
            stations << report[u"MetarICAO"].toString();
        EXPECT_EQ(stations, c.stations) << c.input.left(40).constData();
    }
}

TEST(WrongUsage, isToldWithTheListOfCommands) {
    const QStringList cases[] = {
        {},
        {u"fly"_s},
        {u"decode"_s, u"more"_s},
        {u"Decode"_s},
        {u"recolour"_s, u"0:0:0:0:0:0"_s, u"in.bmp"_s},
        {u"recolour"_s, u"red"_s, u"in.bmp"_s, u"out.bmp"_s},
        {u"recolour"_s, u"0:0:0:0:0"_s, u"in.bmp"_s, u"out.bmp"_s},
        {u"ground"_s},
        {u"ground"_s, u"create"_s, u"1"_s, u"0"_s, u"0"_s, u"0"_s},
        {u"ground"_s, u"paint"_s, u"x"_s},
        {u"originals"_s, u"forget"_s},
        {u"--answer"_s, u"maybe"_s, u"decode"_s},
        {u"decode"_s, u"--answer"_s, u"yes"_s}, // options stand in front
        {u"--home"_s},
    };
    for (const QStringList& arguments : cases) {
        const auto run = runConsole(arguments);
        EXPECT_EQ(run.status, 2) << arguments.join(u' ').toStdString();
        EXPECT_TRUE(run.messages.startsWith(u"usage: morvane-cli "_s)) << run.messages.toStdString();
        EXPECT_TRUE(run.messages.contains(u"\n  originals restore\n"_s));
        EXPECT_TRUE(run.output.isEmpty());
    }
}

} // namespace
} // namespace morvane
