#include "support/faulty_store.h"

#include "core/row_set.h"
#include "core/store.h"

namespace morvane::test {

namespace {

FaultyStoreDisk* activeDisk = nullptr;
sqlite3_vfs* realSystem = nullptr;

/// Takes the place of a real file's methods: all of them, but those that write ask the disk first.
struct FaultyMethods : sqlite3_io_methods {
    const sqlite3_io_methods* real;
    FaultyStoreDisk* disk;
};

template <auto method, class... Arguments>
int counted(sqlite3_file* file, Arguments... arguments) {
    const auto* faulty = static_cast<const FaultyMethods*>(file->pMethods);
    const int result = faulty->disk->nextResult();
    return result == SQLITE_OK ? (faulty->real->*method)(file, arguments...) : result;
}

int closeFile(sqlite3_file* file) {
    const auto* faulty = static_cast<const FaultyMethods*>(file->pMethods);
    file->pMethods = faulty->real;
    delete faulty;
    return file->pMethods->xClose(file);
}

int openFile(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* flagsGiven) {
    const int result = realSystem->xOpen(realSystem, name, file, flags, flagsGiven);
    if (file->pMethods == nullptr) return result;
    auto* faulty = new FaultyMethods{*file->pMethods, file->pMethods, activeDisk};
    faulty->xClose = closeFile;
    faulty->xWrite = counted<&sqlite3_io_methods::xWrite>;
    faulty->xTruncate = counted<&sqlite3_io_methods::xTruncate>;
    faulty->xSync = counted<&sqlite3_io_methods::xSync>;
    file->pMethods = faulty;
    return result;
}

} // namespace

FaultyStoreDisk::FaultyStoreDisk(int failure)
    : real_(sqlite3_vfs_find(nullptr)), wrapped_(*real_), failure_(failure) {
    wrapped_.zName = "faulty";
    wrapped_.xOpen = openFile;
    activeDisk = this;
    realSystem = real_;
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
