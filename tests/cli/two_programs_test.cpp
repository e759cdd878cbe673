#include "cli/console.h"

#include "cli/process_interrupt.h"

namespace morvane::test {
namespace {

/// The first one is known to write when the second one starts.
std::pair<ConsoleRun, ConsoleRun> runTwo(ConsoleInstall& install, const QString& firstCommand,
                                         const QString& moment, const QString& secondCommand) {
    Console first(install.withHome(firstCommand));
    EXPECT_TRUE(first.waitForMessage(moment));
    const auto second = install.run(secondCommand);
    return {first.finish(), second};
}

TEST(TwoPrograms, setsOfTwoRunsAreAllWhole) {
    constexpr int fileCount = 60;
    ConsoleInstall install({manyFiles(u"GENERIC WORLD"_s, fileCount), 32});
    const auto [first, second] =
        runTwo(install, u"ground create 0 0 0 0 3"_s, u"Process 1 of 2"_s, u"ground create 3 0 0 0 0"_s);
    EXPECT_EQ(first.status, 0) << first.messages.toStdString();
    EXPECT_EQ(second.status, 0) << second.messages.toStdString();
    EXPECT_TRUE(second.messages.contains(u"morvane-cli (process "_s)) << "who was waited for";
    EXPECT_EQ(install.setFolders().size(), 6);
    for (const QString& name : install.setFolders()) {
        const FilePath textures = (install.home() / u"Texture Sets").child(name) / u"Texture";
        EXPECT_EQ(install.files.list(textures, u"*.bmp"_s).size(), fileCount) << name.toStdString();
        EXPECT_TRUE(install.sets().contains(name + u'+'));
    }
    EXPECT_FALSE(install.files.exists(install.home() / u"Writing.lock"));
}

TEST(TwoPrograms, noOriginalOfTwoInstallsIsLost) {
    ConsoleInstall install;
    // Long enough for the other one to note its files in the middle of it.
    const QStringList names = manyFiles(u"Texture"_s, 200), skyNames{u"day.bmp"_s, u"dawn.bmp"_s};
    for (const QString& name : names)
        writeFile(install.simulator() / u"Scenery\\World" / name, "the pilot's " + name.toUtf8());
    for (const QString& name : skyNames)
        writeFile(install.simulator() / u"Texture" / name, "the pilot's " + name.toUtf8());
    const auto before = contentsBelow(install.simulator());
    install.addSet(u"2-Storm"_s, u"Overcast"_s, true, names);
    install.addSky(u"3-Grey"_s, u"Overcast"_s, true, skyNames);
    const auto [first, second] =
        runTwo(install, u"ground install 2-Storm"_s, u"Processing your Ground"_s, u"sky install 3-Grey"_s);
    EXPECT_EQ(first.status + second.status, 0) << second.messages.toStdString();
    EXPECT_NE(contentsBelow(install.simulator()), before);
    EXPECT_EQ(install.run(u"originals restore"_s).status, 0);
    const auto after = contentsBelow(install.simulator());
    for (auto file = before.cbegin(); file != before.cend(); ++file)
        EXPECT_EQ(after.value(file.key()), file.value()) << file.key().toStdString();
}

TEST(TwoPrograms, readersRunBesideAWriterAndAKilledOnesLockIsTakenOver) {
    ConsoleInstall install({manyFiles(u"GENERIC WORLD"_s, 60), 64});
    Console writer(install.withHome(u"ground create 0 0 0 0 200"_s));
    ASSERT_TRUE(writer.waitForMessage(u"Process 1 of 2"_s));
    for (const QString& command : {u"ground list"_s, u"originals list"_s, u"option get halo"_s})
        EXPECT_EQ(install.run(command).status, 0) << command.toStdString();
    EXPECT_TRUE(install.files.exists(install.home() / u"Writing.lock"));
    writer.kill();
    const auto next = install.run(u"option set halo off"_s);
    EXPECT_FALSE(next.messages.contains(u"Another Program Is Writing"_s)) << next.messages.toStdString();
}

constexpr int fileCount = 400;

/// Runs the command and interrupts it when it has said `moment`.
ConsoleRun interruptedRun(ConsoleInstall& install, const QString& command, const QString& moment,
                          int status = 0) {
    Console console(install.withHome(command));
    EXPECT_TRUE(console.waitForMessage(moment));
    console.interrupt();
    const auto run = console.finish();
    EXPECT_EQ(run.status, status) << run.messages.toStdString();
    return run;
}

TEST(Interrupt, letsAnInstallFinishItsListAndEndsTheRoadBehindIt) {
    const std::pair<QString, int> cases[] = {{"ground install 2-Storm", 0}, {"fly OVC", 1}};
    for (const auto& [command, status] : cases) {
        ConsoleInstall install;
        install.addSet("2-Storm", "Overcast", true, manyFiles("Texture", fileCount));
        const auto run = interruptedRun(install, command, "Processing your Ground Texture Files.", status);
        EXPECT_LE(run.messages.count("Question: "), 2) << "the third one would be the simulator's";
        EXPECT_TRUE(run.output.isEmpty());
        EXPECT_EQ(install.sets(), "Default+ 2-Storm+*");
        const FilePath textures = install.simulator() / u"Scenery\\World\\texture";
        EXPECT_EQ(install.files.list(textures, u"029b2su???.bmp"_s).size(), fileCount);
    }
}

TEST(Interrupt, atAQuestionEndsTheRoad) {
    if (!interruptEndsReading) GTEST_SKIP() << "only a console's own reading is ended there";
    ConsoleInstall install;
    install.addSet(u"2-Storm"_s, u"Overcast"_s);
    for (const QString& command : {u"ground delete 2-Storm"_s, u"fly OVC"_s}) {
        const auto run = interruptedRun(install, u"--answer ask "_s + command, u"[y/N]"_s, 1);
        EXPECT_EQ(run.messages.count(u"Question: "_s), 1) << run.messages.toStdString();
        EXPECT_TRUE(run.output.isEmpty());
    }
    EXPECT_EQ(install.sets(), u"Default+ 2-Storm+"_s);
}

} // namespace
} // namespace morvane::test
