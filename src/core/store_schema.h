#pragma once

#include <QString>
#include <QStringList>

namespace morvane {

class Store;

/// The statements that make the program's tables and the indexes on their text keys, in order.
QStringList schemaStatements();

/// Makes all tables, without rows, in a store that has none of them: all or nothing.
void createSchema(Store& store);

/// Colour numbers as the user's locale writes them: each "." becomes `decimalSep`; a text without "." stays.
QString applyDecimalSeparator(QString text, const QString& decimalSep);
/// The way back. The store always holds ".", so that it can be carried to a machine with another locale.
QString removeDecimalSeparator(QString text, const QString& decimalSep);

} // namespace morvane
