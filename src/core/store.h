#pragma once

#include "core/error.h"
#include "core/file_path.h"

#include <QHash>
#include <QStringList>
#include <cstdint>
#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace morvane {

struct TranslatedStatement;

/// What a store is opened for.
enum class StoreAccess { reading, writing };
/// Where it lies: programs share the index of the store's log as memory, which a network drive cannot give.
enum class StoreDrive { ownMachine, network };

/// The one relational database file, `Morvane.mdb`, and the connection to it. Statements are those of the
/// program (see statement_translation.h); texts compare without regard to case.
///
/// A new store is closed, and every use of a closed one raises: a failed open is no end of the program.
/// Failures raise Error: "Disk full", "Device I/O error" and "Permission denied" (also for a locked store,
/// which is waited for a quarter of a second) with the file's path, everything else under storeFailure. A
/// process that is killed leaves a store that opens, with every statement done that had returned.
class Store {
public:
    Store();
    ~Store(); ///< closes
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;

    /// Makes a new, empty store and opens it. An existing file raises.
    void create(const FilePath& file);
    /// Opens an existing store. A missing file raises and is not made; so do a file that is no database, one
    /// without any table, and a locked one. Nothing is written beside one that is opened for reading. On a
    /// network drive the store keeps no log: each write waits for the disk.
    void open(const FilePath& file, StoreAccess access = StoreAccess::writing,
              StoreDrive drive = StoreDrive::ownMachine);
    bool isOpen() const { return connection_ != nullptr; }
    /// Moves everything into the one file and leaves no other beside it. A closed store stays closed.
    void close();

    /// Gives the disk the room that removed rows left, where that is a megabyte and a quarter of the file.
    /// The store is then written anew beside itself: it stays as it is where a kill, a full disk or another
    /// program's lock comes between.
    void giveRoomBack();

    /// Runs a statement that returns no rows. One that changes the schema runs whole or not at all.
    void execute(const QString& statement);

    /// True when another connection has changed the store since the last call, or since it was opened.
    bool wasChangedByOthers();

    /// Names as they were created, sorted. An unknown table has no columns. The tests do not regard case.
    QStringList tables();
    QStringList columns(const QString& table);
    bool hasTable(const QString& table);
    bool hasColumn(const QString& table, const QString& column);

private:
    friend class StoreStatement;
    friend class StoreTransaction;

    struct Finaliser {
        void operator()(sqlite3_stmt* statement) const;
    };
    struct Closer {
        void operator()(sqlite3* connection) const;
    };
    using Prepared = std::shared_ptr<sqlite3_stmt>;

    void connect(const FilePath& file, int flags, StoreDrive drive);
    void chooseJournal(StoreDrive drive);
    void connectToRead(const FilePath& file);
    void openConnection(const QByteArray& name, int flags);
    std::int64_t dataVersion() { return pragma(u"data_version"_s); }
    std::int64_t pragma(const QString& name);
    Prepared prepared(const QString& statement);
    void run(const QString& statement, const QStringList& texts = {});
    void runSchemaChange(const TranslatedStatement& change);
    [[noreturn]] void raise(int result) const;

    QString path_;
    std::unique_ptr<sqlite3, Closer> connection_;
    QHash<QString, Prepared> prepared_;
    int openTransactions_ = 0;
    std::int64_t dataVersion_ = 0; ///< changes with every write of another connection
};

/// Several statements as one: all of them are done at `commit`, none when the object goes before it.
/// Inside another transaction it is a part of that one.
class StoreTransaction {
public:
    explicit StoreTransaction(Store& store);
    ~StoreTransaction();
    StoreTransaction(const StoreTransaction&) = delete;
    StoreTransaction& operator=(const StoreTransaction&) = delete;

    void commit();

private:
    Store& store_;
    int level_;
    bool isOpen_ = true;
};

} // namespace morvane
