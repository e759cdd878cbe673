#pragma once

#include "core/failure_report.h"
#include "core/store_records.h"

namespace morvane {

/// The session's collection of that kind, loaded when it is not there yet. Raises when it cannot be had at
/// all.
template <class Collection>
Collection& loadedCollection(Session& session, std::unique_ptr<Collection>& global) {
    if (!global) Collection::reload(session);
    return *global;
}

/// The first record of that name, both trimmed; nothing when there is none.
template <class Record>
std::shared_ptr<const Record> findTrimmedName(const KeyedCollection<Record>& records, const QString& name) {
    for (const auto& record : records)
        if (trimmedBlanks(nameOf(*record)) == trimmedBlanks(name)) return record;
    return nullptr;
}

/// The record behind the key of a list's row, "Key:" and the number. Raises "Subscript out of range" when
/// there is none.
template <class Record>
std::shared_ptr<const Record> findListKey(const KeyedCollection<Record>& records, const QString& listKey) {
    const QStringList parts = listKey.split(u':');
    if (parts.size() < 2) throw Error(ErrorCode::subscript);
    return records.GetKey(parts[1]);
}

/// Writes every set of the collection back, the one of that name as installed and all others as not: at most
/// one is at any time, the first where two rows were given one name. All rows or none; false after the one
/// message of a failure.
template <class Record>
bool writeInstalledSet(Session& session, const RecordTable<Record>& table,
                       const KeyedCollection<Record>& collection, const QString& name) {
    return reportFailures(session.user, {}, [&] {
        const auto installed = findTrimmedName(collection, name);
        StoreTransaction transaction(connectedStore(session));
        for (const auto& kept : collection) {
            Record record = *kept;
            record.Installed = kept == installed;
            writeRecord(session, table, record);
        }
        transaction.commit();
    });
}

} // namespace morvane
