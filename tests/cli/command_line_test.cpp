#include "cli/console.h"

#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::runConsole;

/// Runs the words behind an install that is not there: nothing but the reading of the line is tried.
test::ConsoleRun runWords(const QString& words) {
    return runConsole({}, words.split(u'|', Qt::SkipEmptyParts));
}

/// Each in one line that names it; the words are parted by "|".
TEST(CommandLine, aSlipIsNamedInOneLine) {
    const std::pair<QString, QString> cases[] = {
        {u""_s, u"a command is missing; 'morvane-cli --help' lists them"_s},
        {u"groun"_s, u"unknown command 'groun'; did you mean 'ground'?"_s},
        {u"Decode"_s, u"unknown command 'Decode'; did you mean 'decode'?"_s},
        {u"orignals|list"_s, u"unknown command 'orignals'; did you mean 'originals'?"_s},
        {u"opt|get|halo"_s, u"unknown command 'opt'; did you mean 'option'?"_s},
        {u"xyzzy"_s, u"unknown command 'xyzzy'; 'morvane-cli --help' lists them"_s},
        {u"xyzzy|--help"_s, u"unknown command 'xyzzy'; 'morvane-cli --help' lists them"_s},
        {u"ground"_s, u"'ground' takes create, list, activate, deactivate, delete or install"_s},
        {u"ground|instal|2-Storm"_s, u"unknown command 'ground instal'; did you mean 'ground install'?"_s},
        {u"ground|paint|x"_s, u"unknown command 'ground paint'; 'ground' takes create, list, activate, "
                              u"deactivate, delete or install"_s},
        {u"list|ground"_s, u"'list' stands in the wrong place: ground list"_s},
        {u"ground|--|list"_s, u"'list' stands in the wrong place: ground list"_s},
        {u"option|get|splash"_s,
         u"OPTION takes dutch, tropical, halo, fastexit, widefs or inhibitsplash, not "
         u"'splash'; did you mean 'inhibitsplash'?"_s},
        {u"ground|install"_s, u"NAME is missing: ground install NAME"_s},
        {u"ground|install|2-05-30|21-14"_s,
         u"'21-14' is one word too many: ground install NAME (what has blanks "
         u"stands in quotes)"_s},
        {u"ground|install|ground|list"_s,
         u"'list' is one word too many: ground install NAME (what has blanks "
         u"stands in quotes)"_s},
        {u"ground|create|1|0|0|0"_s, u"N5 is missing: ground create N1 N2 N3 N4 N5"_s},
        {u"ground|create|1|0|-1|0|0"_s, u"N3 takes a whole number, not '-1'"_s},
        {u"base|install"_s, u"TITLE is missing: base install TITLE..."_s},
        {u"--hme|x|decode"_s, u"unknown option '--hme'; did you mean '--home'?"_s},
        {u"decode|--jsn=1"_s, u"unknown option '--jsn'"_s},
        {u"metar|show|EHAM|--jsn"_s, u"unknown option '--jsn'; did you mean '--json'?"_s},
        {u"metar|show|EHAM|--json=yes"_s, u"--json takes no value"_s},
        {u"metar|find|--cover|Cloudy"_s, u"--cover takes Any, "_s},
        {u"metar|find|--max|many"_s, u"--max takes a whole number, not 'many'"_s},
        {u"metar|find|--icao"_s, u"--icao stands without its value"_s},
        {u"metar|import|a.txt|nooa"_s, u"FORM takes plain, noaa or asv6, not 'nooa'; did you mean 'noaa'?"_s},
        {u"--home"_s, u"--home stands without its value"_s},
        {u"--home=|decode"_s, u"--home takes a folder, not ''"_s},
        {u"--home|--answer|yes|decode"_s, u"--home stands without its value"_s},
        {u"--answer|maybe|decode"_s, u"--answer takes yes, no or ask, not 'maybe'"_s},
        {u"option|get|widefx"_s,
         u"OPTION takes dutch, tropical, halo, fastexit, widefs or inhibitsplash, not "
         u"'widefx'; did you mean 'widefs'?"_s},
        {u"option|set|halo|yes"_s, u"VALUE takes on or off, not 'yes'"_s},
        {u"config|set|sim|/x"_s, u"SETTING takes simulator, flights or runner, not 'sim'; did you mean "
                                 u"'simulator'?"_s},
        {u"fly"_s, u"WORD or --metar is missing: fly WORD, fly --metar TEXT"_s},
        {u"fly|OVV"_s, u"WORD takes CLR, FEW, SCT, BKN or OVC, not 'OVV'; did you mean 'OVC'?"_s},
        {u"fly|ovc"_s, u"WORD takes CLR, FEW, SCT, BKN or OVC, not 'ovc'; did you mean 'OVC'?"_s},
        {u"fly|-OVC"_s, u"unknown option '-OVC'"_s},
        {u"fly|--|--help"_s, u"WORD takes CLR, FEW, SCT, BKN or OVC, not '--help'"_s},
        {u"fly|OVC|--metar|EHAM OVC010"_s, u"WORD and --metar exclude each other"_s},
        {u"recolour|red|a.bmp|b.bmp"_s, u"COLOURS takes S:R:G:B:BR:C, saturation -100 to 100, red, green, "
                                        u"blue -20 to 20, brightness and contrast -30 to 30, not 'red'"_s},
        {u"recolour|0:0:0:0:0|a.bmp|b.bmp"_s, u"COLOURS takes "_s},
        {u"recolour|0:0:0:0:0:31|a.bmp|b.bmp"_s, u"COLOURS takes "_s},
        {u"recolour|-101:0:0:0:0:0|a.bmp|b.bmp"_s, u"COLOURS takes "_s},
        {u"recolour|nan:0:0:0:0:0|a.bmp|b.bmp"_s, u"COLOURS takes "_s},
        {u"recolour|0:0:0:0:0:0|in.bmp"_s, u"OUT is missing: recolour COLOURS IN OUT"_s},
        {u"station|nearest|-90.5|4"_s, u"LAT takes a number from -90 to 90, not '-90.5'"_s},
        {u"station|nearest|52,31|4"_s, u"LAT takes a number from -90 to 90, not '52,31'"_s},
        {u"station|nearest|-.5|-181"_s, u"LONG takes a number from -180 to 180, not '-181'"_s},
        {u"night|favourite|A|0:0:0:0:0:101"_s, u"SLIDERS takes six whole numbers from -100 to 100 joined by "
                                               u"\":\", not '0:0:0:0:0:101'"_s},
        {u"sky|create|Rainy|1|0|0|0|0"_s, u"BASES takes names out of "_s},
    };
    for (const auto& [words, said] : cases) {
        const auto run = runWords(words);
        EXPECT_EQ(run.status, 2) << words.toStdString();
        EXPECT_TRUE(run.messages.startsWith(u"morvane-cli: "_s + said)) << run.messages.toStdString();
        EXPECT_EQ(run.messages.count(u'\n'), 1) << run.messages.toStdString();
        EXPECT_TRUE(run.output.isEmpty());
    }
}

