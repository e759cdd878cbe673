#include "core/row_set.h"

#include "core/error.h"
#include "core/numbers.h"
#include "core/statement_translation.h"
#include "core/store.h"

#include <algorithm>
#include <limits>

namespace morvane {

RowSet::RowSet(Store& store, const QString& statement) : store_(store) {
    const TranslatedSelection selection = translateSelection(statement);
    table_ = selection.table;
    StoreStatement run(store, selection.statement);
    run.bindTexts(selection.texts);
    const int first = table_.isEmpty() ? 0 : 1; // the row's own key stands in front
    for (int column = first; column < run.columnCount(); ++column)
        columns_ << run.columnName(column);
    while (run.step()) {
        Row& row = rows_.emplace_back();
        if (first == 1) row.key = run.number(0);
        row.values.reserve(static_cast<std::size_t>(columns_.size()));
        for (int column = first; column < run.columnCount(); ++column)
            row.values.push_back(run.value(column));
    }
}

int RowSet::columnOf(QStringView field) const {
    auto found = std::find(columns_.begin(), columns_.end(), field);
    if (found == columns_.end())
        found = std::find_if(columns_.begin(), columns_.end(), [field](const QString& column) {
            return field.compare(column, Qt::CaseInsensitive) == 0;
        });
    if (found == columns_.end()) throw Error(ErrorCode::storeFailure, u"no column "_s + field.toString());
    return static_cast<int>(found - columns_.begin());
}

const StoreValue& RowSet::value(QStringView field) const {
    const auto column = static_cast<std::size_t>(columnOf(field));
    if (atEnd()) throw Error(ErrorCode::storeFailure, u"no row for "_s + field.toString());
    return rows_[position_].values[column];
}

QString RowSet::text(QStringView field) const {
    const StoreValue& held = value(field);
    if (const auto* text = std::get_if<QString>(&held)) return *text;
    if (const auto* number = std::get_if<std::int64_t>(&held)) return QString::number(*number);
    if (const auto* fraction = std::get_if<double>(&held)) return QString::number(*fraction);
    return {};
}

std::int64_t RowSet::wholeNumber(QStringView field) const {
    const StoreValue& held = value(field);
    if (const auto* number = std::get_if<std::int64_t>(&held)) return *number;
    return roundToLong(textToNumber(text(field)));
}

bool RowSet::flag(QStringView field) const {
    return !isNull(field) && wholeNumber(field) != 0;
}

std::int16_t RowSet::integer(QStringView field) const {
    return toInteger(wholeNumber(field));
}

std::int32_t RowSet::longInteger(QStringView field) const {
    const std::int64_t number = wholeNumber(field);
    using Limits = std::numeric_limits<std::int32_t>;
    if (number < Limits::min() || number > Limits::max()) throw Error(ErrorCode::overflow);
    return static_cast<std::int32_t>(number);
}

bool RowSet::isNull(QStringView field) const {
    return std::holds_alternative<std::monostate>(value(field));
}

void RowSet::addNew() {
    changes_.clear();
    isAdding_ = true;
}

void RowSet::set(QStringView field, const StoreValue& value) {
    if (table_.isEmpty() || (atEnd() && !isAdding_))
        throw Error(ErrorCode::storeFailure, u"no row for "_s + field.toString());
    const int column = columnOf(field);
    const auto earlier = std::find_if(changes_.begin(), changes_.end(),
                                      [column](const Change& change) { return change.column == column; });
    if (earlier != changes_.end())
        earlier->value = value;
    else
        changes_.push_back({column, value});
}

void RowSet::update() {
    if (isAdding_) {
        const std::int64_t key = insert();
        rows_.push_back({key, std::vector<StoreValue>(static_cast<std::size_t>(columns_.size()))});
        position_ = rows_.size() - 1;
        isAdding_ = false;
    } else if (!changes_.empty()) {
        write(rows_[position_].key);
    }
    for (const Change& change : changes_)
        rows_[position_].values[static_cast<std::size_t>(change.column)] = change.value;
    changes_.clear();
}

QStringList RowSet::changedColumns() const {
    QStringList names;
    for (const Change& change : changes_)
        names << u'"' + columns_[change.column] + u'"';
    return names;
}

std::int64_t RowSet::insert() {
    if (table_.isEmpty()) throw Error(ErrorCode::storeFailure, u"no table for a new row"_s);
    QString statement = u"INSERT INTO "_s + table_ + u" DEFAULT VALUES RETURNING rowid"_s;
    if (!changes_.empty()) {
        const QString marks = QString(u"?,"_s).repeated(static_cast<qsizetype>(changes_.size())).chopped(1);
        statement = u"INSERT INTO %1(%2) VALUES(%3) RETURNING rowid"_s.arg(
            table_, changedColumns().join(u','), marks);
    }
    StoreStatement run(store_, statement);
    for (const Change& change : changes_)
        run.bind(change.value);
    run.step();
    const std::int64_t key = run.number(0);
    run.step(); // to the end: the row is only then surely there
    return key;
}

void RowSet::write(std::int64_t key) {
    StoreStatement run(
        store_, u"UPDATE %1 SET %2 = ? WHERE rowid = ?"_s.arg(table_, changedColumns().join(u" = ?, "_s)));
    for (const Change& change : changes_)
        run.bind(change.value);
    run.bind(key);
    run.step();
}

void RowSet::close() {
    rows_.clear();
    changes_.clear();
    position_ = 0;
    isAdding_ = false;
}

} // namespace morvane
