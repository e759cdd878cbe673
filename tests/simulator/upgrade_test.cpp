#include "simulator/upgrade.h"

#include "app/start_up.h"
#include "core/file_fingerprint.h"
#include "core/row_set.h"
#include "core/store.h"
#include "core/store_connection.h"
#include "ground/ground_sets.h"
#include "ground/texture_sets.h"
#include "sets/resource_folders.h"
#include "support/faulty_store.h"
#include "support/small_install.h"

namespace morvane::test {
namespace {

/// Rows that the two files of the upgrade bring.
constexpr int newAirports = 6, newReports = 4;

QByteArray airportLines() {
    QByteArray text = "ID;ICAO;NAME;CITY;COUNTRY;STATE;LAT;LONG;ELEVATION;REGION;BLOCK;STATION\r\n";
    for (int i = 1; i < newAirports; ++i) {
        const QByteArray number = QByteArray::number(i);
        text += number + ";KAA" + number + ";Field " + number +
                ";Town;United States;Washington;47-27N;122-19W;131;4;72;79" + number + "\r\n";
    }
    // A blank number, and a letter beyond ASCII in a single byte.
    return text + "9;LSZ1;Z\xfcrich;Z\xfcrich;Switzerland;;47-28N;8-33E;;   ;;\r\n";
}

QByteArray reportLine(const QByteArray& station, const QByteArray& gusting, const QByteArray& cloud) {
    return "1;" + station + " 020153Z 20010KT;" + station + ";10;KT;200;" + gusting + ";;;;;Overcast;" +
           cloud + ";10;SM;;;;12;10;29.92;02;11;2011;0153;02;47-27N;122-19W\r\n";
}

/// Turns a small install into one of version 2 over which the files of version 2.1 were laid: old tables with
/// two airports and a report, two sets of its own, the simulator's splash. Closes its store.
void makeVersionTwo(SmallInstall& install) {
    install.addGroundSet(u"2-Own Á"_s, u"Overcast"_s, true);
    install.addGroundSet(u"3-Own B"_s, u"Sky Clear"_s, true);
    Store& store = *install.session.adoConn;
    for (const char* statement :
         {"ALTER TABLE AIRPORTDATA DROP COLUMN STATE", "ALTER TABLE DECODED_METAR DROP COLUMN METAR_LAT",
          "ALTER TABLE DECODED_METAR DROP COLUMN METAR_LONG", "ALTER TABLE TEXTURE_SETS DROP COLUMN DUTCH",
          "DROP TABLE TEXTURE_SWITCH", "DROP TABLE NIGHT_TEXTURE_SETS",
          "DELETE FROM RESOURCE_FOLDERS WHERE RESOURCE_NAME = 'DUTCH'",
          "CREATE TABLE COUNTRIES(ID COUNTER CONSTRAINT PrimaryKey PRIMARY KEY, COUNTRY TEXT(50))",
          "INSERT INTO AIRPORTDATA(ICAO) VALUES('OLD1')", "INSERT INTO AIRPORTDATA(ICAO) VALUES('OLD2')",
          "INSERT INTO DECODED_METAR(METAR_ICAO) VALUES('OLD1')"})
        store.execute(QString::fromLatin1(statement));
    closeDatabase(install.session);
    install.session.rows<clsTextureSets>().reset();
    install.session.rows<clsResourceFolders>().reset();
    writeFile(install.home() / u"AIRPORTDATA.txt", airportLines());
    writeFile(install.home() / u"DECODED_METAR.txt",
              "heading\r\n" + reportLine("KAA1", "True", "5") + reportLine("KAA2", "", "") +
                  reportLine("KAA3", "False", "3") + reportLine("KAA4", "-1", "0"));
    writeFile(install.home() / u"Resources\\GENERIC WORLD\\002b2su1.bmp", smallBitmap(16, 70));
    writeFile(install.home() / u"Resources\\GENERIC WORLD\\022a2wi1.bmp", smallBitmap(16, 140));
    install.files.removeFolder(install.home() / u"TempBitmaps\\Dutch");
}

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
    EXPECT_EQ(fingerprintOf(said.join('\n').toUtf8()).checksum.hex(),
              "0e78d4bfc2bae9a412a8e46086ac4cd33c5a6251")
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

// Version 2 has shown its sets' covers by then.
TEST_F(UpgradeTest, aSplashOfOursIsNotKeptAsThePilots) {
    const FilePath kept = home / u"Media\\dlgsplash.bmp";
    writeFile(kept, "the pilot's, kept before");
    writeFile(home / u"Media\\dlgSplashOVC.bmp", "overcast");
    writeFile(install.simulator() / u"Uires\\dlgsplash.bmp", "overcast");
    EXPECT_TRUE(start());
    EXPECT_EQ(readFile(kept), "the pilot's, kept before");
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
using FaultyStart = bool (*)(UpgradeTest& upgrade, int n, Fault fault);

bool startOnFaultyFiles(UpgradeTest& upgrade, int n, Fault fault) {
    FaultyFileSystem& files = upgrade.install.files;
    fault == Fault::kill ? files.killAt(n) : files.failAt(n, fault == Fault::forever);
    try {
        upgrade.start();
    } catch (const Killed&) {
    }
    return files.hasFailed();
}

bool startOnAFaultyStore(UpgradeTest& upgrade, int n, Fault fault) {
    FaultyStoreDisk disk;
    disk.failAt(n, fault == Fault::forever);
    upgrade.start();
    const int operations = disk.operations();
    disk.heal();
    closeDatabase(upgrade.session);
    return operations >= n;
}

/// An upgrade a failure, until one had none; gives their number.
int failuresOf(FaultyStart start, Fault fault) {
    for (int n = 1;; n += faultStride) {
        OneUpgrade upgrade;
        if (!start(upgrade, n, fault)) return n - 1;
        SCOPED_TRACE(n);
        expectNothingLost(upgrade);
        if (testing::Test::HasFatalFailure()) return 0;
        // What a kill among the sets leaves undone is not made up for; a mark always has its files.
        if (fault == Fault::kill && upgrade.dutchSets().contains(u"3-Own B:1")) {
            EXPECT_EQ(upgrade.dutchFiles(u"3-Own B"_s).size(), 3);
        }
    }
}

TEST(UpgradeFaults, noFailedOperationOfFilesAndNoKillLosesARow) {
    EXPECT_GT(failuresOf(startOnFaultyFiles, Fault::once), 40);
    EXPECT_GT(failuresOf(startOnFaultyFiles, Fault::forever), 40);
    EXPECT_GT(failuresOf(startOnFaultyFiles, Fault::kill), 40);
}

TEST(UpgradeFaults, noFailedOperationOfTheStoreLosesARow) {
    EXPECT_GT(failuresOf(startOnAFaultyStore, Fault::once) + failuresOf(startOnAFaultyStore, Fault::forever),
              30);
}

} // namespace
} // namespace morvane::test
