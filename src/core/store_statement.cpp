#include "core/store_statement.h"

#include "core/store.h"

#include <sqlite3.h>

namespace morvane {

namespace {

template <class... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <class... Cases> // clang 14, which looks for faults, does not deduce it by itself
Overloaded(Cases...)->Overloaded<Cases...>;

QString textOf(sqlite3_stmt* statement, int column) {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return QString::fromUtf8(bytes, sqlite3_column_bytes(statement, column));
}

} // namespace

StoreStatement::StoreStatement(Store& store, const QString& statement)
    : store_(store), owned_(store.prepared(statement)), statement_(owned_.get()) {}

StoreStatement::~StoreStatement() {
    sqlite3_reset(statement_);
    sqlite3_clear_bindings(statement_);
}

void StoreStatement::bind(const StoreValue& value) {
    const int index = ++bound_;
    const int result =
        std::visit(Overloaded{
                       [&](std::monostate) { return sqlite3_bind_null(statement_, index); },
                       [&](std::int64_t number) { return sqlite3_bind_int64(statement_, index, number); },
                       [&](double number) { return sqlite3_bind_double(statement_, index, number); },
                       [&](const QString& text) {
                           const QByteArray bytes = text.toUtf8();
                           return sqlite3_bind_text64(statement_, index, bytes.constData(),
                                                      static_cast<sqlite3_uint64>(bytes.size()),
                                                      SQLITE_TRANSIENT, SQLITE_UTF8);
                       },
                   },
                   value);
    if (result != SQLITE_OK) store_.raise(result);
}

void StoreStatement::bindTexts(const QStringList& texts) {
    for (const QString& text : texts)
        bind(text);
}

bool StoreStatement::step() {
    const int result = sqlite3_step(statement_);
    if (result == SQLITE_ROW) return true;
    if (result != SQLITE_DONE) store_.raise(result);
    return false;
}

int StoreStatement::columnCount() const {
    return sqlite3_column_count(statement_);
}

QString StoreStatement::columnName(int column) const {
    return QString::fromUtf8(sqlite3_column_name(statement_, column));
}

StoreValue StoreStatement::value(int column) const {
    switch (sqlite3_column_type(statement_, column)) {
    case SQLITE_INTEGER:
        return number(column);
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement_, column);
    case SQLITE_NULL:
        return std::monostate{};
    default:
        return textOf(statement_, column);
    }
}

std::int64_t StoreStatement::number(int column) const {
    return sqlite3_column_int64(statement_, column);
}

} // namespace morvane
