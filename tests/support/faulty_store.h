#pragma once

#include "core/file_path.h"

#include <QString>
#include <sqlite3.h>

namespace morvane::test {

/// The disk under every store that is opened while this object lives: counts the store's writes, syncs and
/// cuts and makes the n-th one fail. One object at a time.
class FaultyStoreDisk {
public:
    /// What the store is told: SQLITE_FULL, SQLITE_IOERR or one of its kinds.
    explicit FaultyStoreDisk(int failure = SQLITE_FULL);
    ~FaultyStoreDisk();
    FaultyStoreDisk(const FaultyStoreDisk&) = delete;
    FaultyStoreDisk& operator=(const FaultyStoreDisk&) = delete;

    /// The n-th operation from now, counted from 1, fails; with `forever` all that follow too.
    void failAt(int n, bool forever);
    /// From now on nothing fails.
    void heal() { failAt(0, false); }
    /// Operations since the object was made or failAt was called last.
    int operations() const { return operations_; }

    /// For the disk's own routines: counts an operation and says what becomes of it.
    int nextResult();

private:
    sqlite3_vfs* real_;
    sqlite3_vfs wrapped_;
    int failure_;
    int operations_ = 0;
    int failing_ = 0;
    bool isForever_ = false;
};

/// Opens the store and has SQLite look through all of it: "ok", or what is wrong.
QString integrityOf(const FilePath& path);

} // namespace morvane::test
