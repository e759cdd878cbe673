#include "cli/console.h"

#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::contentsBelow;

struct FlyCommand : testing::Test {
    test::ConsoleInstall install;

    void SetUp() override {
        install.addSet(u"2-Storm"_s, u"Overcast"_s);
        install.addSet(u"3-Calm"_s, u"Sky Clear"_s);
    }
};

TEST_F(FlyCommand, installsTheSetOfTheWordOrOfTheReport) {
    test::writeFile(install.home() / u"METAR\\02Z.txt", "EHAM");
    const QString storm = u"Default+ 2-Storm+* 3-Calm+"_s, calm = u"Default+ 2-Storm+ 3-Calm+*"_s;
    const QString standard = u"Default+* 2-Storm+ 3-Calm+"_s;
    const std::pair<QString, QString> cases[] = {
        {u"OVC"_s, storm},
        {u"CLR"_s, calm},
        {u"FOG"_s, standard}, // an unknown word leaves the cover open
        {u"clr"_s, standard},
        {u"EHAM 241225Z 24015KT 9999 OVC010 18/09 Q1012"_s, storm},
        {u" EHAM 241225Z 24015KT CLR 18/09 Q1012 "_s, calm},
        {u"EHAM 241225Z 24015KT 0100 FG VV001 18/18 Q1012"_s, standard},
    };
    for (const auto& [text, sets] : cases) {
        const bool isReport = text.contains(u' ');
        const auto run = install.run(isReport ? u"fly --metar"_s : u"fly"_s, {text});
        EXPECT_EQ(run.status, 0) << run.messages.toStdString();
        EXPECT_EQ(install.sets(), sets) << text.toStdString();
        const QString question = u"to match the weather conditions obtained"_s;
        EXPECT_TRUE(run.messages.contains(question + (isReport ? u"?"_s : u" from Active Sky?"_s)));
    }
    EXPECT_EQ(test::readFile(install.home() / u"METAR\\02Z.txt"), "EHAM"); // no exit of the program
}

TEST_F(FlyCommand, aReportWithoutCloudsOrANoInstallsNothing) {
    const auto before = contentsBelow(install.simulator());
    // The first word is the station's, whatever it says.
    for (const QString& text : {u"EHAM 241225Z 24015KT 9999 18/09 Q1012"_s, u"OVC010"_s, u" "_s, QString()}) {
        const auto run = install.run(u"fly --metar"_s, {text});
        EXPECT_EQ(run.status, 1) << text.toStdString();
        EXPECT_EQ(run.messages, u"Error: METAR Format Error!\n  METAR String format not recognised please "
                                u"enter new string to process\n"_s);
    }
    EXPECT_EQ(install.run(u"--answer no fly OVC"_s).status, 0); // a no is no failure
    EXPECT_EQ(contentsBelow(install.simulator()), before);
    EXPECT_FALSE(install.sets().contains(u'*'));
}

TEST_F(FlyCommand, theSplashOptionIsReadFirst) {
    install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"InhibitCustomSplash"_s, u"True"_s);
    const QString commands[][2] = {{u"fly"_s, u"OVC"_s}, {u"fly --metar"_s, u"EHAM 241225Z OVC010"_s}};
    for (const auto& [command, text] : commands) {
        EXPECT_EQ(install.run(command, {text}).status, 0);
        EXPECT_EQ(test::readFile(install.simulator() / u"Uires\\dlgsplash.bmp"), "the pilot's splash");
    }
}

} // namespace
} // namespace morvane
