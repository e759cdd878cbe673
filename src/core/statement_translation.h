#pragma once

#include <QString>
#include <QStringList>

namespace morvane {

/// A statement of the program in the words of SQLite. The program writes the types COUNTER, YESNO and
/// TEXT(n), names several columns in one ALTER TABLE and tests with ISNULL(x); text inside single quotes is
/// never looked at.
struct TranslatedStatement {
    /// One statement; more than one only for an ALTER TABLE with several columns, to be run all or none.
    QStringList statements;
    /// Values of the parameters "?" of a SELECT, INSERT, UPDATE or DELETE, in order: the texts that stood in
    /// quotes. So the same shape with another value is one prepared statement.
    QStringList texts;
    /// CREATE, ALTER or DROP.
    bool changesSchema = false;
};

TranslatedStatement translateStatement(const QString& statement);

/// A SELECT whose rows can be written back.
struct TranslatedSelection {
    QString statement;
    QStringList texts;
    /// The table that a row belongs to; the statement's first column is then the row's own key. Empty for
    /// SELECT DISTINCT, whose rows are no table rows.
    QString table;
};

TranslatedSelection translateSelection(const QString& statement);

/// Makes a text safe to stand between single quotes: each single quote in it is doubled.
QString makeStatementSafe(QString text);

} // namespace morvane
