#include "core/attempts.h"
#include "core/install_lock.h"
#include "core/store.h"
#include "core/writing.h"
#include "ground/ground_installation.h"
#include "sets/simulator_copy.h"
#include "sets/simulator_note.h"
#include "simulator/backup_files.h"
#include "simulator/backup_removal.h"
#include "simulator/backup_restore.h"
#include "simulator/backups.h"
#include "simulator/base_install.h"
#include "simulator/options.h"
#include "simulator/simulator_restore.h"
#include "simulator/texture_switches.h"
#include "simulator/undo_install.h"
#include "support/small_install.h"

namespace morvane::test {
namespace {

struct Work {
    const char* name;
    std::function<void(Session&)> run;
    bool putsOursThere; ///< into the simulator
    bool readsBackups = false;
};

const Work works[] = {
    {"install", [](Session& session) { GroundInstallation(session).installTextureSet(u"2-Red"_s); }, true},
    {"base install", [](Session& session) { copyBaseResources(session, {addOnConfig}); }, true},
    {"restored backup", restoreBackupOnRequest, true, true},
    {"splash", [](Session& session) { setCustomSplashVal(session, true); }, true},
    {"Netherlands", [](Session& session) { attempt([&] { switchDutch(session, true); }); }, true},
    {"tropics", [](Session& session) { attempt([&] { switchTropical(session, true); }); }, true},
    {"halo", [](Session& session) { attempt([&] { switchHalo(session, true); }); }, true},
    {"backup", [](Session& session) { createBackup(session, false, true); }, false, true},
    {"removed backup", [](Session& session) { removeBackup(session, u"1-Backup"_s); }, false, true},
    {"undo", undoLastInstall, false},
    {"originals", restoreOriginals, false},
    {"originals asked for", askRestoreOriginals, false},
};

/// A set is installed, another one is at hand, and the backup would put back what was before both.
struct RefusedWork : InstallTest {
    void SetUp() override {
        createBackup(session, false, true);
        for (const QString& name : {u"1-Blue"_s, u"2-Red"_s})
            install.addGroundSet(name, u"Sunny"_s, true, {"Texture\\029h2su6.bmp", "UTEurLC\\034b2su4.bmp"});
        GroundInstallation(session).installTextureSet(u"1-Blue"_s);
        user.onModal = [this](Screen) {
            session.state<BackupChoice>().chosenBackup = u"1-Backup"_s;
            session.state<BackupChoice>().backupConfirmed = true;
        };
    }
    auto everything() const {
        return std::pair(contentsBelow(install.simulator()), contentsBelow(install.home() / u"Backup"));
    }
    /// Of the works those that do nothing here, when nothing is in their way.
    void expectEachToBeRefused(bool areAll) {
        const auto before = everything();
        for (const Work& work : works) {
            if (!areAll && !work.putsOursThere) continue;
            work.run(session);
            EXPECT_TRUE(everything() == before) << work.name;
            EXPECT_EQ(install.installedSets(), QStringList{u"1-Blue"_s}) << work.name;
        }
    }
};

TEST_F(RefusedWork, nothingBeginsInsideAJob) {
    session.jobRunning = true; // a click while its events are served
    expectEachToBeRefused(true);
    session.jobRunning = false;
    const auto before = everything();
    undoLastInstall(session);
    EXPECT_FALSE(everything() == before);
}

/// In both places where a job asks: before its questions, or behind them.
TEST_F(RefusedWork, nothingBeginsWhileAnotherProgramWrites) {
    InstallLock other(install.home(), u"Writing.lock"_s);
    ASSERT_TRUE(other.tryTake());
    session.writing->patience = {};
    expectEachToBeRefused(true);
    EXPECT_GE(user.countOfKind(MessageKind::exclamation), 8);
}

TEST_F(RefusedWork, aNoLeavesAnotherInstallsSimulatorAlone) {
    const FilePath other = install.folder / u"Another Mörvane";
    install.files.makeFolder(other);
    writeFile(install.simulator() / u"Morvane note.ini",
              "[Morvane]\r\nInstallFolder=" + other.native().toUtf8() + "\r\n");
    user.otherwise = false;
    expectEachToBeRefused(false);
}

/// Questions with a No, and a list that was left without a choice.
TEST_F(RefusedWork, aNoChangesNothing) {
    user.otherwise = false;
    user.onModal = [this](Screen) { session.state<BackupChoice>().backupConfirmed = true; };
    originalsOf(session).makeFolder(install.simulator() / u"Flights\\Morvane");
    const auto before = everything();
    askRestoreOriginals(session);
    restoreBackupOnRequest(session);
    removeBackup(session, u"1-Backup"_s);
    undoLastInstall(session);
    EXPECT_TRUE(everything() == before);
    EXPECT_EQ(user.countOfKind(MessageKind::question), 3);
    EXPECT_TRUE(user.told().join(u'/').contains(u"kept yours, in 2 places of 2 folders."_s));
    user.otherwise = true;
    EXPECT_TRUE(askRestoreOriginals(session));
    EXPECT_EQ(install.installedSets(), QStringList());
}

/// Neither list of backups nor a row that is taken for another may lead to a backup that nobody can find.
TEST_F(RefusedWork, aStoreWithoutItsBackupsStopsWhatNeedsThem) {
    const auto before = everything();
    EXPECT_FALSE(removeBackup(session, u"7-Backup"_s));
    for (const QString& meanwhile : {u"DELETE FROM MV_BACKUP"_s, u"DROP TABLE MV_BACKUP"_s}) {
        session.adoConn->execute(u"INSERT INTO MV_BACKUP(BACKUP_NAME) VALUES ('1-Backup')"_s);
        user.onQuestion = [&] { session.adoConn->execute(meanwhile); };
        EXPECT_FALSE(removeBackup(session, u"1-Backup"_s));
    }
    for (const Work& work : works) {
        if (!work.readsBackups) continue;
        session.rows<clsBackups>().reset();
        user.calls.clear();
        work.run(session);
        EXPECT_EQ(user.calls.filter(u"box "_s).size(), 1) << work.name;
    }
    EXPECT_TRUE(everything() == before);
}

/// Folders stand where all of ours stood: what could not be begun leaves the rows as they are.
TEST_F(RefusedWork, aRestoreThatBringsNothingBackLeavesTheSetInstalled) {
    for (const QString& path : {u"World\\Texture\\029H2SU6.BMP"_s, u"UTEurLC\\Texture\\034B2SU4.BMP"_s}) {
        const FilePath place = install.simulator() / (u"Scenery\\"_s + path);
        install.files.remove(place);
        install.files.makeFolder(place);
    }
    EXPECT_TRUE(restoreOriginals(session)->failure);
    EXPECT_EQ(install.installedSets(), QStringList{u"1-Blue"_s});
    EXPECT_EQ(user.countOfKind(MessageKind::error), 1);
    install.files.removeFolder(install.simulator() / u"Scenery\\World\\Texture\\029H2SU6.BMP");
    EXPECT_EQ(restoreOriginals(session)->putBack, 1);
    EXPECT_EQ(install.installedSets(), QStringList());
    EXPECT_TRUE(readSimulatorNote(install.files, install.simulator())) << "one of ours may stand there";
}

/// Nobody knows what it says, so nothing is replaced or given back, also where a row was written before; a
/// backup can be made.
TEST_F(RefusedWork, aListOfANewerVersionStopsWhatNeedsIt) {
    writeFile(install.home() / u"Backup\\Originals\\originals.lst", "morvane-originals\t3\tnobody knows\n");
    const auto before = everything();
    for (const Work& work : works)
        if (work.putsOursThere) work.run(session);
    EXPECT_FALSE(askRestoreOriginals(session) || restoreOriginals(session) || undoLastInstall(session));
    EXPECT_TRUE(everything() == before) << "the step before can still be undone";
    const auto report = createBackup(session, false, true);
    EXPECT_TRUE(report && report->isComplete());
}

/// A store that was edited by hand: such a row is all that there is of the backup.
TEST_F(RefusedWork, aBackupWhoseNameLeadsOutOfItsFolderIsARowAlone) {
    const auto before = everything();
    for (const QString& name : {u".."_s, u"..\\.."_s, u"C:"_s}) {
        session.adoConn->execute(u"UPDATE MV_BACKUP SET BACKUP_NAME = '%1'"_s.arg(name));
        clsBackups::reload(session);
        ASSERT_EQ(session.rows<clsBackups>()->begin()->get()->BackupName, name);
        user.onModal = [&](Screen) {
            session.state<BackupChoice>().chosenBackup = name;
            session.state<BackupChoice>().backupConfirmed = true;
        };
        restoreBackupOnRequest(session);
        EXPECT_TRUE(everything() == before) << qPrintable(name);
    }
    EXPECT_TRUE(removeBackup(session, u"C:"_s));
    EXPECT_TRUE(everything() == before);
    clsBackups::reload(session);
    EXPECT_EQ(session.rows<clsBackups>()->Count(), 0);
}

} // namespace
} // namespace morvane::test
