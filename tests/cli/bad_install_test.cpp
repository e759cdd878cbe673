#include "cli/console.h"

#include "core/store.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::ConsoleInstall;
using test::contentsBelow;
using test::runConsole;
using test::writeFile;

const QStringList commandsOnAnInstall[] = {
    {u"catalogue"_s, u"2-Storm"_s},
    {u"ground"_s, u"create"_s, u"1"_s, u"0"_s, u"0"_s, u"0"_s, u"0"_s},
    {u"ground"_s, u"list"_s},
    {u"ground"_s, u"activate"_s, u"2-Storm"_s},
    {u"ground"_s, u"deactivate"_s, u"2-Storm"_s},
    {u"ground"_s, u"delete"_s, u"2-Storm"_s},
    {u"ground"_s, u"install"_s, u"2-Storm"_s},
    {u"originals"_s, u"list"_s},
    {u"originals"_s, u"restore"_s},
    {u"fly"_s, u"OVC"_s},
    {u"fly"_s, u"--metar"_s, u"EHAM 241225Z OVC010"_s},
};

TEST(BadInstall, aMissingOneIsToldAndNotMade) {
    const test::TemporaryFolder folder;
    for (const QStringList& command : commandsOnAnInstall) {
        const auto run = runConsole(QStringList{u"--home"_s, (folder / u"missing").native()} + command);
        EXPECT_EQ(run.status, 1) << command.join(u' ').toStdString();
        EXPECT_EQ(run.countOf(u"Your registry does not contain the proper path to FS9.EXE."_s), 1);
        EXPECT_TRUE(run.output.isEmpty());
        EXPECT_FALSE(NativeFileSystem().exists(folder / u"missing"));
    }
}

TEST(BadInstall, aSpoiltStoreIsToldAndNothingGoodIsLost) {
    ConsoleInstall install;
    install.addSet(u"2-Storm"_s, u"Overcast"_s);
    const FilePath store = install.home() / u"Morvane.mdb";
    const QByteArray good = test::readFile(store);
    // What a first start writes, so that the folders can be compared.
    install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"InhibitCustomSplash"_s, u"False"_s);
    const std::pair<QByteArray, QString> cases[] = {
        {QByteArray("no store at all ").repeated(500), u"file is not a database"_s},
        {{}, u"it holds no tables"_s},
        {good.left(good.size() / 2), u"The database cannot be used"_s},
    };
    for (const auto& [contents, said] : cases)
        for (const QStringList& command : commandsOnAnInstall) {
            writeFile(store, contents);
            const auto before = contentsBelow(install.folder.path());
            const auto run = install.run(command);
            EXPECT_EQ(run.status, 1) << command.join(u' ').toStdString();
            EXPECT_GE(run.countOf(said), 1) << run.messages.toStdString();
            auto after = contentsBelow(install.folder.path());
            if (contents.isEmpty()) after[u"Morvane/Morvane.mdb"_s].clear(); // it held nothing to lose
            EXPECT_EQ(after.keys(), before.keys());
            EXPECT_TRUE(after == before) << command.join(u' ').toStdString();
        }
}

TEST(BadInstall, withoutAStoreNothingIsMadeAndNothingInstalled) {
    ConsoleInstall install;
    install.addSet(u"2-Storm"_s, u"Overcast"_s);
    install.files.remove(install.home() / u"Morvane.mdb");
    const auto simulator = contentsBelow(install.simulator());
    for (const QStringList& command : commandsOnAnInstall) {
        const auto run = install.run(command);
        EXPECT_EQ(run.status, 1) << command.join(u' ').toStdString();
        EXPECT_EQ(run.countOf(u"The database cannot be used: file not found: "_s), 1);
        EXPECT_FALSE(install.files.exists(install.home() / u"Morvane.mdb"));
        EXPECT_EQ(contentsBelow(install.simulator()), simulator) << command.join(u' ').toStdString();
    }
}

