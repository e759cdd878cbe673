#include "core/registry.h"
#include "core/store.h"
#include "ground/ground_installation.h"
#include "simulator/backup_files.h"
#include "simulator/backups.h"
#include "simulator/first_run.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <functional>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::contentsBelow;
using test::readFile;
using test::writeFile;

const QString restoring = u"message Progress Morvane Information"_s;

struct BackupTest : testing::Test {
    test::SmallInstall install;
    Session& session = install.session;
    FilePath world = install.simulator() / u"Scenery\\World\\texture";
    FilePath addOn = install.simulator() / u"Scenery\\UTEurLC\\Texture";
    FilePath folder = install.home() / u"Backup\\1-Backup";

    void SetUp() override {
        writeFile(world / u"Gelände ñ.bmp", "the pilot's own");
        writeFile(world / u"note.txt", "no texture");
    }
    void restore(const QString& name, bool isConfirmed = true) {
        install.user.onModal = [this, name, isConfirmed](Screen) {
            session.modal.chosenBackup = name;
            session.modal.backupConfirmed = isConfirmed;
        };
        restoreBackupOnRequest(session);
    }
    QStringList backupNames() {
        clsBackups::reload(session);
        QStringList names;
        for (const auto& backup : *session.gBackups)
            names << backup->BackupName;
        return names;
    }
};

TEST_F(BackupTest, restoreIsTheIdentityForWhatWasBackedUp) {
    install.files.setReadOnly(world / u"002C2WI1.BMP", true);
    const auto before = contentsBelow(install.simulator());
    backupOnRequest(session);
    EXPECT_TRUE(install.user.told()[0].startsWith(u"Question|Create New Backup?|Do you wish Morvane"_s));
    EXPECT_TRUE(isBackupComplete(session, u"1-Backup"_s));
    EXPECT_EQ(install.files.list(folder / u"Texture", u"*"_s).size(), 5);
    EXPECT_EQ(install.files.list(folder / u"UTEurLC", u"*"_s), QStringList{u"034B2SU4.BMP"_s});
    for (const QString& name : {u"1-Blue"_s, u"5-Störm"_s, u"3-Mixed"_s}) {
        install.addGroundSet(
            name, u"Sunny"_s, true,
            {u"Texture\\029h2su6.bmp"_s, u"Texture\\Gelände ñ.bmp"_s, u"UTEurLC\\034b2su4.bmp"_s});
        install.reload();
        session.ground.SelectedGroundSet = name;
        GroundInstallation(session).installTextureSet(true);
        EXPECT_NE(readFile(addOn / u"034B2SU4.BMP"), before[u"Scenery/UTEurLC/Texture/034B2SU4.BMP"_s]);
    }
    install.files.remove(world / u"029B2SU6.BMP");
    writeFile(install.simulator() / u"Uires\\dlgsplash.bmp", "the pilot's splash"); // no part of a backup
    writeFile(world / u"later.bmp", "added since");
    restore(u"1-Backup"_s);
    auto after = contentsBelow(install.simulator());
    EXPECT_EQ(after.take(u"Scenery/World/texture/later.bmp"_s), "added since");
    EXPECT_EQ(after, before);
    EXPECT_TRUE(install.user.messages.back().text.endsWith(u"stand by...\""_s));
}

TEST_F(BackupTest, restorePassesOverReadOnlyTargetsAndDamagedCopiesWithoutAWord) {
    createBackup(session, true);
    writeFile(world / u"002C2WI1.BMP", "a set");
    install.files.setReadOnly(world / u"002C2WI1.BMP", true);
    writeFile(world / u"029H2SU6.BMP", "a set");
    writeFile(folder / u"Texture\\029H2SU6.BMP", "torn");
    writeFile(world / u"005A2SU2.BMP", "a set");
    install.user.messages.clear();
    restore(u"1-Backup"_s);
    EXPECT_EQ(readFile(world / u"002C2WI1.BMP"), "a set");
    EXPECT_EQ(readFile(world / u"029H2SU6.BMP"), "a set");
    EXPECT_TRUE(readFile(world / u"005A2SU2.BMP").startsWith("the pilot's"));
    EXPECT_TRUE(install.user.told().isEmpty());
}

TEST_F(BackupTest, whatIsCutShortIsMarkedAndNothingIsOverwritten) {
    writeFile(folder / u"Texture\\old.bmp", "of a store that was lost");
    install.user.onPump = [this] { session.user.answers().cancelRequested = true; };
    createBackup(session, true);
    EXPECT_FALSE(isBackupComplete(session, u"1-Backup"_s));
    EXPECT_EQ(readFile(install.home() / u"Backup\\1-Backup kept 1\\Texture\\old.bmp"),
              "of a store that was lost");
    install.user.onPump = [] {};
    createBackup(session, true);
    EXPECT_TRUE(isBackupComplete(session, u"2-Backup"_s));
    restore(u"1-Backup"_s, false);
    ASSERT_EQ(session.modal.backups.size(), 2U);
    EXPECT_FALSE(session.modal.backups[0].isComplete);
    EXPECT_FALSE(install.user.calls.contains(restoring)) << "the list was left with Cancel";
}

