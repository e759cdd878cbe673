#include "core/store_backup.h"

#include "core/error.h"

#include <QFileInfo>
#include <memory>
#include <sqlite3.h>

namespace morvane {

namespace {

struct Closer {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
};
using Connection = std::unique_ptr<sqlite3, Closer>;

void refuse(int result, const FilePath& file) {
    if (result == SQLITE_OK) return;
    if ((result & 0xff) == SQLITE_FULL) throw Error(ErrorCode::diskFull, file.text());
    throw Error(ErrorCode::storeFailure, QString::fromUtf8(sqlite3_errstr(result)) + u": "_s + file.text());
}

Connection connectionTo(const FilePath& file, int flags) {
    sqlite3* opened = nullptr;
    const int result = sqlite3_open_v2(file.native().toUtf8().constData(), &opened, flags, nullptr);
    Connection connection(opened); // also a failed one
    refuse(result, file);
    return connection;
}

} // namespace

void copyStore(const FilePath& store, const FilePath& copy) {
    if (!QFileInfo(store.native()).isFile()) throw Error(ErrorCode::fileNotFound, store.text());
    const Connection source = connectionTo(store, SQLITE_OPEN_READWRITE);
    const Connection target = connectionTo(copy, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    sqlite3_backup* backup = sqlite3_backup_init(target.get(), "main", source.get(), "main");
    if (!backup) refuse(sqlite3_errcode(target.get()), copy);
    sqlite3_backup_step(backup, -1); // all pages; `finish` tells how it went
    refuse(sqlite3_backup_finish(backup), copy);
}

} // namespace morvane
