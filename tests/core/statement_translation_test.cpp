#include "core/literals.h"
#include "core/statement_translation.h"

#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

// What becomes of the types of columns is tested with the store that takes them.

TEST(StatementTranslation, expressionsAndTexts) {
    const struct {
        QString statement, translated;
        QStringList texts;
    } cases[] = {
        {u"X WHERE ISNULL (f(ISNULL(X), Y)) AND B"_s, u"X WHERE  (f((X IS NULL), Y) IS NULL) AND B"_s, {}},
        {u"DELETE FROM W WHERE C = '----'"_s, u"DELETE FROM W WHERE C = ?"_s, {u"----"_s}},
        {u"X WHERE N = 'O''Hare' AND M = ''"_s, u"X WHERE N = ? AND M = ?"_s, {u"O'Hare"_s, QString()}},
        // Inside quotes nothing is a word of the language.
        {u"X('ISNULL(x) YESNO ?, COUNTER')"_s, u"X(?)"_s, {u"ISNULL(x) YESNO ?, COUNTER"_s}},
        // A quote that never closes is SQLite's to refuse, not ours to guess at.
        {u"X WHERE N = 'O''"_s, u"X WHERE N = 'O''"_s, {}},
    };
    for (const auto& [statement, translated, texts] : cases) {
        const TranslatedStatement result = translateStatement(statement);
        EXPECT_EQ(result.statements, QStringList{translated});
        EXPECT_EQ(result.texts, texts);
    }
}

TEST(StatementTranslation, selectionsKnowTheirTable) {
    const TranslatedSelection rows = translateSelection(u"select max(ID) as RFID from RESOURCE_FOLDERS"_s);
    EXPECT_EQ(rows.table, "RESOURCE_FOLDERS");
    EXPECT_EQ(rows.statement, "select rowid,  max(ID) as RFID from RESOURCE_FOLDERS");
    EXPECT_EQ(translateSelection(u"SELECT DISTINCT CITY FROM AIRPORTDATA "_s).table, "");
    EXPECT_EQ(translateSelection(u"SELECT ' from x' FROM AIRPORTDATA"_s).table, "AIRPORTDATA");
}

} // namespace
} // namespace morvane