TEST_F(BackupTest, aDamagedRowHidesNoOther) {
    session.adoConn->execute(
        u"INSERT INTO MV_BACKUP(BACKUP_NAME, BACKUP_DATE_TIME) VALUES ('..', 'yesterday'), (NULL, NULL)"_s);
    createBackup(session, true);
    restore(u"3-Backup"_s);
    EXPECT_EQ(session.modal.backups.size(), 3U);
    EXPECT_TRUE(session.modal.backups.at(2).isComplete);
    EXPECT_TRUE(install.user.calls.filter(u"box "_s).isEmpty());
}

TEST_F(BackupTest, aNoAndAnEmptyListDoNothing) {
    restore(u"1-Backup"_s);
    EXPECT_FALSE(install.user.calls.contains(u"modal frm_BackupList"_s));
    install.user.otherwise = false;
    backupOnRequest(session);
    EXPECT_TRUE(backupNames().isEmpty());
    EXPECT_FALSE(install.files.exists(folder));
}

TEST_F(BackupTest, aBackupWithoutTheAddOnTouchesNothingOfIt) {
    const FilePath aside = install.folder / u"aside", scenery = install.simulator() / u"Scenery\\UTEurLC";
    install.files.rename(scenery, aside);
    createBackup(session, true);
    EXPECT_TRUE(install.files.isFolder(folder / u"UTEurLC"));
    install.files.rename(aside, scenery);
    const auto before = contentsBelow(scenery);
    restore(u"1-Backup"_s);
    EXPECT_EQ(contentsBelow(scenery), before);
}

TEST_F(BackupTest, theFirstRunIsDoneOnceAndOnlyWhenAskedFor) {
    const auto setFirstTime = [&](const QString& text) {
        install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"FirstTime"_s, text);
    };
    writeFile(install.home() / u"Flights\\Älpler.flt", "flight");
    writeFile(install.home() / u"Flights\\Älpler.wx", "weather");
    for (const QString& other : {QString(), u"true"_s, u"False"_s}) {
        setFirstTime(other);
        doFirstRun(session);
        EXPECT_TRUE(backupNames().isEmpty());
    }
    setFirstTime(u"True"_s);
    doFirstRun(session);
    doFirstRun(session);
    EXPECT_EQ(backupNames(), QStringList{u"1-Backup"_s});
    EXPECT_EQ(readFile(install.simulator() / u"Flights\\Morvane\\Älpler.wx"), "weather");
    EXPECT_EQ(readFile(install.home() / u"Media\\dlgsplash.bmp"), "the pilot's splash");
    ASSERT_EQ(install.user.told().size(), 2) << "what is done, and its progress";
    EXPECT_TRUE(install.user.told()[0].startsWith(u"Information|Creating Backup|"_s));
    session.IsWideClient = true;
    setFirstTime(u"True"_s);
    install.files.remove(install.simulator() / u"Flights\\Morvane\\Älpler.wx");
    doFirstRun(session);
    EXPECT_FALSE(install.files.exists(install.simulator() / u"Flights\\Morvane\\Älpler.wx"));
    EXPECT_EQ(backupNames().size(), 2);
}

/// Whatever fails, each file of the simulator is the old one or the new one, and a backup that says it is
/// complete holds them all and stays as it was made.
TEST_F(BackupTest, everyFailingOperationLeavesSimulatorAndBackupWhole) {
    const auto before = contentsBelow(install.simulator());
    const auto failEach = [&](const std::function<void()>& work, const std::function<void(int)>& check) {
        int failures = 0;
        for (bool hasFailed = true; hasFailed; ++failures) {
            install.files.failAt(failures + 1, false);
            work();
            hasFailed = install.files.hasFailed();
            install.files.failAt(0, false);
            check(failures + 1);
        }
        EXPECT_GT(failures, 10);
    };
    failEach([&] { createBackup(session, true); },
             [&](int n) { EXPECT_EQ(contentsBelow(install.simulator()), before) << n; });
    const QString name = backupNames().last();
    const auto backup = contentsBelow(install.home() / u"Backup" / name);
    failEach(
        [&] {
            writeFile(world / u"029H2SU6.BMP", "a set");
            restoreBackup(session, name);
        },
        [&](int n) {
            auto after = contentsBelow(install.simulator());
            const QByteArray file = after[u"Scenery/World/texture/029H2SU6.BMP"_s];
            EXPECT_TRUE(file == "a set" || file.startsWith("the pilot's")) << n;
            after.insert(u"Scenery/World/texture/029H2SU6.BMP"_s,
                         before[u"Scenery/World/texture/029H2SU6.BMP"_s]);
            EXPECT_EQ(after, before) << n;
            EXPECT_EQ(contentsBelow(install.home() / u"Backup" / name), backup) << n;
        });
    EXPECT_EQ(contentsBelow(install.simulator()), before);
}

} // namespace
} // namespace morvane
