#include "cli/console.h"

#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::Console;
using test::ConsoleInstall;

constexpr int stockSize = 400;

test::SmallInstallOptions largeStock() {
    QStringList images;
    for (int number = 0; number < stockSize; ++number)
        images << u"GENERIC WORLD\\029b2su%1.bmp"_s.arg(number, 3, 10, QChar(u'0'));
    return {images, 64};
}

TEST(Interrupt, endsAGenerationWithoutTheUnfinishedSet) {
    ConsoleInstall install(largeStock());
    for (const QString& moment : {u"Process 1 of 2"_s, u"Process 2 of 2"_s}) {
        SCOPED_TRACE(moment.toStdString());
        Console console;
        console.start(install.withHome({u"ground"_s, u"create"_s, u"1"_s, u"0"_s, u"0"_s, u"0"_s, u"20"_s}));
        ASSERT_TRUE(console.waitForMessage(moment));
        console.interrupt();
        const auto run = console.finish();
        EXPECT_EQ(run.status, 0) << run.messages.toStdString();
        EXPECT_EQ(run.countOf(u"Average minutes per texture set"_s), 0); // the whole run has ended
        // Usually it was the first set; on a busy machine some may be whole before the signal is sent. What
        // has a row has its folder with every file, and there is nothing else.
        QStringList whole{u"Default+"_s};
        for (const QString& name : install.setFolders()) {
            const FilePath textures = (install.home() / u"Texture Sets").child(name) / u"Texture";
            EXPECT_EQ(install.files.list(textures, u"*.*"_s).size(), stockSize) << name.toStdString();
            whole << name + u'+';
        }
        QStringList stored = install.sets();
        EXPECT_LT(stored.size(), 22);
        stored.sort();
        whole.sort();
        EXPECT_EQ(stored, whole);
        EXPECT_TRUE(test::contentsBelow(install.home() / u"TempBitmaps").isEmpty());
    }
}

TEST(Interrupt, letsAnInstallFinishItsList) {
    ConsoleInstall install;
    QStringList names;
    for (int number = 0; number < 400; ++number)
        names << u"Texture\\%1.bmp"_s.arg(number);
    install.addSet(u"2-Storm"_s, u"Overcast"_s, true, names);
    Console console;
    console.start(install.withHome({u"ground"_s, u"install"_s, u"2-Storm"_s}));
    ASSERT_TRUE(console.waitForMessage(u"Processing your Ground Texture Files."_s));
    console.interrupt();
    EXPECT_EQ(console.finish().status, 0);
    EXPECT_EQ(install.sets(), QStringList({u"Default+"_s, u"2-Storm+*"_s}));
    EXPECT_EQ(install.files.list(install.simulator() / u"Scenery\\World\\texture", u"???.bmp"_s).size(), 300);
}

TEST(Interrupt, atAQuestionIsANo) {
    ConsoleInstall install;
    install.addSet(u"2-Storm"_s, u"Overcast"_s);
    Console console;
    console.start({u"--home"_s, install.home().native(), u"--answer"_s, u"ask"_s, u"ground"_s, u"delete"_s,
                   u"2-Storm"_s});
    ASSERT_TRUE(console.waitForMessage(u"[y/N]"_s));
    console.interrupt();
    EXPECT_EQ(console.finish().status, 0);
    EXPECT_EQ(install.sets(), QStringList({u"Default+"_s, u"2-Storm+"_s}));
}

TEST(Interrupt, aSecondOneKills) {
    Console console;
    console.start({u"decode"_s}); // waits for its input
    ASSERT_TRUE(console.waitUntilInterruptsAre(true));
    console.interrupt();
    ASSERT_TRUE(console.waitUntilInterruptsAre(false));
    console.interrupt();
    EXPECT_EQ(console.finish().status, -1);
}

} // namespace
} // namespace morvane