TEST(CommandLine, helpAndVersionGoToStandardOutput) {
    const std::pair<QString, QStringList> cases[] = {
        {u"--help"_s,
         {u"Usage: morvane-cli COMMAND"_s, u"\n  originals restore "_s, u"\n  --answer yes|no|ask"_s}},
        {u"-h"_s, {u"Usage: morvane-cli COMMAND"_s}},
        {u"sky|--help"_s, {u"Usage: morvane-cli sky COMMAND"_s, u"\n  sky show NAME "_s}},
        {u"fly|--help|--answer|yes"_s,
         {u"Usage: morvane-cli fly [WORD] [--metar TEXT]"_s, u"CLR, FEW, SCT, BKN or OVC"_s}},
        {u"station|nearest|north|-h"_s, {u"\nExample:\n  morvane-cli station nearest -33.9 151.2\n"_s}},
        {u"recolour|--help"_s, {u"Recolours a picture."_s}},
        {u"--version"_s, {u"morvane-cli 2."_s}},
    };
    for (const auto& [words, said] : cases) {
        const auto run = runWords(words);
        EXPECT_EQ(run.status, 0) << words.toStdString();
        EXPECT_EQ(run.messages, QString());
        const bool listsCommands = run.output.contains("Commands:");
        EXPECT_EQ(listsCommands, run.output.contains(" COMMAND\n")) << run.output.constData();
        for (const QString& part : said)
            EXPECT_TRUE(QString::fromUtf8(run.output).contains(part))
                << part.toStdString() << run.output.constData();
    }
}

