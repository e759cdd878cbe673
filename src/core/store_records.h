#pragma once

#include "core/keyed_collection.h"
#include "core/reported.h"
#include "core/row_set.h"
#include "core/session.h"
#include "core/store.h"

#include <QDateTime>
#include <functional>
#include <optional>
#include <variant>
#include <vector>

namespace morvane {

/// How a text column is kept.
enum class TextForm {
    plain,
    storedNumbers, ///< numbers joined by ":"; written with "."
    localNumbers,  ///< the same, and read with the user's decimal separator
};

/// A column and the property of the record that mirrors it.
template <class Record>
struct RecordColumn {
    QString name;
    std::variant<QString Record::*, bool Record::*, std::int16_t Record::*, QDateTime Record::*> member;
    TextForm form = TextForm::plain;
};

template <class Record>
using RecordColumns = std::vector<RecordColumn<Record>>;

/// The statement that reads the newest key of a table, and the name that it gives the value.
struct NewestKey {
    QString statement;
    QString field;
};

/// The name of a new row: key, "-" and the name that it was given.
QString nameBehindKey(std::int16_t key, const QString& name);

/// What a new row's name becomes.
struct NameRule {
    QString (*withKey)(std::int16_t key, const QString& name) = nameBehindKey;
    qsizetype longest = -1; ///< letters that the column takes until the key is known; below 0 all
};

/// What the data object of one table works with. Every record has a key and, but for the user never to see, a
/// name; `nameColumn` is set where a new row's name gets its key put in front ("12-Storm").
template <class Record>
struct RecordTable {
    QString selectRow; ///< the key's text follows
    NewestKey newestKey;
    QString nameColumn;
    std::int16_t Record::*key;
    QString Record::*name;
    RecordColumns<Record> columns; ///< in the order in which they are written, without the key
    NameRule nameRule = {};
};

/// False when the store could not be opened. That was told then, so whoever only shows what it holds is
/// silent.
bool hasStore(const Session& session);
/// The session's store; raises when none was ever connected.
Store& connectedStore(const Session& session);

/// Runs the routine; a failure is told in a plain system box without title, as the oldest loaders do.
Reported reportInSystemBox(UserInterface& user, const std::function<void()>& routine);

/// Raises "Overflow" for a key beyond 16 bits.
std::int16_t readNewestKey(Store& store, const NewestKey& newestKey);

// One field, by the type of its property. A stored date is "yyyy/mm/dd hh:mm:ss", none is "", and so is read
// what is no date: the row is worth more than its date.
void readField(const RowSet& row, const QString& column, QString& value);
void readField(const RowSet& row, const QString& column, bool& value);
void readField(const RowSet& row, const QString& column, std::int16_t& value);
void readField(const RowSet& row, const QString& column, QDateTime& value);
void writeField(RowSet& row, const QString& column, const QString& value);
void writeField(RowSet& row, const QString& column, bool value);
void writeField(RowSet& row, const QString& column, std::int16_t value);
void writeField(RowSet& row, const QString& column, const QDateTime& value);

/// The colour numbers of a record, from the store's separator, which is always ".", to the user's or back: so
/// the store can be carried to a machine with another locale.
QString localNumbers(const QString& stored, TextForm form, const QString& decimalSep);
QString storedNumbers(const QString& local, TextForm form, const QString& decimalSep);

template <class Record>
void readFields(const RowSet& row, const RecordColumns<Record>& columns, const QString& decimalSep,
                Record& record) {
    for (const auto& column : columns) {
        std::visit([&](auto member) { readField(row, column.name, record.*member); }, column.member);
        if (const auto* text = std::get_if<QString Record::*>(&column.member))
            record.** text = localNumbers(record.**text, column.form, decimalSep);
    }
}

template <class Record>
void writeFields(RowSet& row, const RecordColumns<Record>& columns, const QString& decimalSep,
                 Record record) {
    for (const auto& column : columns) {
        if (const auto* text = std::get_if<QString Record::*>(&column.member))
            record.** text = storedNumbers(record.**text, column.form, decimalSep);
        std::visit([&](auto member) { writeField(row, column.name, record.*member); }, column.member);
    }
}

/// Walks the statement's rows and hands each to the collection. One that cannot be read is left out and hides
/// no other; the first such failure is raised at the end.
template <class Record>
void loadRecords(const Session& session, const QString& statement, const RecordTable<Record>& table,
                 KeyedCollection<Record>& collection) {
    std::optional<Error> failure;
    for (RowSet rows(connectedStore(session), statement); !rows.atEnd(); rows.next()) {
        try {
            Record record;
            readField(rows, u"ID"_s, record.*table.key);
            readFields(rows, table.columns, session.DecimalSep, record);
            collection.popCollection(std::move(record));
        } catch (const Error& error) {
            if (!failure) failure = error;
        }
    }
    if (failure) throw *failure;
}

/// Adds the row of a new record: the key is read as the newest one, then the name gets it in front.
/// The record has its final key and name afterwards.
template <class Record>
void writeNewRow(Store& store, RowSet& row, const RecordTable<Record>& table, Record& record) {
    row.update();
    record.*table.key = readNewestKey(store, table.newestKey);
    if (table.nameColumn.isEmpty()) return;
    record.*table.name = table.nameRule.withKey(record.*table.key, record.*table.name);
    row.setText(table.nameColumn, record.*table.name);
    row.update();
}

/// Writes a record's row, all or nothing. A new record gets its key, its final name and IsNew false; on a
/// failure it is as it was.
template <class Record>
void writeRecord(const Session& session, const RecordTable<Record>& table, Record& record) {
    Store& store = connectedStore(session);
    Record first = record, written = record;
    if (record.IsNew) first.*table.name = (record.*table.name).left(table.nameRule.longest);
    StoreTransaction transaction(store);
    RowSet row(store, table.selectRow + QString::number(record.*table.key));
    if (record.IsNew) row.addNew();
    writeFields(row, table.columns, session.DecimalSep, std::move(first));
    if (record.IsNew)
        writeNewRow(store, row, table, written);
    else
        row.update();
    transaction.commit();
    written.IsNew = false;
    record = std::move(written);
}

/// `Save` of the data objects: a new record joins the collection; an existing one is written and its copy in
/// memory left as it is until the next load.
template <class Record>
void saveRecord(const Session& session, const RecordTable<Record>& table, Record& record,
                KeyedCollection<Record>& collection) {
    const bool isNew = record.IsNew;
    writeRecord(session, table, record);
    if (isNew) collection.AddItem(record);
}

} // namespace morvane
