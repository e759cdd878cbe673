#include "cli/console.h"

#include "core/flights_folder.h"
#include "support/printing.h"

#include <QFile>
#include <gtest/gtest.h>

namespace morvane::test {
namespace {

struct FlyCommand : testing::Test {
    ConsoleInstall install;

    void SetUp() override {
        install.addSet(u"2-Storm"_s, u"Overcast"_s);
        install.addSet(u"3-Calm"_s, u"Sky Clear"_s);
        placeSimulator("#!/bin/sh\n");
    }
    void placeSimulator(const QByteArray& contents) {
        const FilePath program = install.simulator() / u"fs9.exe";
        writeFile(program, contents);
        QFile::setPermissions(program.native(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
};

TEST_F(FlyCommand, installsTheSetOfTheWordOrOfTheReport) {
    writeFile(install.home() / u"METAR\\02Z.txt", "EHAM");
    const QString storm = u"Default+ 2-Storm+* 3-Calm+"_s, calm = u"Default+ 2-Storm+ 3-Calm+*"_s;
    const QString standard = u"Default+* 2-Storm+ 3-Calm+"_s;
    const std::pair<QString, QString> cases[] = {
        {u"OVC"_s, storm},
        {u"CLR"_s, calm},
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
        const QJsonObject told = run.objects().at(0);
        EXPECT_TRUE(sets.contains(told[u"ground"_s].toString() + u"+*"_s));
        EXPECT_EQ(told[u"sky"_s], QJsonValue(u"Default"_s));
        EXPECT_GT(told[u"files"_s].toInt(), 0);
        EXPECT_EQ(told[u"start"_s], QJsonValue(u"simulator"_s));
    }
    EXPECT_EQ(readFile(install.home() / u"METAR\\02Z.txt"), "EHAM"); // no exit of the program
    placeSimulator("MZ");
    expectSteps(
        install,
        {{u"config|set|runner|true"_s, {u"{\"runner\":\"true\"}"_s}},
         {u"config|set|runner|false"_s},
         {u"fly|OVC"_s, {u"Exclamation: Flight Simulator Not Started"_s, u"\"start\":\"none\""_s}, 1}});
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
    const QByteArray nothing = R"({"files":0,"ground":null,"sky":null,"start":"none"})"
                               "\n";
    const auto refused = install.run(u"--answer no fly OVC"_s);
    EXPECT_EQ(refused.status, 0) << "a no is no failure";
    EXPECT_EQ(refused.output, nothing);
    const auto unasked = runConsole(u"fly OVC --home"_s, {install.home().native()});
    EXPECT_EQ(unasked.status, 1) << "but nobody to say it is one";
    EXPECT_EQ(unasked.output, nothing);
    EXPECT_EQ(unasked.messages.count(u"No; use --answer yes"_s), 3) << unasked.messages.toStdString();
    EXPECT_EQ(contentsBelow(install.simulator()), before);
    EXPECT_FALSE(install.sets().contains(u'*'));
}

TEST(FlightsCommand, loadsTheUsersFlightsAndListsThem) {
    ConsoleInstall install;
    expectSteps(install, {{u"flights|list"_s, {}, 1}, // nothing was loaded yet
                          {u"flights|load"_s},        // nobody is asked where nobody is
                          {u"flights|list"_s, {u"[]"_s}}});
    const FilePath user = install.folder / u"Own flights";
    writeFile(user / u"Evening.flt", "flight");
    writeFile(user / u"Ünten.FLT", "flight");
    install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"NonEnglishPath"_s, user.native());
    expectSteps(install, {{u"flights|load"_s}, {u"flights|list"_s, {u"[\"Evening\",\"Ünten\"]"_s}}});
}

} // namespace
} // namespace morvane::test
