#include "core/store_fixture.h"
#include "support/faulty_store.h"

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

class StoreFailureTest : public test::StoreFixture {
protected:
    StoreFailureTest() {
        addBackup(u"old"_s);
        store.close();
    }
};

TEST_F(StoreFailureTest, filesThatAreNoStore) {
    const FilePath missing = folder / u"missing.mdb", garbage = folder / u"garbage.mdb",
                   empty = folder / u"empty.mdb";
    test::writeFile(garbage, QByteArray("no database at all. ").repeated(100));
    test::writeFile(empty, {});
    for (const FilePath& path : {missing, garbage, empty, folder.path()}) {
        const QString told = failureOf([&] { store.open(path); });
        EXPECT_TRUE(told.startsWith(u"The database cannot be used: "_s)) << qPrintable(told);
        EXPECT_TRUE(told.endsWith(path.text())) << qPrintable(told);
        EXPECT_FALSE(store.isOpen());
        EXPECT_THROW(addBackup(u"new"_s), Error); // the program runs on, the next statement tells
    }
    EXPECT_FALSE(QFileInfo::exists(missing.native())); // opening makes no file
    EXPECT_EQ(test::readFile(garbage).size(), 2000);
}

TEST_F(StoreFailureTest, creatingNeverReplaces) {
    EXPECT_THROW(store.create(file), Error);
    store.open(file);
    EXPECT_EQ(backups(), QStringList{u"old"_s});
    EXPECT_THROW(store.create(folder / u"no folder\\Morvane.mdb"), Error);
}

TEST_F(StoreFailureTest, aLockedStoreEndsInAnError) {
    Store holder;
    holder.open(file);
    store.open(file);
    const QString locked = u"Permission denied: the database is locked: "_s + file.text();
    {
        const StoreTransaction lock(holder);
        EXPECT_EQ(failureOf([&] { addBackup(u"new"_s); }), locked);
        EXPECT_EQ(backups(), QStringList{u"old"_s});
    }
    store.close();
    holder.execute(u"PRAGMA locking_mode = EXCLUSIVE"_s);
    holder.execute(u"DELETE FROM MV_BACKUP WHERE ID = 1"_s);
    EXPECT_EQ(failureOf([&] { store.open(file); }), locked);
    EXPECT_FALSE(store.isOpen());
}

class FailingDiskTest : public StoreFailureTest,
                        public testing::WithParamInterface<std::tuple<std::pair<int, const char*>, bool>> {};

/// Every write of a change fails in its turn; the rows of before stand whatever happens.
TEST_P(FailingDiskTest, leavesASoundStore) {
    const auto& [failure, forever] = GetParam();
    for (int n = 1;; ++n) {
        test::FaultyStoreDisk disk(failure.first);
        store.open(file);
        disk.failAt(n, forever);
        const QString told = failureOf([&] {
            StoreTransaction transaction(store);
            addBackup(u"new"_s);
            execute(u"UPDATE MV_BACKUP SET BACKUP_NAME = 'changed' WHERE ID = 1"_s);
            transaction.commit();
        });
        const bool wasHit = disk.operations() >= n;
        store.close(); // also its writes may fail
        disk.heal();
        ASSERT_EQ(test::integrityOf(file), "ok") << n;
        store.open(file);
        EXPECT_EQ(backups().join(u' '), wasHit ? "old" : "changed new") << n;
        store.close();
        if (wasHit) {
            EXPECT_EQ(told, QString(QLatin1StringView(failure.second)) + u": "_s + file.text());
            continue;
        }
        EXPECT_GT(n, 2);
        break;
    }
}

INSTANTIATE_TEST_SUITE_P(Store, FailingDiskTest,
                         testing::Combine(testing::Values(std::pair(SQLITE_FULL, "Disk full"),
                                                          std::pair(SQLITE_IOERR_WRITE, "Device I/O error")),
                                          testing::Bool()));

#ifndef Q_OS_WIN // the writer is a fork of the test
/// A process is killed between any two steps of its writing: what it was told is stored is stored.
TEST_F(StoreFailureTest, aKilledWriterLeavesAllItFinished) {
    std::array<int, 2> pipeEnds{};
    ASSERT_EQ(pipe(pipeEnds.data()), 0);
    const pid_t child = fork();
    if (child == 0) {
        store.open(file);
        while (true) {
            addBackup(u"new"_s);
            if (write(pipeEnds[1], "+", 1) != 1) _exit(1);
        }
    }
    close(pipeEnds[1]);
    char byte = 0;
    int finished = 0;
    while (read(pipeEnds[0], &byte, 1) == 1)
        if (++finished == 60) kill(child, SIGKILL);
    close(pipeEnds[0]);
    waitpid(child, nullptr, 0);
    EXPECT_GE(finished, 60);
    EXPECT_EQ(test::integrityOf(file), "ok");
    store.open(file);
    EXPECT_GE(backups().size(), 1 + finished);
}
#endif

} // namespace
} // namespace morvane
