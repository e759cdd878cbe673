#include "cli/console.h"

#include "core/store.h"
#include "support/printing.h"

#include <QFile>
#include <gtest/gtest.h>

namespace morvane::test {
namespace {

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
