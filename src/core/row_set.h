#pragma once

#include "core/store_statement.h"

#include <QString>
#include <QStringList>
#include <QStringView>
#include <cstdint>
#include <vector>

namespace morvane {

/// The rows of a SELECT statement of the program: walk them, read fields by name, write rows back or add
/// some.
///
/// All rows are read when it is opened, so nothing that happens while they are walked (a click, a write)
/// moves them. Writing goes to the row itself by its own key; it raises for the rows of a SELECT DISTINCT and
/// when there is no row at hand. Field names do not regard case; an unknown one raises. A row set must not
/// outlive its store.
class RowSet {
public:
    RowSet(Store& store, const QString& statement);

    int count() const { return static_cast<int>(rows_.size()); }
    bool atEnd() const { return position_ >= rows_.size(); }
    void next() { ++position_; }

    /// The field as text, "" for a null.
    QString text(QStringView field) const;
    /// A null counts as false.
    bool flag(QStringView field) const;
    /// Raises "Overflow" beyond 16 bits and "Type mismatch" for a null or a text that is no number.
    std::int16_t integer(QStringView field) const;
    /// The same with 32 bits.
    std::int32_t longInteger(QStringView field) const;
    bool isNull(QStringView field) const;

    /// Starts a row; fields that are not set get the table's defaults.
    void addNew();
    void setText(QStringView field, const QString& value) { set(field, value); }
    void setFlag(QStringView field, bool value) { set(field, std::int64_t{value}); }
    void setNumber(QStringView field, std::int32_t value) { set(field, std::int64_t{value}); }
    /// Writes the fields that were set. A row that was added is then the row at hand; fields that were not
    /// set read as null until it is opened anew.
    void update();
    /// Forgets the rows.
    void close();

private:
    struct Row {
        std::int64_t key = 0;
        std::vector<StoreValue> values;
    };
    struct Change {
        int column;
        StoreValue value;
    };

    int columnOf(QStringView field) const;
    const StoreValue& value(QStringView field) const;
    std::int64_t wholeNumber(QStringView field) const;
    void set(QStringView field, const StoreValue& value);
    std::int64_t insert();
    void write(std::int64_t key);
    QStringList changedColumns() const;

    Store& store_;
    QString table_;
    QStringList columns_;
    std::vector<Row> rows_;
    std::size_t position_ = 0;
    std::vector<Change> changes_;
    bool isAdding_ = false;
};

} // namespace morvane