TEST(BadInstall, aLockedStoreIsToldAndNothingChanges) {
    ConsoleInstall install;
    install.addSet(u"2-Storm"_s, u"Overcast"_s);
    const auto simulator = contentsBelow(install.simulator());
    {
        Store holder;
        holder.open(install.home() / u"Morvane.mdb");
        const StoreTransaction lock(holder);
        EXPECT_EQ(install.run({u"ground"_s, u"list"_s}).array().size(), 2); // reading goes on
        for (const char* action : {"deactivate", "delete", "install"}) {
            const auto run = install.run({u"ground"_s, QString::fromLatin1(action), u"2-Storm"_s});
            EXPECT_EQ(run.status, 1) << action;
            EXPECT_EQ(run.countOf(u"the database is locked"_s), 1) << run.messages.toStdString();
        }
    }
    EXPECT_EQ(install.sets(), QStringList({u"Default+"_s, u"2-Storm+"_s}));
    EXPECT_EQ(install.setFolders(), QStringList{u"2-Storm"_s});
    EXPECT_EQ(contentsBelow(install.simulator()), simulator);
}

TEST(BadInstall, aMissingStockMakesAnEmptySet) {
    ConsoleInstall install({QStringList()});
    const auto run = install.run({u"ground"_s, u"create"_s, u"1"_s, u"0"_s, u"0"_s, u"0"_s, u"0"_s});
    EXPECT_EQ(run.status, 0) << run.messages.toStdString();
    EXPECT_EQ(install.sets().size(), 2);
    const auto catalogue = install.run({u"catalogue"_s, u"x"_s});
    EXPECT_EQ(catalogue.status, 0);
    EXPECT_TRUE(catalogue.objects().at(0)[u"fileNames"].toArray().isEmpty());
}

TEST(BadInstall, aSpoiltBaseImageIsToldAndTheOthersAreMade) {
    ConsoleInstall install;
    writeFile(install.home() / u"Resources\\GENERIC WORLD\\029b2su6.bmp", "BM, and no more");
    const auto run = install.run({u"ground"_s, u"create"_s, u"0"_s, u"0"_s, u"0"_s, u"0"_s, u"1"_s});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.countOf(u"Error: Morvane Error"_s), 1) << run.messages.toStdString();
    const FilePath made = install.home() / u"Texture Sets" / install.setFolders().value(0) / u"Texture";
    EXPECT_TRUE(install.files.exists(made / u"029h2su6.bmp"));
    EXPECT_TRUE(install.files.exists(made / u"002c2wi1.bmp"));
}

TEST(BadInstall, aSetFolderThatCannotBeWrittenIsTold) {
    ConsoleInstall install;
    install.files.removeFolder(install.home() / u"Texture Sets");
    writeFile(install.home() / u"Texture Sets", "a file in the folder's place");
    const auto run = install.run({u"ground"_s, u"create"_s, u"0"_s, u"0"_s, u"0"_s, u"0"_s, u"1"_s});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.countOf(u"Error: Morvane Error"_s), 1) << run.messages.toStdString();
    EXPECT_EQ(test::readFile(install.home() / u"Texture Sets"), "a file in the folder's place");
}

TEST(BadInstall, aReadOnlyTargetEndsTheInstallWithItsName) {
    ConsoleInstall install;
    install.addSet(u"2-Storm"_s, u"Overcast"_s);
    const FilePath texture = install.simulator() / u"Scenery\\World\\texture\\029h2su6.bmp";
    install.files.setReadOnly(texture, true);
    const QByteArray before = test::readFile(texture);
    const auto run = install.run({u"ground"_s, u"install"_s, u"2-Storm"_s});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.countOf(u"Error: Morvane Error\n  Permission denied: "_s), 1) << run.messages.toStdString();
    EXPECT_EQ(test::readFile(texture), before);
}

} // namespace
} // namespace morvane
