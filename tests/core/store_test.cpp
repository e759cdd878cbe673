#include "core/registry.h"
#include "core/row_set.h"
#include "core/session.h"
#include "core/statement_translation.h"
#include "core/store.h"
#include "core/store_schema.h"
#include "ground/texture_sets.h"
#include "night/night_texture_sets.h"
#include "sets/resource_folders.h"
#include "simulator/backups.h"
#include "simulator/options.h"
#include "sky/sky_texture_sets.h"
#include "sky/sky_texture_sub_sets.h"
#include "support/faulty_store.h"
#include "support/raised_error.h"
#include "support/scripted_services.h"
#include "support/scripted_user.h"
#include "support/temporary_folder.h"
#include "support/testing.h"
#include "weather/reports.h"

#include <QFileInfo>

namespace morvane::test {
namespace {

/// A store with all tables of the program and no rows.
struct StoreTest : testing::Test {
    StoreTest() {
        store.create(file);
        createSchema(store);
    }

    void execute(const QString& statement) { store.execute(statement); }
    /// A row for each of the texts; `column` as in "MV_BACKUP(BACKUP_NAME)".
    void addRows(const QString& column, const QStringList& texts) {
        const QString values = makeStatementSafe(texts.join(u'|')).replace(u'|', u"'), ('"_s);
        execute(u"INSERT INTO %1 VALUES ('%2')"_s.arg(column, values));
    }
    void addBackups(const QStringList& names) { addRows(u"MV_BACKUP(BACKUP_NAME)"_s, names); }
    /// The field of every row; `from` is a table and what may follow its name.
    QStringList column(const QString& field, const QString& from) {
        QStringList texts;
        for (RowSet rows(store, u"SELECT * FROM "_s + from); !rows.atEnd(); rows.next())
            texts << rows.text(field);
        return texts;
    }
    QStringList backups() { return column(u"BACKUP_NAME"_s, u"MV_BACKUP"_s); }
    /// Every row of a table, its fields joined by "|".
    QStringList rowsOf(const QString& table) {
        QStringList lines;
        for (RowSet rows(store, u"SELECT * FROM "_s + table); !rows.atEnd(); rows.next()) {
            QStringList fields;
            for (const QString& field : store.columns(table))
                fields << rows.text(field);
            lines << fields.join(u'|');
        }
        return lines;
    }
    TemporaryFolder folder;
    FilePath file = folder / u"Morvane.mdb";
    Store store;
};

TEST_F(StoreTest, nothingInsideQuotesIsAWordOfTheLanguage) {
    const QString name = u"ISNULL(x) YESNO ?, COUNTER; from 'y'"_s;
    addBackups({name});
    RowSet row(store, u"SELECT *, ' FROM x' FROM MV_BACKUP"_s);
    EXPECT_EQ(row.text(u"BACKUP_NAME"), name);
    row.setText(u"BACKUP_NAME", u"plain"_s); // to the table behind the true FROM
    row.update();
    EXPECT_EQ(backups(), QStringList{u"plain"_s});
}

TEST_F(StoreTest, keysAreNeverUsedTwiceAndClosingLeavesOneFile) {
    addBackups({"a", "b"});
    execute("DELETE FROM MV_BACKUP WHERE ID = 2");
    addBackups({"c"});
    for (const bool isOpen : {true, false}) {
        EXPECT_EQ(QFileInfo::exists(file.native() + "-wal"), isOpen);
        if (isOpen) store.close();
    }
    EXPECT_THROW(backups(), Error);
    store.open(file);
    EXPECT_EQ(column("id", "MV_BACKUP").join(u' '), "1 3");
    EXPECT_EQ(column("ID", "MV_BACKUP WHERE BACKUP_NAME = 'C'").join(u' '), "3");
}

TEST_F(StoreTest, onANetworkDriveItTakesInTheLogOfBeforeAndKeepsNone) {
    addBackups({"of the log"});
    const FilePath moved = folder / u"moved.mdb";
    for (const QString& ending : {QString(), u"-wal"_s}) // as a kill leaves them
        writeFile(FilePath(moved.text() + ending), readFile(FilePath(file.text() + ending)));
    Store other;
    store.open(moved, StoreAccess::writing, StoreDrive::network);
    other.open(moved, StoreAccess::writing, StoreDrive::network);
    addBackups({"new"});
    other.execute(u"DELETE FROM MV_BACKUP WHERE ID = 3"_s); // takes no lock that stays
    EXPECT_EQ(backups(), (QStringList{u"of the log"_s, u"new"_s}));
    for (const QString& ending : {u"-wal"_s, u"-shm"_s})
        EXPECT_FALSE(QFileInfo::exists(moved.native() + ending)) << ending.toStdString();
}

TEST_F(StoreTest, roomOfManyRemovedRowsIsGivenBackAndTheRestStays) {
    const auto sizeAfter = [this](const QString& statement) {
        store.open(file);
        execute(statement);
        store.giveRoomBack();
        store.close();
        return QFileInfo(file.native()).size();
    };
    const qint64 empty = QFileInfo(file.native()).size();
    for (int part = 0; part < 10; ++part)
        addRows(u"MV_BACKUP(BACKUP_NAME)"_s, QStringList(4000, QString(50, u'x')));
    addBackups({"kept"});
    EXPECT_GT(sizeAfter(u"DELETE FROM MV_BACKUP WHERE ID < 8000"_s), empty + 2'000'000) << "not worth it yet";
    EXPECT_LT(sizeAfter(u"DELETE FROM MV_BACKUP WHERE ID <= 40000"_s), empty + 100'000);
    store.open(file);
    addBackups({"new"});
    EXPECT_EQ(column("ID", "MV_BACKUP").join(u' '), "40001 40002");
}

TEST_F(StoreTest, transactionsNest) {
    {
        StoreTransaction outer(store);
        addBackups({u"kept"_s});
        {
            const StoreTransaction inner(store); // goes without a commit: only its own part is taken back
            addBackups({u"dropped"_s});
        }
        outer.commit();
    }
    {
        const StoreTransaction outer(store);
        StoreTransaction inner(store);
        addBackups({u"dropped with the outer one"_s});
        inner.commit();
    }
    EXPECT_EQ(backups().join(u'|'), "kept");
}

TEST_F(StoreTest, oneStatementAtATime) {
    for (const char* wrong : {"DELETE FROM MV_BACKUP WHERE ID = 1; DROP TABLE MV_BACKUP", " ",
                              "DELETE FROM MV_BACKUP WHERE BACKUP_NAME = 'O''"}) // never closed
        EXPECT_THROW(execute(QString(wrong)), Error) << wrong;
    EXPECT_TRUE(store.hasTable(u"mv_backup"_s));
}

struct StoreFailureTest : StoreTest {
    StoreFailureTest() {
        addBackups({u"old"_s});
        store.close();
    }
};

/// Every write of a change fails in its turn; the rows of before stand whatever happens.
TEST_F(StoreFailureTest, failedWritesLeaveASoundStore) {
    const std::tuple<int, QString, bool> failures[] = {{SQLITE_FULL, u"Disk full: "_s, true},
                                                       {SQLITE_IOERR_WRITE, u"Device I/O error: "_s, false}};
    for (const auto& [failure, told, forever] : failures) {
        bool wasHit = true;
        int n = 0;
        while (wasHit) {
            FaultyStoreDisk disk(failure);
            store.open(file);
            const QStringList before = backups();
            disk.failAt(++n, forever);
            const QString raised = descriptionRaisedBy([&] {
                StoreTransaction transaction(store);
                execute(u"UPDATE MV_BACKUP SET BACKUP_NAME = 'changed'"_s);
                addBackups({u"new"_s});
                transaction.commit();
            });
            wasHit = disk.operations() >= n;
            store.close(); // also its writes may fail
            disk.heal();
            ASSERT_EQ(integrityOf(file), "ok") << n;
            EXPECT_EQ(raised, wasHit ? told + file.text() : QString());
            store.open(file);
            EXPECT_EQ(backups() == before, wasHit) << n;
            store.close();
        }
        EXPECT_GT(n, 2);
    }
}

/// A table and a column of a later version, and an upgrade of old that is still to come.
Schema laterSchema() {
    Schema schema = programSchema();
    const int next = versionOf(schema) + 1;
    schema[1].columns.push_back({.name = u"BACKUP_NOTE"_s, .width = 9, .isLookedUp = true, .since = next});
    schema[1].columns.push_back({.name = u"BACKUP_KEPT"_s, .kind = ColumnKind::flag, .since = next + 1});
    schema.push_back({u"NOTES"_s, {{.name = u"NOTE"_s, .width = 9}}, next});
    schema.push_back({u"NOT_YET"_s, {{.name = u"NOTE"_s}, {.name = u"LATER"_s, .since = next + 1}}, 1});
    return schema;
}

/// Every operation fails in its turn: the rows stand, and the step before is whole or not there at all.
TEST_F(StoreFailureTest, aPresentStoreIsBroughtUpToDateStepByStep) {
    store.open(file);
    execute(u"PRAGMA user_version = 0"_s); // as before stores had a number
    execute(u"DROP TABLE WEATHER_SOURCES"_s);
    updateSchema(store);
    EXPECT_TRUE(store.hasTable(u"WEATHER_SOURCES"_s)) << "of the second version";
    EXPECT_FALSE(store.hasTable(u"NOTES"_s)) << "the program's own schema has no later version";
    store.close();
    bool wasHit = true;
    int n = 0;
    while (wasHit) {
        FaultyStoreDisk disk(SQLITE_FULL);
        store.open(file);
        disk.failAt(++n, true);
        const QString raised = descriptionRaisedBy([&] { updateSchema(store, laterSchema()); });
        wasHit = disk.operations() >= n;
        EXPECT_EQ(raised, wasHit ? u"Disk full: "_s + file.text() : QString()) << n;
        store.close();
        disk.heal();
        ASSERT_EQ(integrityOf(file), "ok") << n;
        store.open(file);
        EXPECT_EQ(backups(), QStringList{u"old"_s}) << n;
        EXPECT_EQ(store.hasTable(u"NOTES"_s), store.hasColumn(u"MV_BACKUP"_s, u"BACKUP_NOTE"_s)) << n;
        store.close();
    }
    EXPECT_GT(n, 4);
    store.open(file);
    execute(u"INSERT INTO MV_BACKUP(BACKUP_NOTE) VALUES ('new')"_s);
    EXPECT_EQ(rowsOf(u"MV_BACKUP"_s), (QStringList{u"1|old|||0"_s, u"2|||new|0"_s}));
    EXPECT_FALSE(store.hasTable(u"NOT_YET"_s)) << "a table of old is its upgrade's";
    updateSchema(store); // by a program of before
    updateSchema(store, laterSchema());
    EXPECT_EQ(backups().size(), 2);
}

/// The session's connection is one of its own: the fixture looks at what really reached the file.
struct RecordsTest : StoreTest {
    RecordsTest() {
        connectSession();
        clsTextureSets::reload(session);
    }

    void connectSession() {
        session.adoConn = std::make_unique<Store>();
        session.adoConn->open(file);
    }
    /// The key that the next row of the table gets.
    void setNextKey(const QString& table, int key) {
        execute(u"INSERT INTO sqlite_sequence VALUES ('%1', %2)"_s.arg(table).arg(key - 1));
    }

    /// Saves a new record, loads it and saves what was read: `row` is what the table holds either time.
    template <class Record, class Collection>
    void saveAndLoad(Record record, std::unique_ptr<Collection>& loaded, Reported (*reload)(Session&),
                     Reported (Collection::*save)(Record&), const QString& table, const QString& row) {
        setNextKey(table, 12);
        EXPECT_TRUE(reload(session)); // an empty table is no failure
        record.IsNew = true;
        EXPECT_TRUE((*loaded.*save)(record));
        EXPECT_EQ(rowsOf(table), QStringList{row});
        EXPECT_EQ(nameOf(*loaded->GetKey(u"12"_s)), nameOf(record));
        EXPECT_TRUE(reload(session));
        Record read = *loaded->GetItem(1);
        EXPECT_TRUE((*loaded.*save)(read));
        EXPECT_EQ(rowsOf(table), QStringList{row});
    }

    ScriptedUser user;
    NativeFileSystem files;
    ScriptedClock clock;
    ScriptedRandom random;
    IniRegistry registry{files, folder / u"registry.ini"};
    clsTextureSet storm{false, true, 0, {}, u"Storm"_s, {}, {}, {}, false}; ///< a new one
    Session session{{user, files, clock, random, registry}, folder.path()};
};

TEST_F(RecordsTest, everyKindOfRecordSurvivesAReload) {
    session.DecimalSep = u","_s; // stored with "." all the same, and only in colours
    const QString colours = u"0:1,4:0:-1:3:-1,5"_s;
    const QString name = u"Storm på Ålborg's 1.5"_s;
    saveAndLoad(clsTextureSet{false, true, 0, colours, name, u"True"_s, u"a, b"_s, u"Overcast"_s, true},
                session.rows<clsTextureSets>(), clsTextureSets::reload, &clsTextureSets::Save,
                u"TEXTURE_SETS"_s, u"12|0:1.4:0:-1:3:-1.5|12-Storm på Ålborg's 1.5|Overcast|True|a, b|1|0"_s);
    EXPECT_EQ(session.rows<clsTextureSets>()->GetItem(1)->ColorSettings, colours);
    saveAndLoad(clsNightTextureSet{true, true, 0, colours, name, u"False"_s, u"warm"_s},
                session.rows<clsNightTextureSets>(), clsNightTextureSets::reload, &clsNightTextureSets::Save,
                u"NIGHT_TEXTURE_SETS"_s, u"12|0:1.4:0:-1:3:-1.5|12-Storm på Ålborg's 1.5|False|warm|1"_s);
    saveAndLoad(clsSkyTextureSet{u"Pro Sky"_s, u"d"_s, u"True"_s, u"Overcast"_s, true, true, 0, name},
                session.rows<clsSkyTextureSets>(), clsSkyTextureSets::reload, &clsSkyTextureSets::Save,
                u"SKY_TEXTURE_SETS"_s, u"12|12-Storm på Ålborg's 1.5|Overcast|True|d|Pro Sky|1"_s);
    saveAndLoad(clsBackup{u"Backup"_s, 0, clock.now, true}, session.rows<clsBackups>(), clsBackups::reload,
                &clsBackups::Save, u"MV_BACKUP"_s, u"12|12-Backup|2007/05/30 21:14:09"_s);
    // A category's name gets no key.
    saveAndLoad(clsResourceFolder{true, 0, u"DUTCH"_s, u"source"_s, u"Scenery\\World"_s, u"Dutch"_s},
                session.rows<clsResourceFolders>(), clsResourceFolders::reload, &clsResourceFolders::Save,
                u"RESOURCE_FOLDERS"_s, u"12|DUTCH|source|Dutch|Scenery\\World"_s);
    const clsSkyTextureSubSet sky{u"Day"_s, true,    3,       0,       u"Day:3-Storm"_s,
                                  u"gd"_s,  u"gl"_s, u"cd"_s, u"cl"_s, u"wd"_s,
                                  u"2,5"_s, u"wl"_s, u"s"_s,  u"hl"_s, u"hh"_s};
    saveAndLoad(
        sky, session.rows<clsSkyTextureSubSets>(),
        +[](Session& s) { return clsSkyTextureSubSets::reload(s, 3); }, &clsSkyTextureSubSets::Save,
        u"SKY_TEXTURE_SUB_SETS"_s, u"12|3|12-Day:3-Storm|gd|gl|cd|cl|hh|hl|s|wl|2.5|wd|Day"_s);
    EXPECT_EQ(session.rows<clsSkyTextureSubSets>()->GetItem(1)->WaterMain,
              "2.5"); // the sky's are read as stored
    EXPECT_TRUE(user.calls.isEmpty());
}

TEST_F(RecordsTest, aDamagedRowIsToldAndHidesNoOther) {
    execute(u"INSERT INTO TEXTURE_SETS(ID, INSTALLED) VALUES (7, 0), (8, 'much'), (9, 'more'), (10, 0), "
            "(40000, 0)"_s);
    EXPECT_FALSE(clsTextureSets::reload(session));
    EXPECT_EQ(session.rows<clsTextureSets>()->Count(), 2);
    EXPECT_EQ(user.told(), QStringList{u"Error|Morvane Error|Type mismatch"_s});
    execute(u"INSERT INTO MV_BACKUP(BACKUP_NAME, BACKUP_DATE_TIME) VALUES ('1-Backup', 'yesterday'), "
            "(NULL, NULL), ('3-Backup', '2007/05/30 21:14:09')"_s);
    EXPECT_TRUE(clsBackups::reload(session)); // a backup without a date can be put back, too
    EXPECT_FALSE(session.rows<clsBackups>()->GetItem(1)->BackupDateTime.isValid());
    EXPECT_EQ(session.rows<clsBackups>()->GetItem(3)->BackupDateTime, clock.now);
}

TEST_F(RecordsTest, failuresAreToldAsEachRoutineAlwaysHas) {
    execute(u"INSERT INTO MV_BACKUP(ID) VALUES (40000)"_s);
    EXPECT_FALSE(clsBackups::reload(session));
    session.adoConn->close();
    EXPECT_FALSE(clsResourceFolders::reload(session));
    const QString closed = u"The database cannot be used: it is not open"_s;
    EXPECT_EQ(user.calls, (QStringList{u"box Overflow"_s, u"box "_s + closed})); // the oldest ones
    EXPECT_FALSE(clsTextureSets::reload(session));
    EXPECT_FALSE(clsWxFinders::reload(session));
    session.adoConn.reset(); // as when no store was found at all
    EXPECT_FALSE(storedSwitch(session, &OptionsInForce::IsHalo));
    EXPECT_EQ(user.told().join(u'/'), u"Error|Morvane Error|%1/Exclamation|Metar Database Error!|%1/"
                                      "Error|Morvane Error|%1"_s.arg(closed));
}

/// Each write of a save fails in its turn: one message, and neither half a row nor a record without one.
TEST_F(RecordsTest, aFailedSaveLeavesNothing) {
    FaultyStoreDisk disk;
    connectSession();
    int failures = 0;
    for (;; ++failures) {
        disk.failAt(failures + 1, false);
        if (session.rows<clsTextureSets>()->Save(storm)) break;
        ASSERT_TRUE(storm.IsNew && session.rows<clsTextureSets>()->Count() == 0 &&
                    rowsOf("TEXTURE_SETS").isEmpty())
            << failures;
        EXPECT_EQ(user.told().size(), failures + 1);
    }
    EXPECT_GE(failures, 2);
    session.adoConn.reset(); // before its disk
}

} // namespace
} // namespace morvane::test
