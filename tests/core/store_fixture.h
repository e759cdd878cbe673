#pragma once

#include "core/row_set.h"
#include "core/statement_translation.h"
#include "core/store.h"
#include "core/store_schema.h"

#include "support/raised_error.h"
#include "support/temporary_folder.h"
#include "support/testing.h"

namespace morvane::test {

/// A store with all tables of the program and no rows.
struct StoreFixture : testing::Test {
    StoreFixture() {
        store.create(file);
        createSchema(store);
    }

    void execute(const QString& statement) { store.execute(statement); }
    /// A row for each of the texts; `column` as in "MV_BACKUP(BACKUP_NAME)".
    void addRows(const QString& column, const QStringList& texts) {
        const QString values = makeStatementSafe(texts.join(u'|')).replace(u'|', u"'), ('"_s);
        execute(u"INSERT INTO %1 VALUES ('%2')"_s.arg(column, values));
    }
    void addBackups(const QStringList& names) { addRows(u"MV_BACKUP(BACKUP_NAME)"_s, names); }
    /// The field of every row; `from` is a table and what may follow its name.
    QStringList column(const QString& field, const QString& from) {
        QStringList texts;
        for (RowSet rows(store, u"SELECT * FROM "_s + from); !rows.atEnd(); rows.next())
            texts << rows.text(field);
        return texts;
    }
    QStringList backups() { return column(u"BACKUP_NAME"_s, u"MV_BACKUP"_s); }
    /// Every row of a table, its fields joined by "|".
    QStringList rowsOf(const QString& table) {
        QStringList lines;
        for (RowSet rows(store, u"SELECT * FROM "_s + table); !rows.atEnd(); rows.next()) {
            QStringList fields;
            for (const QString& field : store.columns(table))
                fields << rows.text(field);
            lines << fields.join(u'|');
        }
        return lines;
    }
    TemporaryFolder folder;
    FilePath file = folder / u"Morvane.mdb";
    Store store;
};

} // namespace morvane::test
