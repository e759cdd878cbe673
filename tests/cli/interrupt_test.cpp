#include "cli/console.h"
#include "cli/process_interrupt.h"

#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane::test {
namespace {

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
