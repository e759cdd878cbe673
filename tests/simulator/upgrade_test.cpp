#include "simulator/upgrade.h"

#include "app/start_up.h"
#include "core/row_set.h"
#include "core/store.h"
#include "core/store_connection.h"
#include "ground/ground_sets.h"
#include "support/faulty_store.h"
#include "support/printing.h"
#include "support/version_two_install.h"

#include <gtest/gtest.h>
#include <iostream>
#include <sqlite3.h>

#ifndef Q_OS_WIN
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace morvane {
namespace {

using test::contentsBelow;
using test::readFile;
using test::SmallInstall;

struct UpgradeTest : testing::Test {
    SmallInstall install;
    Session& session = install.session;
    FilePath home = install.home();

    void SetUp() override { test::makeVersionTwo(install); }
    ~UpgradeTest() override { closeDatabase(session); }

    bool start() {
        closeDatabase(session);
        install.user.messages.clear();
        install.user.calls.clear();
        return startUp(session);
    }
    void prepare(const QStringList& statements) {
        connectDatabase(session);
        for (const QString& statement : statements)
            session.adoConn->execute(statement);
        closeDatabase(session);
    }
    int count(const QString& table) { return RowSet(*session.adoConn, u"SELECT * FROM "_s + table).count(); }
    QString joined(const QString& statement, const QStringList& columns) {
        QStringList rows;
        for (RowSet set(*session.adoConn, statement); !set.atEnd(); set.next()) {
            QStringList fields;
            for (const QString& column : columns)
                fields << set.text(column);
            rows << fields.join(u':');
        }
        return rows.join(u'|');
    }
    QString dutchSets() { return joined(u"SELECT * FROM TEXTURE_SETS"_s, {u"TEXTURE_SET"_s, u"DUTCH"_s}); }
    QStringList dutchFiles(const QString& set) {
        return install.files.list(home / u"Texture Sets" / set / u"Dutch", u"*"_s);
    }
};

TEST_F(UpgradeTest, anInstallOfVersionTwoBecomesAWorkingOne) {
    const auto oldStore = readFile(home / u"Morvane.mdb");
    ASSERT_TRUE(start());
    EXPECT_EQ(
        joined(u"SELECT * FROM AIRPORTDATA"_s, {u"ICAO"_s, u"STATE"_s, u"WMO_REGION"_s}),
        "KAA1:Washington:4|KAA2:Washington:4|KAA3:Washington:4|KAA4:Washington:4|KAA5:Washington:4|LSZ1::0");
    EXPECT_EQ(joined(u"SELECT * FROM AIRPORTDATA WHERE ICAO = 'LSZ1'"_s, {u"CITY"_s, u"BLOCK_NUMBER"_s}),
              u"Zürich:0"_s);
    EXPECT_EQ(joined(u"SELECT * FROM DECODED_METAR"_s,
                     {u"METAR_ICAO"_s, u"METAR_WIND_GUSTING"_s, u"METAR_MAX_CLOUD"_s, u"METAR_LONG"_s}),
              "KAA1:1:5:122-19W|KAA2:0:0:122-19W|KAA3:0:3:122-19W|KAA4:1:0:122-19W");
    EXPECT_FALSE(session.adoConn->hasTable(u"COUNTRIES"_s));
    EXPECT_EQ(joined(u"SELECT * FROM TEXTURE_SWITCH"_s,
                     {u"ISDUTCH"_s, u"ISTROPICAL"_s, u"ISHALO"_s, u"ISFASTEXIT"_s}),
              "0:0:0:0");
    EXPECT_EQ(joined(u"SELECT * FROM RESOURCE_FOLDERS WHERE RESOURCE_NAME = 'DUTCH'"_s,
                     {u"RESOURCE_SOURCE"_s, u"RESOURCE_TEXTURE_SET"_s, u"RESOURCE_DESTINATION"_s}),
              "DUTCH:Dutch:Scenery\\World\\texture");
    EXPECT_EQ(dutchSets(), u"Default:1|2-Own Á:1|3-Own B:1"_s);
    EXPECT_TRUE(findGroundSet(session, u"3-Own B"_s)->IsDutch);
    for (const QString& set : {u"2-Own Á"_s, u"3-Own B"_s})
        EXPECT_EQ(dutchFiles(set), (QStringList{u"002b2su1.bmp"_s, u"002c2wi1.bmp"_s, u"022a2wi1.bmp"_s}));
    EXPECT_EQ(readFile(home / u"Media\\dlgsplash.bmp"), "the pilot's splash");
    EXPECT_EQ(readFile(home / u"V2 Backup\\Morvane.mdb").size(), oldStore.size());
    EXPECT_EQ(test::integrityOf(home / u"V2 Backup\\Morvane.mdb"), "ok");
    EXPECT_FALSE(install.files.exists(home / u"AIRPORTDATA.txt"));
    EXPECT_FALSE(install.files.exists(home / u"DECODED_METAR.txt"));
}

TEST_F(UpgradeTest, theNightSetsComeInTheirOrderWithTheQuoteOfTheLast) {
    ASSERT_TRUE(start());
    const QStringList columns{u"TEXTURE_SET"_s, u"COLOR_SETTINGS"_s, u"ACTIVATED"_s, u"INSTALLED"_s};
    EXPECT_EQ(joined(u"SELECT * FROM NIGHT_TEXTURE_SETS ORDER BY ID"_s, columns),
              "Default:0:0:0:0:0:0:True:0|Green Bias:13:0:16:18.2:-8.4:0:True:0|"
              "Red Bias:0:13:-5.2:0:-6.6:0:True:0|Orange Bias:20:10:0:0:-6.6:0:True:0|"
              "White Bias:0:-6:-6:16:0:0:True:0");
    EXPECT_EQ(
        joined(u"SELECT * FROM NIGHT_TEXTURE_SETS WHERE TEXTURE_SET = 'White Bias'"_s, {u"DESCRIPTION"_s}),
        "Morvane created set with white bias\"");
}

TEST_F(UpgradeTest, saysWhatItDoes) {
    ASSERT_TRUE(start());
    EXPECT_EQ(
        install.user.told(),
        (QStringList{
            u"Information|MV 2.1 Update|Morvane will now update to Version 2.1.  Thank you for your continued support!"_s,
            u"Information|Create Dutch Textures|Morvane will now create updated textures for all your existing texture sets.  This will take approximately 1 - 2 minutes per set"_s,
            u"Information|Updating to V2.1|MV Update to V2.1 Complete"_s}));
    QStringList progress;
    for (const Message& message : install.user.messages) {
        if (message.isProgress) progress << message.title + u'|' + message.text;
        EXPECT_FALSE(message.isProgress && message.withCancel);
    }
    const QString sets = u"Creating Ground Texture Sets|"_s;
    EXPECT_EQ(
        progress,
        (QStringList{
            u"Updating to V2.1|Inserting Airport Data into the database"_s,
            u"Updating to V2.1|Inserting Decoded Metar Data into the database"_s,
            sets +
                u"Colorizing texture set 1 of 2 texture sets.  Process 1 of 2 \nBe aware that this may take 1 - 2 minutes per set dependant on your system specification. \nPlease wait........"_s,
            sets +
                u"Converting texture set 1 of 2 texture sets.  Process 2 of 2 \nBe aware that this may take 2 - 3 minutes per set dependant on your system specification. \nPlease wait......."_s,
            sets +
                u"Colorizing texture set 2 of 2 texture sets.  Process 1 of 2 \nBe aware that this may take 1 - 2 minutes per set dependant on your system specification. \nPlease wait........"_s,
            sets +
                u"Converting texture set 2 of 2 texture sets.  Process 2 of 2 \nBe aware that this may take 2 - 3 minutes per set dependant on your system specification. \nPlease wait......."_s}));
}

TEST_F(UpgradeTest, withoutTheFileNothingIsDoneHoweverOldTheTables) {
    install.files.remove(home / u"AIRPORTDATA.txt");
    start();
    EXPECT_FALSE(session.adoConn->hasColumn(u"AIRPORTDATA"_s, u"STATE"_s));
    EXPECT_FALSE(install.files.exists(home / u"V2 Backup"));
}

// What a step finds done it passes over, whatever the rows or the folders hold.
TEST_F(UpgradeTest, stepsThatWereDoneArePassedOver) {
    prepare({u"ALTER TABLE AIRPORTDATA ADD COLUMN STATE TEXT(50)"_s,
             u"ALTER TABLE TEXTURE_SETS ADD COLUMN DUTCH YESNO"_s});
    test::writeFile(home / u"V2 Backup\\note.txt", "kept");
    ASSERT_TRUE(start());
    EXPECT_EQ(joined(u"SELECT * FROM AIRPORTDATA"_s, {u"ICAO"_s}), "OLD1|OLD2");
    EXPECT_EQ(count(u"DECODED_METAR"_s), test::newReports);
    EXPECT_EQ(dutchSets(), u"Default:0|2-Own Á:0|3-Own B:0"_s);
    EXPECT_TRUE(dutchFiles(u"2-Own Á"_s).isEmpty());
    EXPECT_EQ(install.user.countOfKind(MessageKind::information), 2);
    EXPECT_EQ(install.files.list(home / u"V2 Backup", u"*"_s), QStringList{u"note.txt"_s});
}

TEST_F(UpgradeTest, aFileThatIsMissingOrBrokenEndsTheStartAndLosesNoRow) {
    const auto airports = readFile(home / u"AIRPORTDATA.txt"),
               reports = readFile(home / u"DECODED_METAR.txt");
    const std::pair<const char16_t*, QByteArray> broken[] = {
        {u"AIRPORTDATA.txt", QByteArray(airports).replace(";4;72;", ";four;72;")},
        {u"AIRPORTDATA.txt", QByteArray(airports).replace("Washington", QByteArray(60, 'W'))},
        {u"DECODED_METAR.txt", {}},
        {u"DECODED_METAR.txt", reports + "2;KAA5\r\n"},
    };
    for (const auto& [name, contents] : broken) {
        if (contents.isEmpty())
            install.files.remove(home / name);
        else
            test::writeFile(home / name, contents);
        EXPECT_FALSE(start());
        EXPECT_TRUE(install.user.told().back().startsWith(u"Exclamation|Morvane Error!|Sub Main\n"_s));
        EXPECT_TRUE(install.files.exists(home / u"AIRPORTDATA.txt"));
        EXPECT_EQ(joined(u"SELECT * FROM DECODED_METAR"_s, {u"METAR_ICAO"_s}), "OLD1");
        test::writeFile(home / u"DECODED_METAR.txt", reports);
        test::writeFile(home / u"AIRPORTDATA.txt", airports);
    }
    EXPECT_TRUE(start());
    EXPECT_EQ(count(u"DECODED_METAR"_s), test::newReports);
}

TEST_F(UpgradeTest, withDefaultAloneTheMessageIsShownAndNoSetIsMade) {
    prepare({u"DELETE FROM TEXTURE_SETS WHERE TEXTURE_SET <> 'Default'"_s});
    ASSERT_TRUE(start());
    EXPECT_EQ(install.user.countOfKind(MessageKind::information), 3);
    EXPECT_EQ(dutchSets(), "Default:1");
    EXPECT_TRUE(install.user.calls.filter(u"file Processing"_s).isEmpty());
}

TEST_F(UpgradeTest, aStoreThatRefusesASetsRowIsToldOnceForAllSets) {
    prepare({u"CREATE TRIGGER T BEFORE UPDATE ON TEXTURE_SETS WHEN OLD.TEXTURE_SET <> 'Default' "
             "BEGIN SELECT RAISE(ABORT, 'no'); END"_s});
    ASSERT_TRUE(start());
    EXPECT_EQ(install.user.countOfKind(MessageKind::error), 1);
}

TEST_F(UpgradeTest, aMissingSplashIsToldUnderItsNameAndStopsNothing) {
    install.files.remove(install.simulator() / u"Uires\\dlgsplash.bmp");
    ASSERT_TRUE(start());
    EXPECT_TRUE(install.user.told()[1].startsWith(u"Exclamtion|Morvane Error|Sub backUserFSSplash "_s))
        << install.user.told()[1].toStdString();
}

/// Rows are old or new, never mixed or lost, and a start without a fault ends in a working 2.1.
void expectNothingLost(UpgradeTest& test) {
    test.install.files.failAt(0, false);
    closeDatabase(test.session);
    const FilePath kept = test.home / u"V2 Backup\\Morvane.mdb";
    if (test.install.files.isFolder(test.home / u"V2 Backup")) {
        EXPECT_EQ(test::integrityOf(kept), "ok");
    }
    connectDatabase(test.session);
    const bool isNew = test.session.adoConn->hasColumn(u"AIRPORTDATA"_s, u"STATE"_s);
    EXPECT_EQ(test.count(u"AIRPORTDATA"_s), isNew ? test::newAirports : 2);
    ASSERT_TRUE(test.start());
    EXPECT_EQ(test.count(u"AIRPORTDATA"_s), test::newAirports);
    EXPECT_EQ(test.count(u"DECODED_METAR"_s), test::newReports);
    EXPECT_EQ(test.count(u"NIGHT_TEXTURE_SETS"_s), 5);
    EXPECT_EQ(test.count(u"TEXTURE_SWITCH"_s), 1);
    EXPECT_TRUE(test.dutchSets().startsWith(u"Default:1|"_s));
}

struct OneUpgrade : UpgradeTest {
    OneUpgrade() {
        UpgradeTest::SetUp();
        install.user.otherwise = false; // a simulator that cannot be found would be asked for over and over
    }
    void TestBody() override {}
};

TEST(UpgradeFaults, noFailedFileOperationLosesARow) {
    int failures = 0;
    for (const bool forever : {false, true})
        for (int n = 1;; ++n) {
            OneUpgrade upgrade;
            upgrade.install.files.failAt(n, forever);
            upgrade.start();
            if (!upgrade.install.files.hasFailed()) break;
            ++failures;
            SCOPED_TRACE(n);
            expectNothingLost(upgrade);
            if (testing::Test::HasFatalFailure()) return;
        }
    std::cout << failures << " failed file operations\n";
    EXPECT_GT(failures, 80);
}

TEST(UpgradeFaults, noFailedWriteOfTheStoreLosesARow) {
    int failures = 0;
    for (const bool forever : {false, true})
        for (int n = 1;; ++n) {
            OneUpgrade upgrade;
            int operations = 0;
            {
                test::FaultyStoreDisk disk;
                disk.failAt(n, forever);
                upgrade.start();
                operations = disk.operations();
                disk.heal();
                closeDatabase(upgrade.session);
            }
            if (operations < n) break;
            ++failures;
            SCOPED_TRACE(n);
            expectNothingLost(upgrade);
            if (testing::Test::HasFatalFailure()) return;
        }
    std::cout << failures << " failed writes of the store\n";
    EXPECT_GT(failures, 30);
}

#ifndef Q_OS_WIN

int statementsLeft = 0; ///< of the process that is to be killed

int countStatement(unsigned, void*, void*, void*) {
    if (--statementsLeft == 0) raise(SIGKILL);
    return 0;
}

int watchStatements(sqlite3* connection, char**, const sqlite3_api_routines*) {
    return sqlite3_trace_v2(connection, SQLITE_TRACE_STMT, countStatement, nullptr);
}

/// Starts the program in a process that is killed before its n-th statement; false when it had no so many.
bool killAtStatement(UpgradeTest& test, int n) {
    const pid_t process = fork();
    if (process == 0) {
        statementsLeft = n;
        sqlite3_auto_extension(reinterpret_cast<void (*)()>(watchStatements));
        _exit(startUp(test.session) ? 0 : 1);
    }
    int status = 0;
    waitpid(process, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
    return WIFSIGNALED(status);
}

TEST(UpgradeKills, aStartAfterAnyStatementCompletesTheUpgrade) {
    int kills = 0;
    bool hasCutSets = false;
    for (int n = 1;; ++n) {
        OneUpgrade upgrade;
        if (!killAtStatement(upgrade, n)) break;
        ++kills;
        SCOPED_TRACE(n);
        expectNothingLost(upgrade);
        if (testing::Test::HasFatalFailure()) return;
        // What a kill among the sets leaves undone is not made up for; a mark always has its files.
        const QString sets = upgrade.dutchSets();
        hasCutSets = hasCutSets || sets.endsWith(u"3-Own B:0");
        if (sets.contains(u"3-Own B:1")) {
            EXPECT_EQ(upgrade.dutchFiles(u"3-Own B"_s).size(), 3);
        }
    }
    std::cout << kills << " kills\n";
    EXPECT_GT(kills, 60);
    EXPECT_TRUE(hasCutSets);
}

#endif

} // namespace
} // namespace morvane