TEST(CommandLine, everyCommandHasAnExampleThatIsUnderstood) {
    const QString overview = QString::fromUtf8(runWords(u"--help"_s).output);
    int commands = 0;
    for (const QString& line : overview.section(u"Commands:\n"_s, 1).split(u'\n')) {
        if (!line.startsWith(u"  ") || line.startsWith(u"   ")) continue;
        ++commands;
        QStringList words = line.mid(2).section(u"  "_s, 0, 0).split(u' ');
        words.erase(std::ranges::find_if(words, [](const QString& word) { return !word[0].isLower(); }),
                    words.end());
        const QString help = QString::fromUtf8(runConsole({}, words << u"--help"_s).output);
        const QString example = help.section(u"Example:\n  morvane-cli "_s, 1).section(u'\n', 0, 0);
        ASSERT_FALSE(example.isEmpty()) << line.toStdString();
        // Nothing is done in a folder that is not there.
        QStringList tried = QProcess::splitCommand(example.section(u" < "_s, 0, 0));
        tried << u"--home=/nowhere at all"_s;
        EXPECT_NE(runConsole({}, tried).status, 2) << example.toStdString();
    }
    EXPECT_GT(commands, 40);
}

TEST(CommandLine, optionsStandAnywhereAndNumbersAreOperands) {
    test::ConsoleInstall install;
    install.addSet(u"-x"_s, u"Overcast"_s);
    const QString home = install.home().native();
    const QStringList lines[] = {
        {u"--home="_s + home, u"ground"_s, u"list"_s},
        {u"ground"_s, u"--home"_s, home, u"list"_s},
        {u"ground"_s, u"list"_s, u"--home=/nowhere"_s, u"--home="_s + home}, // the last one counts
    };
    for (const QStringList& line : lines)
        EXPECT_EQ(runConsole({}, line).array().size(), 2) << line.join(u' ').toStdString();
    EXPECT_EQ(install.run(u"station nearest -33.9 -.5"_s).status, 1) << "no station; but no slip";
    EXPECT_EQ(install.run(u"ground delete -x"_s).status, 2);
    EXPECT_EQ(install.sets(), u"Default+ -x+"_s);
    EXPECT_EQ(install.run(u"ground delete -- -x"_s).status, 0);
    EXPECT_EQ(install.sets(), u"Default+"_s);
}

#ifdef Q_OS_LINUX
TEST(CommandLine, aFullDiskBehindStandardOutputIsAFailure) {
    test::ConsoleInstall install;
    for (const QString& command : {u"ground list"_s, u"--help"_s}) {
        QProcess process;
        process.setStandardOutputFile(u"/dev/full"_s);
        process.start(QStringLiteral(MORVANE_BIN_DIR "/morvane-cli"), install.withHome(command));
        ASSERT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitCode(), 1);
        EXPECT_TRUE(process.readAllStandardError().contains("could not be written"));
    }
}
#endif

} // namespace
} // namespace morvane
