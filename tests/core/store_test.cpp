#include "core/store_fixture.h"

#include <QFileInfo>

namespace morvane {
namespace {

using StoreTest = test::StoreFixture;

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
    EXPECT_EQ(column("ID", "MV_BACKUP").join(u' '), "1 3");
}

TEST_F(StoreTest, newColumnsComeAllOrNoneAndAreSeenAtOnce) {
    addBackups({u"1-Backup"_s});
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

} // namespace
} // namespace morvane
