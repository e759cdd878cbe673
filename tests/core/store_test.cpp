#include "core/row_set.h"
#include "core/statement_translation.h"
#include "core/store.h"
#include "core/store_schema.h"

#include "support/printing.h"
#include "support/temporary_folder.h"

#include <QFileInfo>
#include <gtest/gtest.h>

namespace morvane {
namespace {

class StoreTest : public testing::Test {
protected:
    StoreTest() {
        store.create(file);
        createSchema(store);
    }

    QStringList textsOf(const QString& statement, QStringView field) {
        QStringList texts;
        for (RowSet rows(store, statement); !rows.atEnd(); rows.next())
            texts << rows.text(field);
        return texts;
    }
    void addAirport(const QString& code, const QString& name) {
        store.execute(u"INSERT INTO AIRPORTDATA(ICAO, AIRPORT_NAME, CITY, COUNTRY)  VALUES ('"_s +
                      QStringList{code, makeStatementSafe(name), u"Göteborg"_s, u"Sweden"_s}.join(u"', '"_s) +
                      u"')"_s);
    }

    test::TemporaryFolder folder;
    FilePath file = folder / u"Morvane.mdb";
    Store store;
};

TEST_F(StoreTest, statementsOfTheProgramRunAsTheyAre) {
    const char* statements[] = {
        "DROP TABLE NIGHT_TEXTURE_SETS",
        "CREATE TABLE NIGHT_TEXTURE_SETS(ID COUNTER CONSTRAINT PrimaryKey PRIMARY KEY, COLOR_SETTINGS TEXT "
        "(50), "
        "TEXTURE_SET TEXT (50), ACTIVATED TEXT (50), DESCRIPTION TEXT (255), INSTALLED YESNO)",
        "DROP TABLE TEXTURE_SWITCH",
        "CREATE TABLE TEXTURE_SWITCH(ID COUNTER CONSTRAINT PrimaryKey PRIMARY KEY, ISDUTCH YESNO, ISTROPICAL "
        "YESNO, ISHALO YESNO, ISFASTEXIT YESNO)",
        "ALTER TABLE AIRPORTDATA DROP COLUMN STATE",
        "ALTER TABLE AIRPORTDATA ADD COLUMN STATE TEXT(50)",
        "ALTER TABLE DECODED_METAR DROP COLUMN METAR_LAT",
        "ALTER TABLE DECODED_METAR DROP COLUMN METAR_LONG",
        "ALTER TABLE DECODED_METAR ADD COLUMN METAR_LAT TEXT(50), METAR_LONG TEXT(50)",
        "ALTER TABLE TEXTURE_SETS DROP COLUMN DUTCH",
        "ALTER TABLE TEXTURE_SETS ADD COLUMN DUTCH YESNO",
        "CREATE TABLE COUNTRIES(ID COUNTER CONSTRAINT PrimaryKey PRIMARY KEY)",
        "DROP TABLE COUNTRIES",
        "DELETE FROM AIRPORTDATA WHERE ID <> 0",
        "DELETE FROM DECODED_METAR WHERE ID <> 0",
        "DELETE FROM WX_STATIONS WHERE WX_STATION_ICAO = '----'",
        "DELETE FROM RESOURCE_FOLDERS WHERE ID = 1",
        "DELETE FROM MV_BACKUP WHERE ID = 1",
        "DELETE FROM TEXTURE_SETS WHERE ID = 1",
        "DELETE FROM NIGHT_TEXTURE_SETS WHERE ID = 1",
        "DELETE FROM SKY_TEXTURE_SETS WHERE ID = 1",
        "DELETE FROM SKY_TEXTURE_SUB_SETS WHERE TEXTURE_SET_ID = 1",
        "INSERT INTO AIRPORTDATA(ICAO, AIRPORT_NAME, CITY, COUNTRY)  VALUES ('KORD', 'O''Hare', 'Chicago', "
        "'USA')",
    };
    for (const char* statement : statements)
        EXPECT_NO_THROW(store.execute(QString::fromLatin1(statement))) << statement;
    EXPECT_TRUE(store.hasColumn(u"DECODED_METAR"_s, u"METAR_LONG"_s));
    EXPECT_FALSE(store.hasTable(u"COUNTRIES"_s));
}

TEST_F(StoreTest, selectionsOfTheProgramOpenOnEmptyTables) {
    const char* statements[] = {
        "SELECT * FROM RESOURCE_FOLDERS",
        "SELECT * FROM MV_BACKUP",
        "SELECT * FROM TEXTURE_SETS",
        "SELECT * FROM NIGHT_TEXTURE_SETS",
        "SELECT * FROM SKY_TEXTURE_SETS",
        "SELECT * FROM MV_CONFIG",
        "SELECT * FROM AIRPORTDATA",
        "SELECT * FROM DECODED_METAR",
        "SELECT * FROM DECODED_METAR ORDER BY METAR_ICAO",
        "SELECT * FROM SKY_TEXTURE_SUB_SETS WHERE TEXTURE_SET_ID = 4",
        "SELECT * FROM SKY_TEXTURE_SUB_SETS WHERE ID = 4",
        "SELECT * FROM MV_CONFIG WHERE TITLE = 'Global Coverage - Day'",
        "SELECT * FROM DECODED_METAR WHERE METAR_ICAO = 'KSEA'",
        "SELECT * FROM TEXTURE_SWITCH WHERE ID = 1",
        "SELECT DUTCH FROM TEXTURE_SETS WHERE TEXTURE_SET = 'Default'",
        "SELECT * FROM RESOURCE_FOLDERS WHERE RESOURCE_NAME = 'DUTCH'",
        "SELECT DISTINCT COUNTRY FROM AIRPORTDATA  ORDER BY COUNTRY",
        "SELECT DISTINCT STATE FROM AIRPORTDATA  WHERE  COUNTRY = 'Sweden' AND NOT ISNULL(STATE) ORDER BY "
        "STATE",
        "SELECT * FROM AIRPORTDATA WHERE AIRPORT_NAME LIKE 'x%' ORDER BY AIRPORT_NAME",
        "SELECT * FROM AIRPORTDATA WHERE  COUNTRY = 'a' AND  STATE = 'b' AND  CITY =  'c'",
    };
    for (const char* statement : statements)
        EXPECT_EQ(RowSet(store, QString::fromLatin1(statement)).count(), 0) << statement;
    const char* newestKeys[] = {
        "select max(ID) as RFID from RESOURCE_FOLDERS",
        "select max(ID) as BUID from MV_BACKUP",
        "select max(ID) as TSID from TEXTURE_SETS ",
        "select max(ID) as TSID from NIGHT_TEXTURE_SETS ",
        "select max(ID) as STSID from SKY_TEXTURE_SETS ",
        "select max(ID) as STSID from SKY_TEXTURE_SUB_SETS ",
    };
    for (const char* statement : newestKeys)
        EXPECT_EQ(RowSet(store, QString::fromLatin1(statement)).count(), 1) << statement;
}

TEST_F(StoreTest, textsCompareWithoutCase) {
    for (const char* name : {"örebro", "Arlanda", "ÖSTERSUND", "bromma", "Ängelholm"})
        addAirport(u"ESXX"_s, QString::fromUtf8(name));
    EXPECT_EQ(textsOf(u"SELECT * FROM AIRPORTDATA WHERE AIRPORT_NAME = 'ÖREBRO'"_s, u"AIRPORT_NAME"),
              QStringList{u"örebro"_s});
    EXPECT_EQ(textsOf(u"SELECT * FROM AIRPORTDATA WHERE AIRPORT_NAME LIKE 'Ö%' ORDER BY AIRPORT_NAME"_s,
                      u"AIRPORT_NAME"),
              (QStringList{u"örebro"_s, u"ÖSTERSUND"_s}));
    EXPECT_EQ(textsOf(u"SELECT * FROM AIRPORTDATA ORDER BY AIRPORT_NAME"_s, u"AIRPORT_NAME"),
              (QStringList{u"Arlanda"_s, u"bromma"_s, u"Ängelholm"_s, u"örebro"_s, u"ÖSTERSUND"_s}));
    EXPECT_EQ(textsOf(u"SELECT DISTINCT ICAO FROM AIRPORTDATA  WHERE ICAO = 'esxx' ORDER BY ICAO"_s, u"icao"),
              QStringList{u"ESXX"_s});
}

TEST_F(StoreTest, quotesInATextReachTheRow) {
    addAirport(u"KORD"_s, u"Chicago O'Hare"_s);
    EXPECT_EQ(textsOf(u"SELECT * FROM AIRPORTDATA WHERE AIRPORT_NAME = 'chicago o''hare'"_s, u"AIRPORT_NAME"),
              QStringList{u"Chicago O'Hare"_s});
}

TEST_F(StoreTest, widthsAreEnforced) {
    const QString fitting(50, u'Ö');
    store.execute(u"INSERT INTO NIGHT_TEXTURE_SETS(TEXTURE_SET) VALUES ('"_s + fitting + u"')"_s);
    try {
        store.execute(u"INSERT INTO NIGHT_TEXTURE_SETS(TEXTURE_SET) VALUES ('"_s + fitting + u"x')"_s);
        FAIL() << "51 characters were taken";
    } catch (const Error& error) {
        EXPECT_TRUE(error.description().contains(u"TEXTURE_SET takes at most 50 characters"_s))
            << error.what();
    }
    EXPECT_EQ(RowSet(store, u"SELECT * FROM NIGHT_TEXTURE_SETS"_s).count(), 1);
}

TEST_F(StoreTest, keysAreNeverUsedTwice) {
    for (int i = 0; i < 3; ++i)
        store.execute(u"INSERT INTO MV_BACKUP(BACKUP_NAME) VALUES ('Backup')"_s);
    store.execute(u"DELETE FROM MV_BACKUP WHERE ID = 3"_s);
    store.execute(u"INSERT INTO MV_BACKUP(BACKUP_NAME) VALUES ('Backup')"_s);
    EXPECT_EQ(textsOf(u"SELECT * FROM MV_BACKUP"_s, u"ID"), (QStringList{u"1"_s, u"2"_s, u"4"_s}));
}

TEST_F(StoreTest, catalogue) {
    EXPECT_EQ(store.tables().size(), 11);
    EXPECT_TRUE(store.hasTable(u"texture_sets"_s));
    EXPECT_EQ(store.columns(u"TEXTURE_SWITCH"_s),
              (QStringList{u"ID"_s, u"ISDUTCH"_s, u"ISTROPICAL"_s, u"ISHALO"_s, u"ISFASTEXIT"_s}));
    EXPECT_FALSE(store.hasColumn(u"NO_TABLE"_s, u"ID"_s));
}

TEST_F(StoreTest, aNewColumnIsSeenByAStatementThatRanBefore) {
    store.execute(u"INSERT INTO MV_BACKUP(BACKUP_NAME) VALUES ('1-Backup')"_s);
    EXPECT_THROW(RowSet(store, u"SELECT * FROM MV_BACKUP"_s).text(u"NOTE"), Error);
    store.execute(u"ALTER TABLE MV_BACKUP ADD COLUMN NOTE TEXT(9), KEPT YESNO"_s);
    RowSet row(store, u"SELECT * FROM MV_BACKUP"_s);
    EXPECT_TRUE(row.isNull(u"NOTE"));
    EXPECT_FALSE(row.isNull(u"KEPT")); // a flag is never null, on rows of before neither
    EXPECT_FALSE(row.flag(u"KEPT"));
}

TEST_F(StoreTest, severalColumnsAreAddedAllOrNone) {
    EXPECT_THROW(store.execute(u"ALTER TABLE MV_BACKUP ADD COLUMN NOTE YESNO, BACKUP_NAME TEXT(9)"_s), Error);
    EXPECT_FALSE(store.hasColumn(u"MV_BACKUP"_s, u"NOTE"_s));
}

TEST_F(StoreTest, transactionsNest) {
    const auto add = [&](const char* name) {
        store.execute(u"INSERT INTO MV_BACKUP(BACKUP_NAME) VALUES ('%1')"_s.arg(QString::fromLatin1(name)));
    };
    {
        StoreTransaction outer(store);
        add("kept");
        { // goes without a commit: only its own part is taken back
            StoreTransaction inner(store);
            add("dropped");
        }
        StoreTransaction inner(store);
        add("kept too");
        inner.commit();
        outer.commit();
    }
    {
        StoreTransaction outer(store);
        StoreTransaction inner(store);
        add("dropped with the outer one");
        inner.commit();
    }
    EXPECT_EQ(textsOf(u"SELECT * FROM MV_BACKUP"_s, u"BACKUP_NAME"), (QStringList{u"kept"_s, u"kept too"_s}));
}

TEST_F(StoreTest, closingLeavesOneFile) {
    store.execute(u"INSERT INTO MV_BACKUP(BACKUP_NAME) VALUES ('1-Backup')"_s);
    EXPECT_TRUE(QFileInfo::exists(file.native() + u"-wal"_s));
    store.close();
    EXPECT_FALSE(QFileInfo::exists(file.native() + u"-wal"_s));
    store.close();
    EXPECT_THROW(store.execute(u"DELETE FROM MV_BACKUP WHERE ID = 1"_s), Error);
    store.open(file);
    EXPECT_EQ(RowSet(store, u"SELECT * FROM MV_BACKUP"_s).count(), 1);
}

TEST_F(StoreTest, oneStatementAtATime) {
    EXPECT_THROW(store.execute(u"DELETE FROM MV_BACKUP WHERE ID = 1; DROP TABLE MV_BACKUP"_s), Error);
    EXPECT_THROW(store.execute(u" "_s), Error);
    EXPECT_TRUE(store.hasTable(u"MV_BACKUP"_s));
}

TEST(DecimalSeparator, thereAndBack) {
    const QString stored = u"13:0:16:18.2:-8.4:0"_s;
    EXPECT_EQ(applyDecimalSeparator(stored, u","_s), "13:0:16:18,2:-8,4:0");
    EXPECT_EQ(removeDecimalSeparator(u"13:0:16:18,2:-8,4:0"_s, u","_s), stored);
    EXPECT_EQ(applyDecimalSeparator(stored, QString()), stored);
    EXPECT_EQ(removeDecimalSeparator(stored, QString()), stored);
}

} // namespace
} // namespace morvane
