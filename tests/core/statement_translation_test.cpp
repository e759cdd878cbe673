#include "core/literals.h"
#include "core/statement_translation.h"

#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(StatementTranslation, typesOfColumns) {
    const TranslatedStatement table = translateStatement(
        u"CREATE TABLE T(ID COUNTER CONSTRAINT PrimaryKey PRIMARY KEY, A TEXT (50), B YESNO)"_s);
    ASSERT_EQ(table.statements.size(), 1);
    EXPECT_TRUE(table.changesSchema);
    EXPECT_EQ(table.statements[0],
              "CREATE TABLE T(ID INTEGER CONSTRAINT PrimaryKey PRIMARY KEY AUTOINCREMENT, "
              "A TEXT(50) COLLATE MORVANE_TEXT CONSTRAINT \"A takes at most 50 characters\" "
              "CHECK(length(A) <= 50), B BOOLEAN NOT NULL DEFAULT 0)");
}

TEST(StatementTranslation, severalNewColumnsBecomeStatementsOfTheirOwn) {
    const QStringList statements =
        translateStatement(u"ALTER TABLE T ADD COLUMN A YESNO, TEXT_A TEXT(3), COUNTER_A LONG "_s).statements;
    ASSERT_EQ(statements.size(), 3);
    EXPECT_EQ(statements[0], "ALTER TABLE T ADD COLUMN  A BOOLEAN NOT NULL DEFAULT 0");
    EXPECT_TRUE(statements[1].startsWith(u"ALTER TABLE T ADD COLUMN  TEXT_A TEXT(3) COLLATE"_s));
    EXPECT_EQ(statements[2], "ALTER TABLE T ADD COLUMN  COUNTER_A LONG ");
}

TEST(StatementTranslation, expressionsAndTexts) {
    const struct {
        QString statement, translated;
        QStringList texts;
    } cases[] = {
        {u"SELECT * FROM A WHERE NOT ISNULL(STATE)"_s, u"SELECT * FROM A WHERE NOT (STATE IS NULL)"_s, {}},
        {u"SELECT * FROM A WHERE ISNULL (f(ISNULL(X), Y)) AND B = 1"_s,
         u"SELECT * FROM A WHERE  (f((X IS NULL), Y) IS NULL) AND B = 1"_s,
         {}},
        {u"DELETE FROM W WHERE C = '----'"_s, u"DELETE FROM W WHERE C = ?"_s, {u"----"_s}},
        {u"SELECT * FROM A WHERE N = 'O''Hare' AND M = ''"_s,
         u"SELECT * FROM A WHERE N = ? AND M = ?"_s,
         {u"O'Hare"_s, QString()}},
        // Inside quotes nothing is a word of the language.
        {u"INSERT INTO A(B) VALUES ('ISNULL(x) YESNO ?, COUNTER')"_s,
         u"INSERT INTO A(B) VALUES (?)"_s,
         {u"ISNULL(x) YESNO ?, COUNTER"_s}},
        // A quote that never closes is SQLite's to refuse, not ours to guess at.
        {u"SELECT * FROM A WHERE N = 'O''"_s, u"SELECT * FROM A WHERE N = 'O''"_s, {}},
    };
    for (const auto& [statement, translated, texts] : cases) {
        const TranslatedStatement result = translateStatement(statement);
        EXPECT_EQ(result.statements, QStringList{translated});
        EXPECT_EQ(result.texts, texts);
        EXPECT_FALSE(result.changesSchema);
    }
}

TEST(StatementTranslation, selectionsKnowTheirTable) {
    const TranslatedSelection rows = translateSelection(u"select max(ID) as RFID from RESOURCE_FOLDERS"_s);
    EXPECT_EQ(rows.table, "RESOURCE_FOLDERS");
    EXPECT_EQ(rows.statement, "select rowid,  max(ID) as RFID from RESOURCE_FOLDERS");
    EXPECT_EQ(translateSelection(u"SELECT DISTINCT CITY FROM AIRPORTDATA "_s).table, "");
    EXPECT_EQ(translateSelection(u"SELECT * FROM AIRPORTDATA WHERE CITY LIKE 'from x%'"_s).table,
              "AIRPORTDATA");
}

TEST(StatementTranslation, safeTexts) {
    EXPECT_EQ(makeStatementSafe(u"O'Hare 'n'"_s), "O''Hare ''n''");
    EXPECT_EQ(makeStatementSafe(u"plain"_s), "plain");
}

} // namespace
} // namespace morvane
