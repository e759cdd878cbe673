#include "simulator/upgrade.h"

#include "app/start_up.h"
#include "core/file_fingerprint.h"
#include "core/row_set.h"
#include "core/store.h"
#include "core/store_connection.h"
#include "ground/ground_sets.h"
#include "support/faulty_store.h"
#include "support/install_test.h"
#include "support/system_files.h"
#include "support/version_two_install.h"

namespace morvane::test {
namespace {

struct UpgradeTest : InstallTest {
    FilePath home = install.home();

    void SetUp() override { makeVersionTwo(install); }
    ~UpgradeTest() override { closeDatabase(session); }

    bool start() {
        closeDatabase(session);
        install.user.messages.clear();
        install.user.calls.clear();
        return startUp(session);
    }
    int count(const QString& table) { return RowSet(*session.adoConn, u"SELECT * FROM "_s + table).count(); }
    /// The columns of every row; `from` is a table and what may follow its name.
    QString joined(const QString& from, const QString& columns) {
        QStringList rows;
        for (RowSet set(*session.adoConn, "SELECT * FROM " + from); !set.atEnd(); set.next()) {
            QStringList fields;
            for (const QString& column : columns.split(u' '))
                fields << set.text(column);
            rows << fields.join(u':');
        }
        return rows.join(u'|');
    }
    QString dutchSets() { return joined("TEXTURE_SETS", "TEXTURE_SET DUTCH"); }
    QStringList dutchFiles(const QString& set) {
        return install.files.list(home / u"Texture Sets" / set / u"Dutch", u"*"_s);
    }
};

TEST_F(UpgradeTest, anInstallOfVersionTwoBecomesAWorkingOne) {
    const auto oldStore = readFile(home / u"Morvane.mdb");
    ASSERT_TRUE(start());
    // Three informations, and a progress for each file and each pass over a set; their texts by a check sum.
    QStringList said;
    for (const Message& message : install.user.messages)
        said << message.title + '|' + message.text;
    EXPECT_EQ(fingerprintOf(said.join('\n').toUtf8()).checksum, "0e78d4bfc2bae9a412a8e46086ac4cd33c5a6251")
        << said.join('\n').toStdString();
    const QString tables[][3] = {
        {"AIRPORTDATA WHERE ICAO < 'KAA3'", "ICAO STATE WMO_REGION", "KAA1:Washington:4|KAA2:Washington:4"},
        {"AIRPORTDATA WHERE ICAO > 'KAA5'", "ICAO CITY STATE WMO_REGION BLOCK_NUMBER", "LSZ1:Zürich::0:0"},
        {"DECODED_METAR", "METAR_ICAO METAR_WIND_GUSTING METAR_MAX_CLOUD METAR_LONG",
         "KAA1:1:5:122-19W|KAA2:0:0:122-19W|KAA3:0:3:122-19W|KAA4:1:0:122-19W"},
        {"RESOURCE_FOLDERS WHERE RESOURCE_NAME = 'DUTCH'",
         "RESOURCE_SOURCE RESOURCE_TEXTURE_SET RESOURCE_DESTINATION", "DUTCH:Dutch:Scenery\\World\\texture"},
        {"TEXTURE_SETS", "TEXTURE_SET DUTCH", "Default:1|2-Own Á:1|3-Own B:1"},
        {"NIGHT_TEXTURE_SETS ORDER BY ID", "TEXTURE_SET COLOR_SETTINGS ACTIVATED INSTALLED",
         "Default:0:0:0:0:0:0:True:0|Green Bias:13:0:16:18.2:-8.4:0:True:0|Red "
         "Bias:0:13:-5.2:0:-6.6:0:True:0|"
         "Orange Bias:20:10:0:0:-6.6:0:True:0|White Bias:0:-6:-6:16:0:0:True:0"},
        {"NIGHT_TEXTURE_SETS WHERE ID = 5", "DESCRIPTION", "Morvane created set with white bias\""},
    };
    for (const auto& [from, columns, rows] : tables)
        EXPECT_EQ(joined(from, columns), rows) << from.toStdString();
    EXPECT_EQ(count("AIRPORTDATA"), newAirports);
    EXPECT_FALSE(session.adoConn->hasTable(u"COUNTRIES"_s));
    EXPECT_TRUE(findGroundSet(session, "3-Own B")->IsDutch);
    for (const QString& set : {u"2-Own Á"_s, u"3-Own B"_s})
        EXPECT_EQ(dutchFiles(set), (QStringList{"002b2su1.bmp", "002c2wi1.bmp", "022a2wi1.bmp"}));
    EXPECT_EQ(readFile(home / u"Media\\dlgsplash.bmp"), "the pilot's splash");
    EXPECT_EQ(readFile(home / u"V2 Backup\\Morvane.mdb").size(), oldStore.size());
    EXPECT_EQ(integrityOf(home / u"V2 Backup\\Morvane.mdb"), "ok");
    EXPECT_FALSE(install.files.exists(home / u"AIRPORTDATA.txt"));
}

// What a step finds done it passes over, whatever the rows or the folders hold.
TEST_F(UpgradeTest, stepsThatWereDoneArePassedOver) {
    connectDatabase(session);
    session.adoConn->execute(u"ALTER TABLE AIRPORTDATA ADD COLUMN STATE TEXT(50)"_s);
    session.adoConn->execute(u"ALTER TABLE TEXTURE_SETS ADD COLUMN DUTCH YESNO"_s);
    writeFile(home / u"V2 Backup\\note.txt", "kept");
    ASSERT_TRUE(start());
    EXPECT_EQ(joined("AIRPORTDATA", "ICAO"), "OLD1|OLD2");
    EXPECT_EQ(count(u"DECODED_METAR"_s), newReports);
    EXPECT_EQ(dutchSets(), u"Default:0|2-Own Á:0|3-Own B:0"_s);
    EXPECT_TRUE(dutchFiles(u"2-Own Á"_s).isEmpty());
    EXPECT_EQ(install.user.countOfKind(MessageKind::information), 2);
    EXPECT_EQ(install.files.list(home / u"V2 Backup", u"*"_s), QStringList{u"note.txt"_s});
    EXPECT_TRUE(install.files.isFolder(home / u"TempBitmaps\\Dutch"));
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
        writeFile(home / name, contents);
        if (contents.isEmpty()) install.files.remove(home / name);
        EXPECT_FALSE(start());
        EXPECT_TRUE(install.user.told().back().startsWith(u"Exclamation|Morvane Error!|Sub Main\n"_s));
        EXPECT_TRUE(install.files.exists(home / u"AIRPORTDATA.txt"));
        EXPECT_EQ(joined("DECODED_METAR", "METAR_ICAO"), "OLD1");
        writeFile(home / u"DECODED_METAR.txt", reports);
        writeFile(home / u"AIRPORTDATA.txt", airports);
    }
    EXPECT_TRUE(start());
    EXPECT_EQ(count(u"DECODED_METAR"_s), newReports);
}

/// Rows are old or new, never mixed or lost, and a start without a fault ends in a working 2.1.
void expectNothingLost(UpgradeTest& test) {
    test.install.files.failAt(0, false);
    closeDatabase(test.session);
    const FilePath kept = test.home / u"V2 Backup\\Morvane.mdb";
    if (test.install.files.isFolder(test.home / u"V2 Backup")) {
        EXPECT_EQ(integrityOf(kept), "ok");
    }
    connectDatabase(test.session);
    const bool isNew = test.session.adoConn->hasColumn(u"AIRPORTDATA"_s, u"STATE"_s);
    EXPECT_EQ(test.count(u"AIRPORTDATA"_s), isNew ? newAirports : 2);
    ASSERT_TRUE(test.start());
    EXPECT_EQ(test.count(u"AIRPORTDATA"_s), newAirports);
    EXPECT_EQ(test.count(u"DECODED_METAR"_s), newReports);
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

/// Starts an upgrade whose n-th operation fails; false when it had no so many.
using FaultyStart = bool (*)(UpgradeTest& upgrade, int n, bool forever);

bool startOnFaultyFiles(UpgradeTest& upgrade, int n, bool forever) {
    upgrade.install.files.failAt(n, forever);
    upgrade.start();
    return upgrade.install.files.hasFailed();
}

bool startOnAFaultyStore(UpgradeTest& upgrade, int n, bool forever) {
    FaultyStoreDisk disk;
    disk.failAt(n, forever);
    upgrade.start();
    const int operations = disk.operations();
    disk.heal();
    closeDatabase(upgrade.session);
    return operations >= n;
}

bool startThatIsKilled(UpgradeTest& upgrade, int n, bool) {
    upgrade.install.files.killAt(n);
    try {
        upgrade.start();
    } catch (const Killed&) {
        return true;
    }
    return false;
}

/// An upgrade a failure, until one had none; gives their number.
int failuresOf(FaultyStart start, bool forever) {
    for (int n = 1;; n += faultStride) {
        OneUpgrade upgrade;
        if (!start(upgrade, n, forever)) return n - 1;
        SCOPED_TRACE(n);
        expectNothingLost(upgrade);
        if (testing::Test::HasFatalFailure()) return 0;
        // What a kill among the sets leaves undone is not made up for; a mark always has its files.
        if (start == startThatIsKilled && upgrade.dutchSets().contains(u"3-Own B:1")) {
            EXPECT_EQ(upgrade.dutchFiles(u"3-Own B"_s).size(), 3);
        }
    }
}

TEST(UpgradeFaults, noFailedOperationOfFilesLosesARow) {
    EXPECT_GT(failuresOf(startOnFaultyFiles, false) + failuresOf(startOnFaultyFiles, true), 80);
}

TEST(UpgradeFaults, noFailedOperationOfTheStoreLosesARow) {
    EXPECT_GT(failuresOf(startOnAFaultyStore, false) + failuresOf(startOnAFaultyStore, true), 30);
}

TEST(UpgradeFaults, noKillLosesARow) {
    EXPECT_GT(failuresOf(startThatIsKilled, true), 40);
}

} // namespace
} // namespace morvane::test
