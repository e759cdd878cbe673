#include "cli/console.h"

#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::ConsoleInstall;
using test::contentsBelow;

struct FlyCommand : testing::Test {
    ConsoleInstall install;

    void SetUp() override {
        install.addSet(u"2-Storm"_s, u"Overcast"_s);
        install.addSet(u"3-Calm"_s, u"Sky Clear"_s);
    }
    /// The set that the run installed.
    QString flown(const QStringList& arguments, int status = 0) {
        const auto run = install.run(QStringList{u"fly"_s} + arguments);
        EXPECT_EQ(run.status, status) << run.messages.toStdString();
        const QStringList installed = install.sets().filter(u"*"_s);
        return installed.size() == 1 ? installed[0] : u"%1 sets"_s.arg(installed.size());
    }
};

TEST_F(FlyCommand, installsTheSetOfTheWordOrOfTheReport) {
    const QString metar = u"--metar"_s;
    const std::pair<QStringList, QString> cases[] = {
        {{u"OVC"_s}, u"2-Storm+*"_s},
        {{u"CLR"_s}, u"3-Calm+*"_s},
        {{u"SCT"_s}, u"Default+*"_s},
        {{u"FOG"_s}, u"Default+*"_s}, // an unknown word leaves the cover open
        {{u"clr"_s}, u"Default+*"_s},
        {{metar, u"EHAM 241225Z 24015KT 9999 OVC010 18/09 Q1012"_s}, u"2-Storm+*"_s},
        {{metar, u" EHAM 241225Z 24015KT CLR 18/09 Q1012 "_s}, u"3-Calm+*"_s},
        {{metar, u"EHAM 241225Z 24015KT 0100 FG VV001 18/18 Q1012"_s}, u"Default+*"_s},
    };
    for (const auto& [arguments, installed] : cases)
        EXPECT_EQ(flown(arguments), installed) << arguments.join(u' ').toStdString();
}

TEST_F(FlyCommand, theQuestionNamesActiveSkyOnlyBehindAWord) {
    const QString question = u"to match the weather conditions obtained"_s;
    const auto word = install.run({u"fly"_s, u"OVC"_s});
    EXPECT_EQ(word.countOf(question + u" from Active Sky?"_s), 1);
    const auto report = install.run({u"fly"_s, u"--metar"_s, u"EHAM 241225Z OVC010"_s});
    EXPECT_EQ(report.countOf(question + u'?'), 1);
}

TEST_F(FlyCommand, aReportWithoutCloudsInstallsNothing) {
    const auto before = contentsBelow(install.simulator());
    // The first word is the station's, whatever it says.
    for (const QString& text : {u"EHAM 241225Z 24015KT 9999 18/09 Q1012"_s, u"OVC010"_s, u" "_s, QString()}) {
        const auto run = install.run({u"fly"_s, u"--metar"_s, text});
        EXPECT_EQ(run.status, 1) << text.toStdString();
        EXPECT_EQ(run.messages, u"Error: METAR Format Error!\n  METAR String format not recognised please "
                                u"enter new string to process\n"_s);
        EXPECT_EQ(contentsBelow(install.simulator()), before);
    }
}

TEST_F(FlyCommand, aNoInstallsNothingAndIsNoFailure) {
    const auto before = contentsBelow(install.simulator());
    const auto run =
        test::runConsole({u"--home"_s, install.home().native(), u"--answer"_s, u"no"_s, u"fly"_s, u"OVC"_s});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(contentsBelow(install.simulator()), before);
    EXPECT_TRUE(install.sets().filter(u"*"_s).isEmpty());
}

TEST_F(FlyCommand, neverClearsTheDownloadedCycles) {
    test::writeFile(install.home() / u"METAR\\02Z.txt", "EHAM");
    install.run({u"fly"_s, u"OVC"_s});
    EXPECT_EQ(test::readFile(install.home() / u"METAR\\02Z.txt"), "EHAM");
}

TEST_F(FlyCommand, theSplashOptionIsReadFirst) {
    install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"InhibitCustomSplash"_s, u"True"_s);
    for (const QStringList& words : {QStringList{u"OVC"_s}, {u"--metar"_s, u"EHAM 241225Z OVC010"_s}}) {
        EXPECT_EQ(flown(words), u"2-Storm+*"_s);
        EXPECT_EQ(test::readFile(install.simulator() / u"Uires\\dlgsplash.bmp"), "the pilot's splash");
    }
}

} // namespace
} // namespace morvane
