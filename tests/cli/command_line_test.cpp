#include "cli/console.h"

#include "core/store.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>

namespace morvane::test {
namespace {

/// Runs the words behind an install that is not there: nothing but the reading of the line is tried.
ConsoleRun runWords(const QString& words) {
    return runConsole({}, words.split(u'|', Qt::SkipEmptyParts));
}

/// Each in one line that names it; the words are parted by "|".
TEST(CommandLine, aSlipIsNamedInOneLine) {
    const std::pair<QString, QString> cases[] = {
        {"", "a command is missing; 'morvane-cli --help' lists them"},
        {"groun", "unknown command 'groun'; did you mean 'ground'?"},
        {"ground",
         "'ground' takes create, list, activate, deactivate, delete, install, export, import or sheet"},
        {"ground|instal|2-Storm", "unknown command 'ground instal'; did you mean 'ground install'?"},
        {"ground|--|list", "'list' stands in the wrong place: ground list"},
        {"ground|install", "NAME is missing: ground install NAME"},
        {"ground|install|2-05-30|21-14",
         "'21-14' is one word too many: ground install NAME (what has blanks stands in quotes)"},
        {"ground|create|1|0|-1|0|0", "N3 takes a whole number, not '-1'"},
        {"--hme|x|decode", "unknown option '--hme'; did you mean '--home'?"},
        {"metar|find|--cover|Cloudy", "--cover takes Any, "},
        {"--home", "--home stands without its value"},
        {"--answer|maybe|decode", "--answer takes yes, no or ask, not 'maybe'"},
        {"fly", "WORD or one of --from, --plan, --cover and --metar is missing"},
        {"fly|--from|EHAM|--plan|a.pln", "--from and --plan exclude each other"},
        {"fly|--cover|OVC|--to|EHAM", "--to goes with --from ICAO"},
        {"fly|--from|the sea", "--from takes an airport's code, not 'the sea'"},
        {"fly|OVC|--dry-run", "--dry-run goes with --from, --plan, --cover or --metar"},
        {"fly|--cover|OVC|--flight|A|--no-start", "--flight and --no-start exclude each other"},
        {"fly|--cover|OVC|--max-age|-5", "--max-age takes a whole number of minutes, not '-5'"},
        {"fly|Route.PLN", "WORD takes CLR, FEW, SCT, BKN or OVC, not 'Route.PLN'; a flight plan is flown by "
                          "fly --plan 'Route.PLN'"},
        {"look.morvaneset", "unknown command 'look.morvaneset'; a shared set is taken by ground, sky or "
                            "night import 'look.morvaneset'"},
        {"fly|ovc", "WORD takes CLR, FEW, SCT, BKN or OVC, not 'ovc'; did you mean 'OVC'?"},
        {"fly|OVC|--metar|EHAM OVC010", "WORD and --metar exclude each other"},
        {"recolour|red|a.bmp|b.bmp",
         "COLOURS takes S:R:G:B:BR:C, saturation -100 to 100, red, green, blue -20 to 20, "
         "brightness and contrast -30 to 30, not 'red'"},
        {"station|nearest|-90.5|4", "LAT takes a number from -90 to 90, not '-90.5'"},
        {"night|favourite|A|0:0:0:0:0:101",
         "SLIDERS takes six whole numbers from -100 to 100 joined by \":\", "},
        {"sky|create|Rainy|1|0|0|0|0", "BASES takes names out of "},
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
        {"--help", {"Usage: morvane-cli COMMAND", "\n  originals restore ", "\n  --answer yes|no|ask"}},
        {"-h", {"Usage: morvane-cli COMMAND"}},
        {"sky|--help", {"Usage: morvane-cli sky COMMAND", "\n  sky show NAME "}},
        {"fly|--help|--answer|yes",
         {"Usage: morvane-cli fly [WORD] [OPTION...]", "CLR, FEW, SCT, BKN or OVC"}},
        {"station|nearest|north|-h", {"\nExample:\n  morvane-cli station nearest -33.9 151.2\n"}},
        {"--version", {"morvane-cli 2."}},
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
    const TemporaryFolder folder; // for a report, which is saved all the same
    const auto back = qScopeGuard([before = QDir::currentPath()] { QDir::setCurrent(before); });
    QDir::setCurrent(folder.path().native());
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
    ConsoleInstall install;
    install.addSet(u"-x"_s, u"Overcast"_s);
    const QString home = install.home().native();
    EXPECT_EQ(runConsole(u"ground --home"_s, {home, u"list"_s}).array().size(), 2);
    EXPECT_EQ(runConsole(u"ground list --home=/nowhere"_s, {u"--home="_s + home}).array().size(), 2)
        << "the last one counts";
    EXPECT_EQ(install.run(u"station nearest -33.9 -.5"_s).status, 1) << "no station; but no slip";
    EXPECT_EQ(install.run(u"ground delete -x"_s).status, 2);
    EXPECT_EQ(install.sets(), u"Default+ -x+"_s);
    EXPECT_EQ(install.run(u"ground delete -- -x"_s).status, 0);
    EXPECT_EQ(install.sets(), u"Default+"_s);
}

#ifdef Q_OS_LINUX
TEST(CommandLine, aFullDiskBehindStandardOutputIsAFailure) {
    ConsoleInstall install;
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

const QStringList commandsOnAnInstall =
    u"catalogue 2-Storm|ground create 1 0 0 0 0|ground list|ground activate 2-Storm|"
    u"ground deactivate 2-Storm|ground delete 2-Storm|ground install 2-Storm|originals list|"
    u"originals restore|fly OVC"_s.split(u'|');

struct BadInstall : testing::Test {
    ConsoleInstall install;
};

TEST_F(BadInstall, aMissingOneIsToldAndNotMade) {
    const FilePath missing = install.folder / u"missing";
    for (const QString& command : commandsOnAnInstall) {
        const auto run = runConsole(u"--home"_s, QStringList{missing.native()} + command.split(u' '));
        EXPECT_EQ(run.status, 1) << command.toStdString();
        EXPECT_TRUE(run.messages.contains("The install folder does not exist: ") &&
                    run.messages.contains("MORVANE_HOME"));
        EXPECT_FALSE(install.files.exists(missing));
    }
}

TEST_F(BadInstall, aSpoiltStoreIsToldAndNothingGoodIsLost) {
    install.addSet(u"2-Storm"_s, u"Overcast"_s);
    const FilePath store = install.home() / u"Morvane.mdb";
    const QByteArray good = readFile(store);
    // What a first start writes, so that the folders can be compared.
    install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"InhibitCustomSplash"_s, u"False"_s);
    const std::pair<QByteArray, QString> cases[] = {
        {QByteArray("no store at all ").repeated(500), u"file is not a database"_s},
        {"", u"it holds no tables"_s},
        {good.left(good.size() / 2), u"The database cannot be used"_s},
        {{}, u"The database cannot be used: file not found: "_s}, // and none is made
    };
    for (const auto& [contents, said] : cases)
        for (const QString& command : commandsOnAnInstall) {
            QFile::remove(store.native());
            if (!contents.isNull()) writeFile(store, contents);
            const auto before = contentsBelow(install.folder.path());
            const auto run = install.run(command);
            EXPECT_EQ(run.status, 1) << command.toStdString();
            EXPECT_TRUE(run.messages.contains(said)) << run.messages.toStdString();
            auto after = contentsBelow(install.folder.path());
            if (contents.isEmpty() && !contents.isNull()) // it held nothing to lose
                after[u"Morvane/Morvane.mdb"_s].clear();
            EXPECT_EQ(after.keys(), before.keys());
            EXPECT_TRUE(after == before) << command.toStdString();
        }
}

TEST_F(BadInstall, aLockedStoreIsToldAndNothingChanges) {
    install.addSet(u"2-Storm"_s, u"Overcast"_s);
    const auto simulator = contentsBelow(install.simulator());
    {
        Store holder;
        holder.open(install.home() / u"Morvane.mdb");
        const StoreTransaction lock(holder);
        EXPECT_EQ(install.run(u"ground list"_s).array().size(), 2); // reading goes on
        for (const QString& action : {u"deactivate"_s, u"delete"_s, u"install"_s})
            expectSteps(install, {{u"ground|%1|2-Storm"_s.arg(action), {u"the database is locked"_s}, 1}});
    }
    EXPECT_EQ(install.sets(), u"Default+ 2-Storm+"_s);
    EXPECT_EQ(install.setFolders(), QStringList{u"2-Storm"_s});
    EXPECT_EQ(contentsBelow(install.simulator()), simulator);
}

} // namespace
} // namespace morvane::test
