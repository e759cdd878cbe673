#pragma once

#include "core/failure_report.h"
#include "core/reported.h"
#include "core/store_records.h"

namespace morvane {

/// A table of which the rows are kept in memory. Each record type gives its own by a static `table()`.
template <class Record>
struct StoredTable {
    QString name;
    RecordTable<Record> rows;
    QString Record::*activated = nullptr; ///< "True" or "False"; none where rows are no sets
    QString ownerColumn = {};             ///< holds the key of the row that a row belongs to
    /// Deletes the rows of another table that belong to a row; its key follows. Empty where there are none.
    QString deleteOwned = {};
    bool tellsLoadInSystemBox = false; ///< as the oldest loaders do
};

template <class Record>
concept StoredRecord = requires {
    { Record::table() } -> std::same_as<const StoredTable<Record>&>;
};

template <StoredRecord Record>
QString keyOf(const Record& record) {
    return QString::number(record.*Record::table().rows.key);
}
template <StoredRecord Record>
const QString& nameOf(const Record& record) {
    return record.*Record::table().rows.name;
}
/// "True" or "False": the files of the set exist.
template <StoredRecord Record>
const QString& activationOf(const Record& record) {
    return record.*Record::table().activated;
}

/// The session's collection of that type, loaded when it is not there yet.
template <class Collection>
Collection& loadedCollection(Session& session, std::unique_ptr<Collection>& rows) {
    if (!rows) Collection::reload(session);
    return *rows;
}

/// The first record of that name, both trimmed; nothing when there is none.
template <class Record>
std::shared_ptr<const Record> findTrimmedName(const KeyedCollection<Record>& records, const QString& name) {
    for (const auto& record : records)
        if (trimmedBlanks(nameOf(*record)) == trimmedBlanks(name)) return record;
    return nullptr;
}

/// A record's key in lists: "Key:" and its number.
template <class Record>
QString listKeyOf(const Record& record) {
    return u"Key:"_s + keyOf(record);
}
/// The record behind such a key. Raises "Subscript out of range" when there is none.
template <class Record>
std::shared_ptr<const Record> findListKey(const KeyedCollection<Record>& records, const QString& listKey) {
    const QStringList parts = listKey.split(u':');
    if (parts.size() < 2) throw Error(ErrorCode::subscript);
    return records.GetKey(parts[1]);
}

/// The rows of one table.
template <class Record>
class StoredRows : public KeyedCollection<Record> {
public:
    explicit StoredRows(Session& session) : session_(session) {}
    /// A fresh, loaded collection in the session's rows; the second with the rows of that owner alone.
    static Reported reload(Session& session) { return fresh(session).load(selectAll()); }
    static Reported reload(Session& session, std::int16_t owner) {
        return fresh(session).load(selectAll() + u" WHERE "_s + table().ownerColumn + u" = "_s +
                                   QString::number(owner));
    }

    /// Position of the first record of exactly that name; 0 for none.
    std::int16_t findIndex(const QString& name) const { return this->findName(name); }
    /// Takes what belongs to the row with it. An unknown key raises before a row is touched.
    Reported RemoveItem(const QString& key) {
        const QString id = keyOf(*this->Item(key));
        this->remove(key);
        return reportFailures(session_.user, morvaneError, [&] {
            Store& store = connectedStore(session_);
            StoreTransaction transaction(store);
            store.execute(u"DELETE FROM "_s + table().name + u" WHERE ID = "_s + id);
            if (!table().deleteOwned.isEmpty()) store.execute(table().deleteOwned + id);
            transaction.commit();
        });
    }
    /// A new record gets its key and its final name ("12-Storm") and joins the collection.
    Reported Save(Record& record) {
        return reportFailures(session_.user, morvaneError,
                              [&] { saveRecord(session_, table().rows, record, *this); });
    }
    /// Writes every set back, the one of that name as installed and all others as not: at most one is at any
    /// time, the first where two rows were given one name. All rows or none.
    Reported markInstalled(const QString& name) {
        return reportFailures(session_.user, morvaneError, [&] {
            const auto installed = findTrimmedName(*this, name);
            StoreTransaction transaction(connectedStore(session_));
            for (const auto& kept : *this) {
                Record record = *kept;
                record.Installed = kept == installed;
                writeRecord(session_, table().rows, record);
            }
            transaction.commit();
        });
    }

private:
    static const StoredTable<Record>& table() { return Record::table(); }
    static QString selectAll() { return u"SELECT * FROM "_s + table().name; }
    static StoredRows& fresh(Session& session) {
        session.rows<StoredRows>() = std::make_unique<StoredRows>(session);
        return *session.rows<StoredRows>();
    }
    Reported load(const QString& statement) {
        const auto read = [&] { loadRecords(session_, statement, table().rows, *this); };
        return table().tellsLoadInSystemBox ? reportInSystemBox(session_.user, read)
                                            : reportFailures(session_.user, morvaneError, read);
    }

    Session& session_;
};

} // namespace morvane
