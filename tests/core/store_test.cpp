#include "core/store_fixture.h"
#include "support/faulty_store.h"

#include <QFileInfo>
#include <gtest/gtest.h>

namespace morvane::test {
namespace {

using StoreTest = StoreFixture;

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

struct StoreFailureTest : StoreFixture {
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
    schema[1].columns.push_back({.name = u"BACKUP_NOTE"_s, .width = 9, .isLookedUp = true, .since = 2});
    schema[1].columns.push_back({.name = u"BACKUP_KEPT"_s, .kind = ColumnKind::flag, .since = 3});
    schema.push_back({u"NOTES"_s, {{.name = u"NOTE"_s, .width = 9}}, 2});
    schema.push_back({u"NOT_YET"_s, {{.name = u"NOTE"_s}, {.name = u"LATER"_s, .since = 3}}, 1});
    return schema;
}

/// Every operation fails in its turn: the rows stand, and the step before is whole or not there at all.
TEST_F(StoreFailureTest, aPresentStoreIsBroughtUpToDateStepByStep) {
    store.open(file);
    execute(u"PRAGMA user_version = 0"_s); // as before stores had a number
    updateSchema(store);
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

} // namespace
} // namespace morvane::test
