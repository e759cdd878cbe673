#include "core/store_fixture.h"

namespace morvane {
namespace {

using RowSetTest = test::StoreFixture;

TEST_F(RowSetTest, anAddedRowIsAtHandForItsName) {
    RowSet row(store, u"SELECT * FROM TEXTURE_SETS WHERE ID = 0"_s);
    row.addNew();
    row.setText(u"texture_set", u"Ångström's"_s);
    row.setFlag(u"DUTCH", true);
    row.update();
    row.setText(u"TEXTURE_SET", u"1-"_s + row.text(u"TEXTURE_SET"));
    row.update();
    EXPECT_EQ(rowsOf(u"TEXTURE_SETS"_s), QStringList{u"1||1-Ångström's||||1|0"_s});
    EXPECT_TRUE(RowSet(store, u"SELECT * FROM TEXTURE_SETS"_s).isNull(u"DESCRIPTION")); // was never set
}

TEST_F(RowSetTest, anUpdateWritesTheRowAtHandOnly) {
    for (const QString& name : {u"Default"_s, u"Storm"_s, u"Calm"_s})
        addBackup(name);
    RowSet rows(store, u"SELECT BACKUP_NAME FROM MV_BACKUP WHERE BACKUP_NAME <> 'Calm'"_s);
    ASSERT_EQ(rows.count(), 2);
    rows.next();
    rows.setText(u"BACKUP_NAME", u"Gale"_s);
    EXPECT_EQ(rows.text(u"BACKUP_NAME"), "Storm"); // not before the update
    rows.update();
    EXPECT_EQ(rows.text(u"BACKUP_NAME"), "Gale");
    rows.update(); // nothing was set: nothing to write
    EXPECT_EQ(backups().join(u' '), "Default Gale Calm");
}

TEST_F(RowSetTest, numbersAreCheckedForTheirWidth) {
    execute(
        u"INSERT INTO DECODED_METAR(ID, METAR_STRING, METAR_MAX_CLOUD) VALUES (40000, '12', 3000000000)"_s);
    const RowSet row(store, u"SELECT * FROM DECODED_METAR"_s);
    EXPECT_EQ(failureOf([&] { row.integer(u"ID"); }), "Overflow");
    EXPECT_EQ(row.longInteger(u"ID"), 40000);
    EXPECT_EQ(failureOf([&] { row.longInteger(u"METAR_MAX_CLOUD"); }), "Overflow");
    EXPECT_EQ(failureOf([&] { row.integer(u"METAR_YEAR"); }), "Type mismatch"); // a null
    EXPECT_EQ(row.integer(u"METAR_STRING"), 12); // a text of digits is a number
}

TEST_F(RowSetTest, whatCannotBeWrittenRaises) {
    addBackup(u"Kiruna"_s);
    RowSet names(store, u"SELECT DISTINCT BACKUP_NAME FROM MV_BACKUP"_s);
    RowSet none(store, u"SELECT * FROM MV_BACKUP WHERE ID = 9"_s);
    for (RowSet* rows : {&names, &none})
        EXPECT_THROW(rows->setText(u"BACKUP_NAME", u"Luleå"_s), Error);
    EXPECT_THROW(none.text(u"BACKUP_NAME"), Error);
    none.addNew();
    EXPECT_EQ(failureOf([&] { none.setText(u"NOTE", u"x"_s); }),
              "The database cannot be used: no column NOTE");
    none.close();
    EXPECT_THROW(none.setText(u"BACKUP_NAME", u"Luleå"_s), Error);
}

} // namespace
} // namespace morvane
