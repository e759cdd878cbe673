#include "core/statement_translation.h"
#include "core/store_fixture.h"

#include <QFileInfo>

namespace morvane {
namespace {

using StoreTest = test::StoreFixture;

TEST_F(StoreTest, statementsOfTheProgramRunAsTheyAre) {
    const FilePath list(QStringLiteral(MORVANE_CORE_TEST_FOLDER));
    for (const QByteArray& line : test::readFile(list / u"program_statements.sql").trimmed().split('\n')) {
        const QString statement = QString::fromUtf8(line);
        const bool isSelection = statement.startsWith(u"SELECT"_s, Qt::CaseInsensitive);
        EXPECT_NO_THROW(isSelection ? void(RowSet(store, statement)) : store.execute(statement))
            << line.data();
    }
    EXPECT_EQ(store.tables().size(), 11);
    EXPECT_TRUE(store.hasTable(u"texture_sets"_s));
    EXPECT_EQ(store.columns(u"TEXTURE_SWITCH"_s).join(u' '), "ID ISDUTCH ISTROPICAL ISHALO ISFASTEXIT");
    EXPECT_TRUE(store.hasColumn(u"DECODED_METAR"_s, u"METAR_LONG"_s));
    EXPECT_FALSE(store.hasColumn(u"NO_TABLE"_s, u"ID"_s));
}

TEST_F(StoreTest, textsCompareWithoutCase) {
    for (const QString& name : {u"örebro"_s, u"Arlanda"_s, u"ÖSTERSUND"_s, u"bromma"_s, u"O'Hare"_s})
        execute(u"INSERT INTO AIRPORTDATA(ICAO, CITY) VALUES ('ESXX', '"_s + makeStatementSafe(name) +
                u"')"_s);
    const std::pair<QString, QString> cases[] = {
        {u"AIRPORTDATA WHERE CITY = 'ÖREBRO'"_s, u"örebro"_s},
        {u"AIRPORTDATA WHERE CITY = 'o''hare'"_s, u"O'Hare"_s},
        {u"AIRPORTDATA WHERE CITY LIKE 'Ö%' ORDER BY CITY"_s, u"örebro ÖSTERSUND"_s},
        {u"AIRPORTDATA ORDER BY CITY"_s, u"Arlanda bromma O'Hare örebro ÖSTERSUND"_s},
    };
    for (const auto& [from, cities] : cases)
        EXPECT_EQ(column(u"city"_s, from).join(u' '), cities);
}

TEST_F(StoreTest, widthsAreEnforced) {
    const QString insert = u"INSERT INTO NIGHT_TEXTURE_SETS(TEXTURE_SET) VALUES ('%1')"_s;
    const QString fitting(50, u'Ö');
    execute(insert.arg(fitting));
    EXPECT_EQ(failureOf([&] { execute(insert.arg(fitting + u'x')); }),
              "CHECK constraint failed: TEXTURE_SET takes at most 50 characters");
    EXPECT_EQ(column(u"TEXTURE_SET"_s, u"NIGHT_TEXTURE_SETS"_s), QStringList{fitting});
}

TEST_F(StoreTest, keysAreNeverUsedTwice) {
    for (const QString& name : {u"a"_s, u"b"_s, u"c"_s})
        addBackup(name);
    execute(u"DELETE FROM MV_BACKUP WHERE ID = 3"_s);
    addBackup(u"d"_s);
    EXPECT_EQ(column(u"ID"_s, u"MV_BACKUP"_s).join(u' '), "1 2 4");
}

TEST_F(StoreTest, newColumnsComeAllOrNoneAndAreSeenAtOnce) {
    addBackup(u"1-Backup"_s);
    EXPECT_THROW(column(u"NOTE"_s, u"MV_BACKUP"_s), Error);
    EXPECT_THROW(execute(u"ALTER TABLE MV_BACKUP ADD COLUMN NOTE YESNO, BACKUP_NAME TEXT(9)"_s), Error);
    execute(u"ALTER TABLE MV_BACKUP ADD COLUMN NOTE TEXT(9), KEPT YESNO"_s);
    const RowSet row(store, u"SELECT * FROM MV_BACKUP"_s); // a statement that ran before
    EXPECT_TRUE(row.isNull(u"NOTE"));
    EXPECT_EQ(row.text(u"KEPT"), "0"); // a flag is never null, on rows of before neither
}

TEST_F(StoreTest, transactionsNest) {
    {
        StoreTransaction outer(store);
        addBackup(u"kept"_s);
        { // goes without a commit: only its own part is taken back
            StoreTransaction inner(store);
            addBackup(u"dropped"_s);
        }
        StoreTransaction inner(store);
        addBackup(u"kept too"_s);
        inner.commit();
        outer.commit();
    }
    {
        StoreTransaction outer(store);
        StoreTransaction inner(store);
        addBackup(u"dropped with the outer one"_s);
        inner.commit();
    }
    EXPECT_EQ(backups().join(u'|'), "kept|kept too");
}

TEST_F(StoreTest, closingLeavesOneFile) {
    addBackup(u"1-Backup"_s);
    EXPECT_TRUE(QFileInfo::exists(file.native() + u"-wal"_s));
    store.close();
    EXPECT_FALSE(QFileInfo::exists(file.native() + u"-wal"_s));
    EXPECT_THROW(backups(), Error);
    store.open(file);
    EXPECT_EQ(backups().size(), 1);
}

TEST_F(StoreTest, oneStatementAtATime) {
    EXPECT_THROW(execute(u"DELETE FROM MV_BACKUP WHERE ID = 1; DROP TABLE MV_BACKUP"_s), Error);
    EXPECT_THROW(execute(u" "_s), Error);
    EXPECT_TRUE(store.hasTable(u"MV_BACKUP"_s));
}

} // namespace
} // namespace morvane
