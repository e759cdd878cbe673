#include "core/row_set.h"
#include "core/store.h"
#include "core/store_schema.h"

#include "support/faulty_store.h"
#include "support/printing.h"
#include "support/temporary_folder.h"

#include <QFileInfo>
#include <array>
#include <csignal>
#include <gtest/gtest.h>

#ifndef Q_OS_WIN
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace morvane {
namespace {

class StoreFailureTest : public testing::Test {
protected:
    StoreFailureTest() {
        Store store;
        store.create(file);
        createSchema(store);
        store.execute(u"INSERT INTO MV_BACKUP(BACKUP_NAME) VALUES ('old')"_s);
    }

    /// Code and description of what `action` raises; invalidCall when nothing.
    template <class Action>
    static std::pair<ErrorCode, QString> raisedBy(Action action) {
        try {
            action();
        } catch (const Error& error) {
            return {error.code(), error.description()};
        }
        return {ErrorCode::invalidCall, u"nothing was raised"_s};
    }

    static void addBackup(Store& store) {
        store.execute(u"INSERT INTO MV_BACKUP(BACKUP_NAME) VALUES ('new')"_s);
    }

    static QStringList backups(Store& store) {
        QStringList names;
        for (RowSet rows(store, u"SELECT * FROM MV_BACKUP"_s); !rows.atEnd(); rows.next())
            names << rows.text(u"BACKUP_NAME");
        return names;
    }

    test::TemporaryFolder folder;
    FilePath file = folder / u"Morvane.mdb";
};

TEST_F(StoreFailureTest, filesThatAreNoStore) {
    const FilePath missing = folder / u"missing.mdb", garbage = folder / u"garbage.mdb",
                   empty = folder / u"empty.mdb";
    test::writeFile(garbage, QByteArray("no database at all. ").repeated(100));
    test::writeFile(empty, {});
    for (const FilePath& path : {missing, garbage, empty, folder.path()}) {
        Store store;
        const auto [code, description] = raisedBy([&] { store.open(path); });
        EXPECT_EQ(code, ErrorCode::storeFailure);
        EXPECT_TRUE(description.startsWith(u"The database cannot be used: "_s)) << description.toStdString();
        EXPECT_TRUE(description.endsWith(path.text())) << description.toStdString();
        EXPECT_FALSE(store.isOpen());
        EXPECT_THROW(addBackup(store), Error); // the program runs on, the next statement tells
    }
    EXPECT_FALSE(QFileInfo::exists(missing.native())); // opening makes no file
    EXPECT_EQ(test::readFile(garbage).size(), 2000);
}

TEST_F(StoreFailureTest, creatingNeverReplaces) {
    Store store;
    EXPECT_EQ(raisedBy([&] { store.create(file); }).first, ErrorCode::storeFailure);
    EXPECT_EQ(test::integrityOf(file), "ok");
    EXPECT_EQ(raisedBy([&] { store.create(folder / u"no folder\\Morvane.mdb"); }).first,
              ErrorCode::storeFailure);
}

TEST_F(StoreFailureTest, aLockedStoreEndsInAnError) {
    Store holder, other;
    holder.open(file);
    other.open(file);
    const StoreTransaction lock(holder);
    const auto [code, description] = raisedBy([&] { addBackup(other); });
    EXPECT_EQ(code, ErrorCode::permissionDenied);
    EXPECT_TRUE(description.contains(u"the database is locked"_s)) << description.toStdString();
    EXPECT_EQ(backups(other), QStringList{u"old"_s});

    Store exclusive;
    holder.close();
    other.close();
    exclusive.open(file);
    exclusive.execute(u"PRAGMA locking_mode = EXCLUSIVE"_s);
    addBackup(exclusive);
    EXPECT_EQ(raisedBy([&] { other.open(file); }).first, ErrorCode::permissionDenied);
    EXPECT_FALSE(other.isOpen());
}

TEST_F(StoreFailureTest, aColumnTooFewIsNamed) {
    Store store;
    store.open(file);
    store.execute(u"ALTER TABLE MV_BACKUP DROP COLUMN BACKUP_DATE_TIME"_s);
    EXPECT_EQ(raisedBy([&] { RowSet(store, u"SELECT * FROM MV_BACKUP"_s).text(u"BACKUP_DATE_TIME"); }).second,
              "The database cannot be used: no column BACKUP_DATE_TIME");
}

/// Every write of a change fails in its turn; the rows of before stand whatever happens.
TEST_F(StoreFailureTest, failedWritesLeaveASoundStore) {
    const std::pair<int, ErrorCode> failures[] = {{SQLITE_FULL, ErrorCode::diskFull},
                                                  {SQLITE_IOERR_WRITE, ErrorCode::ioFailure}};
    for (const auto& [failure, code] : failures) {
        for (const bool forever : {false, true}) {
            int failed = 0;
            for (int n = 1;; ++n) {
                test::FaultyStoreDisk disk(failure);
                Store store;
                store.open(file);
                disk.failAt(n, forever);
                const auto raised = raisedBy([&] {
                    StoreTransaction transaction(store);
                    addBackup(store);
                    store.execute(u"UPDATE MV_BACKUP SET BACKUP_NAME = 'changed' WHERE ID = 1"_s);
                    transaction.commit();
                });
                const bool wasHit = disk.operations() >= n;
                store.close(); // also its writes may fail
                disk.heal();
                ASSERT_EQ(test::integrityOf(file), "ok") << n;
                store.open(file);
                if (!wasHit) {
                    EXPECT_EQ(backups(store), (QStringList{u"changed"_s, u"new"_s}));
                    store.execute(u"DELETE FROM MV_BACKUP WHERE ID <> 1"_s);
                    store.execute(u"UPDATE MV_BACKUP SET BACKUP_NAME = 'old' WHERE ID = 1"_s);
                    break;
                }
                EXPECT_EQ(raised.first, code) << raised.second.toStdString();
                EXPECT_EQ(backups(store), QStringList{u"old"_s}) << n;
                ++failed;
            }
            EXPECT_GE(failed, 2);
        }
    }
}

#ifndef Q_OS_WIN // the writer is a fork of the test
/// A process is killed between any two steps of its writing: what it was told is stored is stored.
TEST_F(StoreFailureTest, aKilledWriterLeavesAllItFinished) {
    for (const int rowsToSee : {1, 7, 60}) {
        std::array<int, 2> pipeEnds{};
        ASSERT_EQ(pipe(pipeEnds.data()), 0);
        const pid_t child = fork();
        if (child == 0) {
            Store store;
            store.open(file);
            while (true) {
                addBackup(store);
                if (write(pipeEnds[1], "+", 1) != 1) _exit(1);
            }
        }
        close(pipeEnds[1]);
        char byte = 0;
        for (int i = 0; i < rowsToSee; ++i)
            ASSERT_EQ(read(pipeEnds[0], &byte, 1), 1);
        kill(child, SIGKILL);
        int finished = rowsToSee;
        while (read(pipeEnds[0], &byte, 1) == 1)
            ++finished;
        close(pipeEnds[0]);
        waitpid(child, nullptr, 0);

        EXPECT_EQ(test::integrityOf(file), "ok");
        Store store;
        store.open(file);
        EXPECT_GE(backups(store).size(), 1 + finished);
        store.execute(u"DELETE FROM MV_BACKUP WHERE ID <> 1"_s);
    }
}
#endif

} // namespace
} // namespace morvane
