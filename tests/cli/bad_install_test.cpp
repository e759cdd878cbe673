#include "cli/console.h"

#include "core/store.h"
#include "support/printing.h"

#include <QFile>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::ConsoleInstall;
using test::contentsBelow;
using test::writeFile;

const QStringList commandsOnAnInstall =
    u"catalogue 2-Storm|ground create 1 0 0 0 0|ground list|ground activate 2-Storm|"
    u"ground deactivate 2-Storm|ground delete 2-Storm|ground install 2-Storm|originals list|"
    u"originals restore|fly OVC"_s.split(u'|');
const QString createASet = u"ground create 0 0 0 0 1"_s;

struct BadInstall : testing::Test {
    ConsoleInstall install;

    void expectTold(const QString& command, const QString& said) {
        const auto run = install.run(command);
        EXPECT_EQ(run.status, 1) << command.toStdString();
        EXPECT_EQ(run.messages.count(said), 1) << run.messages.toStdString();
    }
};

TEST_F(BadInstall, aMissingOneIsToldAndNotMade) {
    const FilePath missing = install.folder / u"missing";
    for (const QString& command : commandsOnAnInstall) {
        const auto run = test::runConsole(u"--home"_s, QStringList{missing.native()} + command.split(u' '));
        EXPECT_EQ(run.status, 1) << command.toStdString();
        EXPECT_TRUE(run.messages.contains(u"The install folder does not exist: "_s));
        EXPECT_FALSE(install.files.exists(missing));
    }
}

TEST_F(BadInstall, aSpoiltStoreIsToldAndNothingGoodIsLost) {
    install.addSet(u"2-Storm"_s, u"Overcast"_s);
    const FilePath store = install.home() / u"Morvane.mdb";
    const QByteArray good = test::readFile(store);
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
            expectTold(u"ground %1 2-Storm"_s.arg(action), u"the database is locked"_s);
    }
    EXPECT_EQ(install.sets(), u"Default+ 2-Storm+"_s);
    EXPECT_EQ(install.setFolders(), QStringList{u"2-Storm"_s});
    EXPECT_EQ(contentsBelow(install.simulator()), simulator);
}

TEST_F(BadInstall, aSetOfSpoiltColoursIsTakenAwayAndNotMade) {
    install.addSet(u"2-Storm"_s, u"Overcast"_s);
    install.addSky(u"1-Fog"_s, u"Overcast"_s);
    Store store;
    store.open(install.home() / u"Morvane.mdb");
    store.execute(u"UPDATE TEXTURE_SETS SET COLOR_SETTINGS = 'x' WHERE TEXTURE_SET = '2-Storm'"_s);
    store.execute(u"UPDATE SKY_TEXTURE_SUB_SETS SET MAIN_SKY = 'x'"_s);
    store.close();
    EXPECT_EQ(install.run(u"sky show 1-Fog"_s).status, 0);
    for (const QString& set : {u"ground %1 2-Storm"_s, u"sky %1 1-Fog"_s}) {
        EXPECT_EQ(install.run(set.arg(u"deactivate"_s)).status, 0);
        expectTold(set.arg(u"activate"_s), u"Error: Morvane Error"_s);
        EXPECT_EQ(install.sets() + install.skies(),
                  set.startsWith(u"sky") ? u"Default+1-Fog"_s : u"Default+ 2-Storm1-Fog+"_s);
        EXPECT_EQ(install.run(set.arg(u"delete"_s)).status, 0);
    }
    EXPECT_EQ(install.sets() + install.skies(), u"Default+"_s);
}

TEST_F(BadInstall, aSpoiltBaseImageIsToldAndTheOthersAreMade) {
    writeFile(install.home() / u"Resources\\GENERIC WORLD\\029b2su6.bmp", "BM, and no more");
    expectTold(createASet, u"Error: Morvane Error"_s);
    const FilePath made = install.home() / u"Texture Sets" / install.setFolders().value(0) / u"Texture";
    EXPECT_TRUE(install.files.exists(made / u"029h2su6.bmp"));
    EXPECT_TRUE(install.files.exists(made / u"002c2wi1.bmp"));
}

TEST_F(BadInstall, aSetFolderThatCannotBeWrittenIsTold) {
    install.files.removeFolder(install.home() / u"Texture Sets");
    writeFile(install.home() / u"Texture Sets", "a file in the folder's place");
    expectTold(createASet, u"Error: Morvane Error"_s);
}

} // namespace
} // namespace morvane
