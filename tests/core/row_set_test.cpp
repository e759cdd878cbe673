#include "core/row_set.h"
#include "core/store.h"
#include "core/store_schema.h"

#include "support/printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

class RowSetTest : public testing::Test {
protected:
    RowSetTest() {
        store.create(folder / u"Morvane.mdb");
        createSchema(store);
    }

    test::TemporaryFolder folder;
    Store store;
};

TEST_F(RowSetTest, anAddedRowIsAtHandForItsName) {
    RowSet row(store, u"SELECT * FROM TEXTURE_SETS WHERE ID = 0"_s);
    EXPECT_TRUE(row.atEnd());
    row.addNew();
    row.setText(u"texture_set", u"Ångström's"_s);
    row.setFlag(u"DUTCH", true);
    row.update();
    row.setText(u"TEXTURE_SET", u"1-"_s + row.text(u"TEXTURE_SET"));
    row.update();

    const RowSet stored(store, u"SELECT * FROM TEXTURE_SETS"_s);
    ASSERT_EQ(stored.count(), 1);
    EXPECT_EQ(stored.integer(u"ID"), 1);
    EXPECT_EQ(stored.text(u"TEXTURE_SET"), u"1-Ångström's"_s);
    EXPECT_TRUE(stored.flag(u"DUTCH"));
    EXPECT_FALSE(stored.flag(u"INSTALLED")); // the default of a field that was not set
    EXPECT_TRUE(stored.isNull(u"DESCRIPTION"));
    EXPECT_EQ(stored.text(u"DESCRIPTION"), "");
}

TEST_F(RowSetTest, anUpdateWritesTheRowAtHandOnly) {
    for (const char* name : {"Default", "Storm", "Calm"})
        store.execute(
            u"INSERT INTO TEXTURE_SETS(TEXTURE_SET) VALUES ('%1')"_s.arg(QString::fromLatin1(name)));
    RowSet rows(store, u"SELECT DUTCH FROM TEXTURE_SETS WHERE TEXTURE_SET <> 'Calm'"_s);
    ASSERT_EQ(rows.count(), 2);
    rows.next();
    rows.setFlag(u"DUTCH", true);
    EXPECT_FALSE(rows.flag(u"DUTCH"));
    rows.update();
    EXPECT_TRUE(rows.flag(u"DUTCH"));
    rows.update(); // nothing was set: nothing to write
    const RowSet changed(store, u"SELECT * FROM TEXTURE_SETS WHERE DUTCH = True"_s);
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed.text(u"TEXTURE_SET"), "Storm");
}

TEST_F(RowSetTest, numbersAreCheckedForTheirWidth) {
    store.execute(
        u"INSERT INTO DECODED_METAR(ID, METAR_STRING, METAR_MAX_CLOUD) VALUES (40000, '12', 3000000000)"_s);
    const RowSet row(store, u"SELECT * FROM DECODED_METAR"_s);
    const auto codeOf = [](const auto& read) {
        try {
            read();
        } catch (const Error& error) {
            return error.code();
        }
        return ErrorCode::invalidCall;
    };
    EXPECT_EQ(codeOf([&] { row.integer(u"ID"); }), ErrorCode::overflow);
    EXPECT_EQ(row.longInteger(u"ID"), 40000);
    EXPECT_EQ(codeOf([&] { row.longInteger(u"METAR_MAX_CLOUD"); }), ErrorCode::overflow);
    EXPECT_EQ(codeOf([&] { row.integer(u"METAR_YEAR"); }), ErrorCode::typeMismatch);
    EXPECT_EQ(row.integer(u"METAR_STRING"), 12); // a text of digits is a number
    EXPECT_EQ(row.text(u"ID"), "40000");
}

TEST_F(RowSetTest, whatCannotBeWrittenRaises) {
    store.execute(u"INSERT INTO AIRPORTDATA(CITY) VALUES ('Kiruna')"_s);
    RowSet cities(store, u"SELECT DISTINCT CITY FROM AIRPORTDATA  ORDER BY CITY"_s);
    EXPECT_THROW(cities.setText(u"CITY", u"Luleå"_s), Error);
    RowSet none(store, u"SELECT * FROM AIRPORTDATA WHERE ID = 9"_s);
    EXPECT_THROW(none.setText(u"CITY", u"Luleå"_s), Error);
    EXPECT_THROW(none.text(u"CITY"), Error);
    none.addNew();
    EXPECT_THROW(none.setText(u"NO_COLUMN", u"x"_s), Error);
    none.close();
    EXPECT_THROW(none.setText(u"CITY", u"Luleå"_s), Error);
    EXPECT_EQ(RowSet(store, u"SELECT * FROM AIRPORTDATA"_s).count(), 1);
}

} // namespace
} // namespace morvane
