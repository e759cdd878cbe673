#pragma once

#include "core/literals.h"

#include <QStringList>
#include <vector>

namespace morvane {

class Store;

enum class ColumnKind { text, number, flag };

struct SchemaColumn {
    QString name;
    ColumnKind kind = ColumnKind::text;
    int width = 0;           ///< letters that a text may have
    bool isLookedUp = false; ///< rows are found by it; no value is unique, the program keeps them so
    int since = 1;           ///< the version of the schema that brought it
};

/// A table and its columns behind the key.
struct SchemaTable {
    QString name;
    std::vector<SchemaColumn> columns;
    int since = 1;
};

using Schema = std::vector<SchemaTable>;

/// What the store holds: the one place that spells it. A new column is one row here, with the next number as
/// `since`, and one row in the columns of its record; the stores of the users follow at their next start.
const Schema& programSchema();
/// The newest number in it.
int versionOf(const Schema& schema);
/// The program's table of that name; raises for one that it does not have.
const SchemaTable& schemaTable(const QString& name);
/// The columns that the table had in that version, in their order.
std::vector<SchemaColumn> columnsOfVersion(const SchemaTable& table, int version);

/// Makes all tables, without rows, in a store that has none of them: all or nothing.
void createSchema(Store& store);
/// Makes the table with all its columns.
void createTable(Store& store, const SchemaTable& table);
/// Adds those of its columns to the table; the rows get null, in a flag false.
void addColumns(Store& store, const SchemaTable& table, const QStringList& names);
/// Brings a present store up to date, version by version, each in one transaction: tables and columns that it
/// does not have are added, and nothing else is touched. A store that is newer than the schema stays.
void updateSchema(Store& store, const Schema& schema = programSchema());

} // namespace morvane
