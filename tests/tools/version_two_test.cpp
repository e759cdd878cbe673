#include "version_two.h"

#include "app/start_up.h"
#include "core/row_set.h"
#include "core/store.h"
#include "core/store_connection.h"
#include "ground/ground_sets.h"
#include "ground/texture_sets.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(VersionTwo, isOfTheOldFormAndItsNextStartBringsEverythingBack) {
    test::SmallInstall install;
    Session& session = install.session;
    session.adoConn->execute(
        u"INSERT INTO AIRPORTDATA(ICAO, COUNTRY, STATE) VALUES('LSZH', 'Switzerland', 'Zürich; Uri')"_s);
    closeDatabase(session);
    NativeFileSystem files;
    makeVersionTwo(files, install.home());

    Store store;
    store.open(install.home() / u"Morvane.mdb");
    EXPECT_TRUE(store.hasTable(u"COUNTRIES"_s));
    for (const char16_t* table : {u"TEXTURE_SWITCH", u"NIGHT_TEXTURE_SETS"})
        EXPECT_FALSE(store.hasTable(QStringView(table).toString()));
    for (const auto& [table, column] : {std::pair{u"AIRPORTDATA"_s, u"STATE"_s},
                                        {u"DECODED_METAR"_s, u"METAR_LAT"_s},
                                        {u"TEXTURE_SETS"_s, u"DUTCH"_s}})
        EXPECT_FALSE(store.hasColumn(table, column)) << column.toStdString();
    store.close();
    const FilePath set = install.home() / u"Texture Sets\\2-Harvest";
    EXPECT_FALSE(files.list(set / u"Texture", u"*.bmp"_s).isEmpty());
    EXPECT_FALSE(files.isFolder(set / u"Dutch"));

    session.rows<clsTextureSets>().reset();
    ASSERT_TRUE(startUp(session));
    EXPECT_EQ(RowSet(*session.adoConn, u"SELECT * FROM AIRPORTDATA"_s).text(u"STATE"), "Zürich, Uri");
    EXPECT_TRUE(findGroundSet(session, u"3-Grey day"_s)->IsDutch);
    EXPECT_FALSE(files.list(set / u"Dutch", u"*.bmp"_s).isEmpty());
    closeDatabase(session);
}

} // namespace
} // namespace morvane
