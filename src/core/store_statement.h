#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <memory>
#include <variant>

struct sqlite3_stmt;

namespace morvane {

class Store;

/// A value of a row: nothing, a whole number (flags are 0 and 1), a fraction, a text.
using StoreValue = std::variant<std::monostate, std::int64_t, double, QString>;

/// One run of a statement in SQLite's own words. The store keeps it prepared for the next run.
class StoreStatement {
public:
    StoreStatement(Store& store, const QString& statement);
    ~StoreStatement();
    StoreStatement(const StoreStatement&) = delete;
    StoreStatement& operator=(const StoreStatement&) = delete;

    /// Values of the parameters "?", in order.
    void bind(const StoreValue& value);
    void bindTexts(const QStringList& texts);
    /// True while there is a row to read.
    bool step();

    int columnCount() const;
    QString columnName(int column) const;
    StoreValue value(int column) const;
    std::int64_t number(int column) const;

private:
    Store& store_;
    std::shared_ptr<sqlite3_stmt> owned_; ///< a schema change may drop it from the store meanwhile
    sqlite3_stmt* statement_;
    int bound_ = 0;
};

} // namespace morvane
