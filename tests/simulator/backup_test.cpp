#include "app/first_run.h"
#include "core/registry.h"
#include "core/safe_copy.h"
#include "core/store.h"
#include "ground/ground_installation.h"
#include "sets/options_in_force.h"
#include "sets/simulator_copy.h"
#include "simulator/backup_files.h"
#include "simulator/backup_restore.h"
#include "simulator/backups.h"
#include "simulator/simulator_restore.h"
#include "support/small_install.h"
#include "support/system_files.h"

#include <QDir>
#include <fstream>

namespace morvane::test {
namespace {

const QString restoring = u"message Progress Morvane Information"_s;

struct BackupTest : InstallTest {
    FilePath world = install.simulator() / u"Scenery\\World\\texture";
    FilePath addOn = install.simulator() / u"Scenery\\UTEurLC\\Texture";
    FilePath folder = install.home() / u"Backup\\1-Backup";
    const QString texture = "Scenery/World/texture/029H2SU6.BMP", blue = "1-Blue";

    void SetUp() override {
        writeFile(world / u"Gelände ñ.bmp", "the pilot's own");
        writeFile(world / u"note.txt", "no texture");
    }
    void addSet(const QString& name, const QStringList& files, const QString& cover = "Sunny") {
        install.addGroundSet(name, cover, true, files);
        GroundInstallation(session).installTextureSet(name);
    }
    void restore(const QString& name, bool isConfirmed = true) {
        install.user.onModal = [this, name, isConfirmed](Screen) {
            session.state<BackupChoice>().chosenBackup = name;
            session.state<BackupChoice>().backupConfirmed = isConfirmed;
        };
        restoreBackupOnRequest(session);
    }
    QStringList backupNames() {
        clsBackups::reload(session);
        QStringList names;
        for (const auto& backup : *session.rows<clsBackups>())
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
        addSet(name, {"Texture\\029h2su6.bmp", "Texture\\Gelände ñ.bmp", "UTEurLC\\034b2su4.bmp"});
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

/// A backup may hold files of ours. Put back they are ours again, also when they were taken away in between;
/// what it holds of the pilot's stays his, also where nothing stood any more.
TEST_F(BackupTest, whatWasOursInABackupIsOursAgain) {
    const auto before = contentsBelow(install.simulator());
    addSet(blue, {"Texture\\029h2su6.bmp", "Texture\\added.bmp"});
    backupOnRequest(session);
    for (const bool isTakenAway : {true, false}) {
        if (isTakenAway) restoreOriginals(session);
        install.files.remove(world / u"029B2SU6.BMP");
        restore(u"1-Backup"_s);
        EXPECT_EQ(readFile(world / u"029H2SU6.BMP"), "1-Blue Texture\\029h2su6.bmp");
        EXPECT_EQ(readFile(world / u"added.bmp"), "1-Blue Texture\\added.bmp");
        restoreOriginals(session);
        EXPECT_EQ(contentsBelow(install.simulator()), before);
    }
}

TEST_F(BackupTest, restorePassesOverReadOnlyTargetsAndDamagedCopiesWithoutAWord) {
    createBackup(session, true);
    for (const char16_t* name : {u"002C2WI1.BMP", u"029H2SU6.BMP", u"005A2SU2.BMP"})
        writeFile(world / name, "a set");
    install.files.setReadOnly(world / u"002C2WI1.BMP", true);
    writeFile(folder / u"Texture\\029H2SU6.BMP", "torn");
    install.user.messages.clear();
    restore(u"1-Backup"_s);
    EXPECT_EQ(readFile(world / u"002C2WI1.BMP"), "a set");
    EXPECT_EQ(readFile(world / u"029H2SU6.BMP"), "a set");
    EXPECT_TRUE(readFile(world / u"005A2SU2.BMP").startsWith("the pilot's"));
    EXPECT_EQ(install.user.calls.back(), u"done 1 put back, 1 read-only left, 1 damaged left out"_s);
    EXPECT_TRUE(install.user.told().isEmpty());
    writeFile(world / u"005A2SU2.BMP", "a set");
    install.user.onModal = [this](Screen) { session.state<BackupChoice>().chosenBackup = u"1-Backup"_s; };
    restoreBackupOnRequest(session);
    EXPECT_EQ(readFile(world / u"005A2SU2.BMP"), "a set") << "clicked, and left without an OK";
}

/// A source that is none any more, and what stands already.
TEST_F(BackupTest, aRestoreSaysWhatItLeftAndWhatWasThere) {
    createBackup(session, false);
    const FilePath texture029 = folder / u"Texture\\029H2SU6.BMP";
    writeFile(world / u"005A2SU2.BMP", "a set");
    install.files.remove(texture029);
    install.files.makeFolder(texture029);
    restore(u"1-Backup"_s);
    EXPECT_EQ(install.user.calls.back(), u"done 1 put back"_s) << "a folder is no texture";
    EXPECT_EQ(install.user.doneRemark, u"4 were there already"_s);
    install.files.removeFolder(texture029);
    const UnreadableFile unreadable(texture029);
    restore(u"1-Backup"_s);
    EXPECT_EQ(install.user.calls.back(), u"done 0 put back, 1 could not be replaced"_s);
}

TEST_F(BackupTest, whatIsCutShortIsMarkedAndNothingIsOverwritten) {
    writeFile(folder / u"Texture\\old.bmp", "of a store that was lost");
    writeFile(folder.parent() / u"1-Backup kept 1\\Texture\\older.bmp", "and of another");
    install.user.onPump = [this] { session.user.answers().cancelRequested = true; };
    createBackup(session, false);
    EXPECT_TRUE(install.user.told().back().contains(
        u"cancelled.  The backup 1-Backup is marked as partial, as it lacks 6 of 6 textures."_s));
    EXPECT_FALSE(isBackupComplete(session, u"1-Backup"_s));
    EXPECT_EQ(readFile(folder.parent() / u"1-Backup kept 2\\Texture\\old.bmp"), "of a store that was lost");
    EXPECT_EQ(readFile(folder.parent() / u"1-Backup kept 1\\Texture\\older.bmp"), "and of another");
    // Cancelled when all are copied, before each was read again.
    install.user.onPump = [this] {
        session.user.answers().cancelRequested =
            install.files.list(install.home() / u"Backup\\2-Backup\\UTEurLC", u"*.bmp"_s).size() == 1;
    };
    createBackup(session, false);
    EXPECT_TRUE(
        install.user.told().back().contains(u"cancelled.  The backup 2-Backup is marked as partial."_s));
    install.user.onPump = [] {};
    createBackup(session, false);
    EXPECT_TRUE(isBackupComplete(session, u"3-Backup"_s));
    restore(u"1-Backup"_s, false);
    ASSERT_EQ(session.state<BackupChoice>().backups.size(), 3U);
    EXPECT_FALSE(session.state<BackupChoice>().backups[0].isComplete);
    EXPECT_FALSE(install.user.calls.contains(restoring)) << "the list was left with Cancel";
}

TEST_F(BackupTest, aNoAndAnEmptyListDoNothing) {
    restore("1-Backup");
    EXPECT_FALSE(install.user.calls.contains("modal frm_BackupList"));
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

/// A disk that takes only so many bytes, and files that nobody could back up.
TEST_F(BackupTest, onlyWhatHoldsEveryTextureIsComplete) {
    const std::tuple<qint64, QString, QString, bool> cases[] = {
        // Bytes of room, what is said to be done and to lack, and whether the list is written.
        {0, "0 of 6 textures", "6", false},
        {60, "1 of 6 textures", "5", false},
        {6000, "5 of 6 textures", "1", true}, // the great one does not get there
        {60000, "6 textures", {}, true},
    };
    writeFile(world / u"Gelände ñ.bmp", QByteArray(20000, 'o'));
    int number = 0;
    for (const auto& [room, done, lacks, hasList] : cases) {
        const QString name = u"%1-Backup"_s.arg(++number);
        install.user.messages.clear();
        install.files.leaveRoom(room);
        backupOnRequest(session);
        install.files.leaveRoom(-1);
        EXPECT_EQ(isBackupComplete(session, name), lacks.isEmpty()) << room;
        EXPECT_EQ(install.files.exists(install.home() / u"Backup" / name / u"backup.lst"), hasList);
        EXPECT_EQ(install.user.calls.back(), "done " + done + " backed up");
        EXPECT_EQ(install.user.countOfKind(MessageKind::exclamation), lacks.isEmpty() ? 0 : 1);
        EXPECT_TRUE(lacks.isEmpty() ||
                    install.user.told().back().contains(u"lacks %1 of 6 textures."_s.arg(lacks)));
    }
}

#ifndef Q_OS_WIN
/// What cannot be read is missing, but no reason to begin again at each start.
TEST_F(BackupTest, whatCannotBeReadIsMissing) {
    QFile::link(u"/nowhere"_s, (world / u"broken.bmp").native());
    const std::string noText = world.native().toStdString() + "/no text \xff.BMP";
    std::ofstream(noText) << "texture";
    std::ofstream(world.native().toStdString() + "/no path : .bmp") << "texture";
    const auto report = createBackup(session, true);
    ASSERT_TRUE(report);
    EXPECT_EQ(report->files, 6 + 3);
    EXPECT_EQ(report->saved, 6);
    EXPECT_TRUE(report->isWritten);
    EXPECT_FALSE(isBackupComplete(session, u"1-Backup"_s));
    EXPECT_TRUE(install.user.told().back().contains(u"lacks 3 of 9 textures."_s));
    std::remove(noText.c_str()); // no folder can be removed by Qt while it is there
}

/// Put there by another hand.
TEST_F(BackupTest, aNameThatIsNoPathCostsNoOther) {
    createBackup(session, false);
    std::ofstream((folder / u"Texture").native().toStdString() + "/no path : .bmp") << "texture";
    writeFile(world / u"029H2SU6.BMP", "a set");
    restore(u"1-Backup"_s);
    EXPECT_TRUE(readFile(world / u"029H2SU6.BMP").startsWith("the pilot's"));
    EXPECT_EQ(install.user.calls.back(), u"done 1 put back"_s);
}

TEST_F(BackupTest, eachSpellingOfANameIsBackedUpAndRestoredAsItself) {
    const FilePath first = world.resolved().exactChild(u"GELÄNDE Ñ.BMP"_s), second = world / u"Gelände ñ.bmp";
    writeFile(first, "another");
    createBackup(session, false);
    for (const bool isRemoved : {false, true}) {
        writeFile(first, "a set");
        writeFile(second, "a set");
        if (isRemoved) QFile::remove(first.native());
        restore(u"1-Backup"_s);
        EXPECT_EQ(readFile(first), "another");
        EXPECT_EQ(readFile(second), "the pilot's own");
        EXPECT_EQ(install.user.calls.back(), u"done 2 put back"_s);
    }
}
#endif

struct FirstRunTest : BackupTest {
    void SetUp() override {
        BackupTest::SetUp();
        for (const QString& name : {u"Älpler"_s, u"Zürich"_s})
            for (const QString& ending : {u".flt"_s, u".wx"_s})
                writeFile(install.home() / u"Flights" / (name + ending), name.toUtf8());
        setFirstTime(u"True"_s);
    }
    void setFirstTime(const QString& text) { storeOwnValue(install.registry, firstTime, text); }
    bool isDone() { return ownValue(install.registry, firstTime) == u"False"; }
    const QString firstTime = u"FirstTime"_s;
    FilePath keptSplash = install.home() / u"Media\\dlgsplash.bmp";
    FilePath flights = install.simulator() / u"Flights\\Morvane";
};

/// A row without a list is the first run's only where nothing would be written over.
TEST_F(FirstRunTest, goesOnWithABackupThatHoldsNothingAlone) {
    session.adoConn->execute(u"INSERT INTO MV_BACKUP(BACKUP_NAME) VALUES ('..')"_s);
    int number = 1;
    for (const QString& file :
         {u"note.txt"_s, u"Texture\\a.bmp"_s, u"UTEurLC\\a.bmp"_s, u"Texture\\a.bmp.morvane-part"_s}) {
        const QString name = u"%1-Backup"_s.arg(++number);
        session.adoConn->execute(
            u"INSERT INTO MV_BACKUP(ID, BACKUP_NAME) VALUES (%1, '%2')"_s.arg(number).arg(name));
        clsBackups::reload(session);
        const FilePath place = folder.parent() / name / file;
        writeFile(place, "another hand's");
        const auto report = createBackup(session, true);
        ASSERT_TRUE(report);
        EXPECT_EQ(report->name == name, file.endsWith(partialCopySuffix)) << file.toStdString();
        EXPECT_EQ(install.files.exists(place), report->name != name);
        QDir(folder.parent().native()).removeRecursively();
        session.adoConn->execute(u"DELETE FROM MV_BACKUP WHERE BACKUP_NAME <> '..'"_s);
    }
}

/// The flights go through the list of originals, too: a pilot's of that name is not lost, and all is undone.
TEST_F(FirstRunTest, isDoneOnceAndOnlyWhenAskedForAndCanBeTakenBack) {
    writeFile(flights / u"ÄLPLER.FLT", "the pilot's");
    const auto before = contentsBelow(install.simulator());
    for (const QString& other : {QString(), u"true"_s, u"False"_s}) {
        setFirstTime(other);
        doFirstRun(session);
        EXPECT_TRUE(backupNames().isEmpty());
    }
    setFirstTime(u"True"_s);
    doFirstRun(session);
    doFirstRun(session);
    EXPECT_EQ(backupNames(), QStringList{u"1-Backup"_s});
    EXPECT_EQ(readFile(flights / u"ÄLPLER.FLT"), "Älpler");
    EXPECT_EQ(readFile(flights / u"Zürich.wx"), "Zürich");
    EXPECT_EQ(readFile(keptSplash), "the pilot's splash");
    ASSERT_EQ(install.user.told().size(), 2) << "what is done, and its progress";
    EXPECT_TRUE(install.user.told()[0].startsWith(u"Information|Creating Backup|"_s));
    restoreOriginals(session);
    EXPECT_EQ(contentsBelow(install.simulator()), before);
    session.state<OptionsInForce>().IsWideClient = true;
    setFirstTime("True");
    doFirstRun(session);
    EXPECT_FALSE(install.files.exists(flights / u"Älpler.wx"));
    EXPECT_EQ(backupNames().size(), 2);
}

/// A folder stands where a file should go: that file alone is missed, and told of.
TEST_F(FirstRunTest, whatFailsCostsNothingElse) {
    for (const FilePath& place : {keptSplash, flights / u"Älpler.flt"}) {
        QDir(flights.native()).removeRecursively();
        QFile::remove(place.native());
        writeFile(place / u"in the way", "");
        setFirstTime(u"True"_s);
        install.user.messages.clear();
        doFirstRun(session);
        EXPECT_TRUE(isDone());
        EXPECT_EQ(install.user.countOfKind(MessageKind::error), 1)
            << install.user.told().join(u'\n').toStdString();
        EXPECT_TRUE(install.user.told()[0].contains(place.text()));
        EXPECT_EQ(readFile(flights / u"Älpler.wx"), "Älpler");
        EXPECT_EQ(readFile(flights / u"Zürich.flt"), "Zürich");
        QDir(place.native()).removeRecursively();
    }
    EXPECT_EQ(readFile(keptSplash), "the pilot's splash");
}

/// Sets of ours stand in the simulator: from an earlier install, or from between two starts.
TEST_F(FirstRunTest, theKeptOriginalsAreTakenForWhatIsOurs) {
    writeFile(keptSplash, "as delivered");
    addSet(blue, {"Texture\\029h2su6.bmp", "Texture\\029b2su6.bmp"}, "Overcast");
    ASSERT_EQ(readFile(splashTarget(session)), "splash OVC");
    writeFile(world / u"029B2SU6.BMP", "another's"); // changed since ours
    const FilePath originals = install.home() / u"Backup\\Originals", aside = install.home() / u"aside";
    install.files.rename(originals, aside);
    doFirstRun(session);
    EXPECT_EQ(readFile(keptSplash), "as delivered") << "nobody knows the pilot's";
    QDir(originals.native()).removeRecursively(); // of the flights
    install.files.rename(aside, originals);
    setFirstTime(u"True"_s);
    doFirstRun(session);
    EXPECT_EQ(readFile(keptSplash), "the pilot's splash");
    EXPECT_EQ(readFile(install.home() / u"Backup\\2-Backup\\Texture\\029H2SU6.BMP"),
              "the pilot's GENERIC WORLD\\029h2su6.bmp");
    EXPECT_EQ(readFile(install.home() / u"Backup\\2-Backup\\Texture\\029B2SU6.BMP"), "another's");
    EXPECT_TRUE(isBackupComplete(session, u"2-Backup"_s));
}

TEST_F(FirstRunTest, aLockedStoreLeavesItToTheNextStart) {
    Store other;
    other.open(install.home() / u"Morvane.mdb");
    {
        StoreTransaction locked(other);
        other.execute(u"DELETE FROM MV_BACKUP"_s);
        doFirstRun(session);
    }
    EXPECT_FALSE(isDone());
    EXPECT_EQ(install.user.countOfKind(MessageKind::error), 1);
    EXPECT_TRUE(backupNames().isEmpty());
    doFirstRun(session);
    EXPECT_TRUE(isDone());
    EXPECT_EQ(backupNames(), QStringList{u"1-Backup"_s});
}

/// Whatever fails, once or from then on: the next start goes on with the row and the folder of the first one,
/// and the simulator stays as it is.
TEST_F(FirstRunTest, isGoneOnWithAfterEveryFailure) {
    install.files.remove(world / u"note.txt"); // no texture
    const auto textures = contentsBelow(world.resolved()), before = contentsBelow(install.simulator());
    int failures = 0;
    std::optional<BackupReport> report;
    for (const Fault fault : {Fault::forever, Fault::once})
        failures += failEachOperation(
            install.files, fault, [&] { report = createBackup(session, true); },
            [&](int n) {
                if (!report || !report->isWritten) report = createBackup(session, true);
                ASSERT_TRUE(report && report->isComplete()) << n;
                ASSERT_EQ(backupNames(), QStringList{report->name}) << n;
                ASSERT_EQ(contentsBelow(install.home() / u"Backup" / report->name / u"Texture"), textures)
                    << n;
                ASSERT_EQ(contentsBelow(install.simulator()), before) << n;
                session.adoConn->execute("DELETE FROM MV_BACKUP");
                QDir((install.home() / u"Backup").native()).removeRecursively();
                clsBackups::reload(session);
            });
    EXPECT_GT(failures, 80);
}

/// Whatever fails, each file of the simulator is the old one or the new one, and a backup that says it is
/// complete holds them all and stays as it was made.
TEST_F(BackupTest, everyFailingOperationOfARestoreLeavesSimulatorAndBackupWhole) {
    const auto before = contentsBelow(install.simulator());
    createBackup(session, false);
    const QString name = backupNames().last();
    const auto backup = contentsBelow(install.home() / u"Backup" / name);
    const auto work = [&] {
        writeFile(world / u"029H2SU6.BMP", "a set");
        restoreBackup(session, name);
    };
    const auto check = [&](int n) {
        auto after = contentsBelow(install.simulator());
        EXPECT_TRUE(after[texture] == "a set" || after[texture].startsWith("the pilot's")) << n;
        after[texture] = before[texture];
        EXPECT_EQ(after, before) << n;
        EXPECT_EQ(contentsBelow(install.home() / u"Backup" / name), backup) << n;
    };
    EXPECT_GT(failEachOperation(install.files, Fault::once, work, check), 9);
    EXPECT_EQ(contentsBelow(install.simulator()), before);
}

} // namespace
} // namespace morvane::test
