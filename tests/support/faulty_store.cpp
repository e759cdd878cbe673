#include "support/faulty_store.h"

#include "core/row_set.h"
#include "core/store.h"

#include <new>

namespace morvane::test {

namespace {

/// An open file: SQLite's header, the disk that it lies on, and behind it the real file.
struct FaultyFile {
    sqlite3_file header;
    FaultyStoreDisk* disk;
};

sqlite3_file* realFile(sqlite3_file* file) {
    return reinterpret_cast<sqlite3_file*>(reinterpret_cast<FaultyFile*>(file) + 1);
}

/// Hands a call on to the real file.
template <auto method>
struct PassedOn;
template <class Result, class... Arguments,
          Result (*sqlite3_io_methods::*method)(sqlite3_file*, Arguments...)>
struct PassedOn<method> {
    static Result call(sqlite3_file* file, Arguments... arguments) {
        return (realFile(file)->pMethods->*method)(realFile(file), arguments...);
    }
};

/// The same for a call that may fail.
template <auto method>
struct Counted;
template <class... Arguments, int (*sqlite3_io_methods::*method)(sqlite3_file*, Arguments...)>
struct Counted<method> {
    static int call(sqlite3_file* file, Arguments... arguments) {
        const int result = reinterpret_cast<FaultyFile*>(file)->disk->nextResult();
        return result == SQLITE_OK ? PassedOn<method>::call(file, arguments...) : result;
    }
};

using Methods = sqlite3_io_methods;
const Methods faultyMethods = {
    3,
    PassedOn<&Methods::xClose>::call,
    PassedOn<&Methods::xRead>::call,
    Counted<&Methods::xWrite>::call,
    Counted<&Methods::xTruncate>::call,
    Counted<&Methods::xSync>::call,
    PassedOn<&Methods::xFileSize>::call,
    PassedOn<&Methods::xLock>::call,
    PassedOn<&Methods::xUnlock>::call,
    PassedOn<&Methods::xCheckReservedLock>::call,
    PassedOn<&Methods::xFileControl>::call,
    PassedOn<&Methods::xSectorSize>::call,
    PassedOn<&Methods::xDeviceCharacteristics>::call,
    PassedOn<&Methods::xShmMap>::call,
    PassedOn<&Methods::xShmLock>::call,
    PassedOn<&Methods::xShmBarrier>::call,
    PassedOn<&Methods::xShmUnmap>::call,
    PassedOn<&Methods::xFetch>::call,
    PassedOn<&Methods::xUnfetch>::call,
};

FaultyStoreDisk* activeDisk = nullptr;
sqlite3_vfs* activeReal = nullptr;

int openFile(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* flagsGiven) {
    auto* faulty = new (file) FaultyFile{{nullptr}, activeDisk};
    const int result = activeReal->xOpen(activeReal, name, realFile(file), flags, flagsGiven);
    if (realFile(file)->pMethods != nullptr) faulty->header.pMethods = &faultyMethods;
    return result;
}

} // namespace

FaultyStoreDisk::FaultyStoreDisk(int failure)
    : real_(sqlite3_vfs_find(nullptr)), wrapped_(*real_), failure_(failure) {
    wrapped_.zName = "faulty";
    wrapped_.szOsFile += static_cast<int>(sizeof(FaultyFile));
    wrapped_.xOpen = openFile;
    activeDisk = this;
    activeReal = real_;
    sqlite3_vfs_register(&wrapped_, 1);
}

FaultyStoreDisk::~FaultyStoreDisk() {
    sqlite3_vfs_unregister(&wrapped_);
    sqlite3_vfs_register(real_, 1);
}

void FaultyStoreDisk::failAt(int n, bool forever) {
    operations_ = 0;
    failing_ = n;
    isForever_ = forever;
}

int FaultyStoreDisk::nextResult() {
    ++operations_;
    const bool fails = failing_ > 0 && (operations_ == failing_ || (isForever_ && operations_ > failing_));
    return fails ? failure_ : SQLITE_OK;
}

QString integrityOf(const FilePath& path) {
    Store store;
    store.open(path);
    return RowSet(store, u"SELECT * FROM pragma_integrity_check"_s).text(u"integrity_check");
}

} // namespace morvane::test
