#include "core/store.h"

#include "core/statement_translation.h"
#include "core/store_statement.h"
#include "core/text_collation.h"

#include <QFileInfo>
#include <QUrl>
#include <sqlite3.h>
#include <utility>

namespace morvane {

namespace {

constexpr int lockPatienceMilliseconds = 250;
/// More shapes than the program has; only row keys written as numbers can pass it.
constexpr qsizetype mostPrepared = 200;

QString savepointName(int level) {
    return u"LEVEL_"_s + QString::number(level);
}

} // namespace

void Store::Finaliser::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

void Store::Closer::operator()(sqlite3* connection) const {
    sqlite3_close_v2(connection);
}

Store::Store() = default;

Store::~Store() {
    close();
}

void Store::create(const FilePath& file) {
    const QString native = file.native();
    if (QFileInfo::exists(native))
        throw Error(ErrorCode::storeFailure, u"the file is there already: "_s + file.text());
    connect(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, StoreDrive::ownMachine);
}

void Store::open(const FilePath& file, StoreAccess access, StoreDrive drive) {
    // SQLite makes a missing file in some of its modes; the program must never start on an empty store.
    if (!QFileInfo(file.native()).isFile())
        throw Error(ErrorCode::storeFailure, u"file not found: "_s + file.text());
    if (QFileInfo(file.native()).size() == 0) // it would be given a header, and is left as it is
        throw Error(ErrorCode::storeFailure, u"it holds no tables: "_s + file.text());
    if (access == StoreAccess::reading)
        connectToRead(file);
    else
        connect(file, SQLITE_OPEN_READWRITE, drive);
    try {
        if (tables().isEmpty()) throw Error(ErrorCode::storeFailure, u"it holds no tables: "_s + file.text());
    } catch (const Error&) {
        close();
        throw;
    }
}

void Store::connect(const FilePath& file, int flags, StoreDrive drive) {
    close();
    path_ = file.text();
    try {
        openConnection(file.native().toUtf8(), flags);
        chooseJournal(drive);
        dataVersion_ = dataVersion();
    } catch (const Error&) {
        close();
        throw;
    }
}

void Store::chooseJournal(StoreDrive drive) {
    if (drive == StoreDrive::network) {
        run(u"PRAGMA locking_mode = EXCLUSIVE"_s); // a log of before is then taken in without shared memory
        run(u"PRAGMA journal_mode = DELETE"_s);
        run(u"PRAGMA locking_mode = NORMAL"_s);
        return;
    }
    // A write then never waits for the disk, and a kill can lose nothing that had been written.
    run(u"PRAGMA journal_mode = WAL"_s);
    run(u"PRAGMA synchronous = NORMAL"_s);
    run(u"PRAGMA wal_autocheckpoint = 4000"_s); // pages; each time costs two waits for the disk
}

/// Beside the store of a program that runs lies its log. Without one the store is read as the file that it
/// is: in a folder that takes no log it can be read in no other way.
void Store::connectToRead(const FilePath& file) {
    close();
    path_ = file.text();
    const QString native = file.native();
    const bool isInUse = QFileInfo::exists(native + u"-wal"_s) && QFileInfo::exists(native + u"-shm"_s);
    const QByteArray name =
        isInUse ? native.toUtf8() : QUrl::fromLocalFile(native).toEncoded() + "?immutable=1";
    try {
        openConnection(name, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
        dataVersion_ = dataVersion();
    } catch (const Error&) {
        close();
        throw;
    }
}

/// Raises with the connection still there, which has the words for it.
void Store::openConnection(const QByteArray& name, int flags) {
    sqlite3* connection = nullptr;
    const int result = sqlite3_open_v2(name.constData(), &connection, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    connection_.reset(connection); // also a failed one, for its error
    if (result != SQLITE_OK) raise(result);
    sqlite3_extended_result_codes(connection, 1);
    sqlite3_busy_timeout(connection, lockPatienceMilliseconds);
    installTextRules(connection);
}

std::int64_t Store::pragma(const QString& name) {
    StoreStatement statement(*this, u"PRAGMA "_s + name);
    return statement.step() ? statement.number(0) : 0;
}

bool Store::wasChangedByOthers() {
    const std::int64_t known = std::exchange(dataVersion_, dataVersion());
    return dataVersion_ != known;
}

void Store::giveRoomBack() {
    constexpr std::int64_t least = 1 << 20, share = 4;
    const std::int64_t free = pragma(u"freelist_count"_s);
    if (free * share < pragma(u"page_count"_s) || free * pragma(u"page_size"_s) < least) return;
    prepared_.clear(); // one that was not read to its end would keep the tables
    run(u"VACUUM"_s);
}

void Store::close() {
    prepared_.clear();
    connection_.reset();
    openTransactions_ = 0;
}

void Store::execute(const QString& statement) {
    const TranslatedStatement translated = translateStatement(statement);
    if (translated.changesSchema)
        runSchemaChange(translated);
    else
        run(translated.statements.front(), translated.texts);
}

void Store::runSchemaChange(const TranslatedStatement& change) {
    StoreTransaction transaction(*this);
    for (const QString& statement : change.statements)
        run(statement);
    transaction.commit();
    prepared_.clear(); // a kept "SELECT *" would go on with the columns of before
}

void Store::run(const QString& statement, const QStringList& texts) {
    StoreStatement prepared(*this, statement);
    prepared.bindTexts(texts);
    while (prepared.step()) {
    }
}

Store::Prepared Store::prepared(const QString& statement) {
    if (!isOpen()) throw Error(ErrorCode::storeFailure, u"it is not open"_s);
    if (const auto known = prepared_.constFind(statement); known != prepared_.constEnd()) return *known;
    const QByteArray text = statement.toUtf8();
    sqlite3_stmt* made = nullptr;
    const char* rest = nullptr;
    const int result =
        sqlite3_prepare_v3(connection_.get(), text.constData(), -1, SQLITE_PREPARE_PERSISTENT, &made, &rest);
    if (result != SQLITE_OK) raise(result);
    Prepared owned(made, Finaliser());
    if (!owned || !QByteArrayView(rest).trimmed().isEmpty())
        throw Error(ErrorCode::storeFailure, u"not one statement: "_s + statement);
    if (prepared_.size() >= mostPrepared) prepared_.clear();
    return *prepared_.insert(statement, owned);
}

QStringList Store::tables() {
    StoreStatement statement(*this, u"SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE "
                                    "'sqlite%' ORDER BY name"_s);
    QStringList names;
    while (statement.step())
        names << std::get<QString>(statement.value(0));
    return names;
}

QStringList Store::columns(const QString& table) {
    StoreStatement statement(*this, u"SELECT name FROM pragma_table_info(?)"_s);
    statement.bind(table);
    QStringList names;
    while (statement.step())
        names << std::get<QString>(statement.value(0));
    return names;
}

bool Store::hasTable(const QString& table) {
    return tables().contains(table, Qt::CaseInsensitive);
}

bool Store::hasColumn(const QString& table, const QString& column) {
    return columns(table).contains(column, Qt::CaseInsensitive);
}

void Store::raise(int result) const {
    const QString said = QString::fromUtf8(connection_ ? sqlite3_errmsg(connection_.get()) : "");
    switch (result & 0xff) { // the plain code; the bits above it tell where it happened
    case SQLITE_FULL:
        throw Error(ErrorCode::diskFull, path_);
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        throw Error(ErrorCode::permissionDenied, u"the database is locked: "_s + path_);
    case SQLITE_READONLY:
    case SQLITE_PERM:
        throw Error(ErrorCode::permissionDenied, path_);
    case SQLITE_IOERR:
        throw Error(ErrorCode::ioFailure, path_);
    case SQLITE_NOMEM:
        throw Error(ErrorCode::outOfMemory);
    case SQLITE_CANTOPEN:
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
        throw Error(ErrorCode::storeFailure, said + u": "_s + path_);
    default:
        throw Error::withDescription(ErrorCode::storeFailure, said);
    }
}

StoreTransaction::StoreTransaction(Store& store) : store_(store), level_(store.openTransactions_) {
    // The outermost one takes the right to write at once: asked for later it could be refused half way.
    store_.run(level_ == 0 ? u"BEGIN IMMEDIATE"_s : u"SAVEPOINT "_s + savepointName(level_));
    ++store_.openTransactions_;
}

StoreTransaction::~StoreTransaction() {
    if (!isOpen_) return;
    store_.openTransactions_ = level_;
    try {
        if (level_ == 0) {
            store_.run(u"ROLLBACK"_s);
        } else {
            store_.run(u"ROLLBACK TO "_s + savepointName(level_));
            store_.run(u"RELEASE "_s + savepointName(level_));
        }
    } catch (...) {
        // After a full disk or a failed write SQLite has taken everything back itself.
    }
}

void StoreTransaction::commit() {
    store_.run(level_ == 0 ? u"COMMIT"_s : u"RELEASE "_s + savepointName(level_));
    store_.openTransactions_ = level_;
    isOpen_ = false;
}

} // namespace morvane
