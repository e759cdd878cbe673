#include "ground/ground_sets.h"
#include "imaging/picture_reader.h"
#include "imaging/small_picture.h"
#include "imaging/texture_codec.h"
#include "night/night_sets.h"
#include "sheets/set_sheets.h"
#include "sheets/sheet_layout.h"
#include "sheets/sheet_pictures.h"
#include "sheets/simulator_sheet.h"
#include "sky/sky_groups.h"
#include "sky/sky_install.h"
#include "support/night_install.h"

namespace morvane::test {
namespace {

/// "Cities: ab c - -", the names of each cell joined, "*" behind one that the set has a file of.
QStringList rowsOf(const Sheet& sheet) {
    QStringList lines;
    for (const SheetRow& row : sheet.rows) {
        QStringList cells;
        for (const auto& cell : row.cells) {
            QStringList names;
            for (const std::size_t index : cell)
                names << sheet.textures[index].name.section(u'.', 0, 0) +
                             (sheet.textures[index].own.isEmpty() ? QString() : u"*"_s);
            cells << (names.isEmpty() ? u"-"_s : names.join(u'+'));
        }
        lines << row.name + u": "_s + cells.join(u' ');
    }
    return lines;
}

QByteArray textureOf(int shade) {
    return compressTexture(readPicture(smallBitmap(128, shade)));
}

struct Sheets : InstallTest {
    Sheets()
        : InstallTest({{u"GENERIC WORLD\\029h2su6.bmp"_s, u"GENERIC WORLD\\029b2wi6.bmp"_s,
                        u"GENERIC WORLD\\002c2wi1.bmp"_s, u"UTIND\\034b2su4.bmp"_s, u"DUTCH\\005a2su2.bmp"_s,
                        u"GENERIC WORLD\\999a2su1.bmp"_s},
                       128}) {}

    FilePath inSet(const QString& name, const QString& file) {
        return install.home() / u"Texture Sets" / name / file;
    }
    void giveColours(const QString& colours) {
        session.adoConn->execute(u"UPDATE TEXTURE_SETS SET COLOR_SETTINGS = '%1'"_s.arg(colours));
        refreshGroundSets(session);
    }
    SheetPair pairOf(Sheet sheet, const QString& name, int side = SheetPictures::smallSide) {
        const SheetPictures pictures(install.files, session.AppPath, std::move(sheet));
        const auto& textures = pictures.sheet().textures;
        const auto found = std::ranges::find(textures, name, &SheetTexture::name);
        return found == textures.end()
                   ? SheetPair()
                   : pictures.load(static_cast<std::size_t>(found - textures.begin()), side);
    }
};

TEST_F(Sheets, groundHasItsCategoriesBySeasons) {
    install.addGroundSet(u"2-Störm"_s, u"Overcast"_s, true);
    writeFile(inSet(u"2-Störm"_s, u"Texture\\029H2SU6.BMP"_s), textureOf(200));
    const auto sheet = groundSheet(session, u"2-Störm"_s);
    ASSERT_TRUE(sheet);
    // The winter files of the red earth stand twice in the catalogue, and once here.
    EXPECT_EQ(rowsOf(*sheet),
              (QStringList{"Cities: - 029h2su6* - 029b2wi6", "Red Textures: - - - 002c2wi1",
                           "UT Europe Industrial: - 034b2su4 - -", "Dutch Rural: - 005a2su2 - -"}));
    EXPECT_EQ(sheet->cover, u"Overcast"_s);
    EXPECT_EQ(sheet->summary(), u"5 textures, activated"_s);
    EXPECT_EQ(sheet->placeOf(sheet->textures[0]), u"Cities, Summer"_s);
    EXPECT_FALSE(groundSheet(session, u"3-None"_s));
}

TEST_F(Sheets, aTextureWithoutAFileIsMadeFromTheBase) {
    install.addGroundSet(u"2-Störm"_s, u"Overcast"_s, true);
    writeFile(inSet(u"2-Störm"_s, u"Texture\\029h2su6.bmp"_s), textureOf(200));
    writeFile(inSet(u"2-Störm"_s, u"Texture\\002c2wi1.bmp"_s), "no texture at all");
    giveColours(u"0:0:0:0:-30:0"_s);
    const Sheet sheet = *groundSheet(session, u"2-Störm"_s);
    EXPECT_EQ(sheet.colours[4], (std::pair(u"Brightness"_s, u"-100%"_s)));
    const SheetPair own = pairOf(sheet, u"029h2su6.bmp"_s), made = pairOf(sheet, u"029b2wi6.bmp"_s);
    EXPECT_EQ(own.own.size(), QSize(64, 64));
    EXPECT_EQ(own.whole, QSize(128, 128));
    EXPECT_NE(own.own, own.base);
    EXPECT_LT(qGray(made.own.pixel(20, 20)), qGray(made.base.pixel(20, 20)));
    EXPECT_EQ(pairOf(sheet, u"029b2wi6.bmp"_s, 0).own.size(), QSize(128, 128));
    const SheetPair spoilt = pairOf(sheet, u"002c2wi1.bmp"_s);
    EXPECT_TRUE(spoilt.own.isNull());
    EXPECT_FALSE(spoilt.base.isNull());
    giveColours(u"red"_s);
    const Sheet damaged = *groundSheet(session, u"2-Störm"_s);
    EXPECT_TRUE(pairOf(damaged, u"029b2wi6.bmp"_s).own.isNull());
    EXPECT_FALSE(pairOf(damaged, u"029h2su6.bmp"_s).own.isNull());
}

TEST_F(Sheets, nightHasTheCategoriesThatItLights) {
    addNightStock(install);
    addNightSet(install, u"2-Cold"_s, false);
    const auto sheet = nightSheet(session, u"2-Cold"_s);
    ASSERT_TRUE(sheet);
    EXPECT_EQ(rowsOf(*sheet), (QStringList{"Cities: 029b2lm1+045b2lm1", "Rural Areas: 008b2lm1",
                                           "Dutch Rural: 005a2lm2+008b2lm1"}));
    EXPECT_EQ(sheet->summary(), u"5 textures, not activated yet"_s);
    EXPECT_NE(pairOf(*sheet, u"029b2lm1.bmp"_s).own, QImage());
}

/// Over the pilot's own where he had such a file, and over itself where he has it still.
TEST_F(Sheets, theSimulatorHasItsFilesOverThoseThatWereKept) {
    const FilePath world = install.simulator() / u"Scenery\\World\\texture";
    writeFile(world / u"029H2SU6.BMP", textureOf(40));
    writeFile(world / u"029B2WI6.BMP", textureOf(90));
    install.addGroundSet(u"2-Störm"_s, u"Overcast"_s, true);
    writeFile(inSet(u"2-Störm"_s, u"Texture\\029h2su6.bmp"_s), textureOf(200));
    GroundKind::install(session, u"2-Störm"_s);
    const Sheet sheet = simulatorSheet(session);
    EXPECT_TRUE(rowsOf(sheet).contains(u"Cities: - 029H2SU6* - 029B2WI6*"_s))
        << rowsOf(sheet).join(u'\n').toStdString();
    const SheetPair replaced = pairOf(sheet, u"029H2SU6.BMP"_s), own = pairOf(sheet, u"029B2WI6.BMP"_s);
    EXPECT_NE(replaced.base, replaced.own);
    EXPECT_EQ(own.base, own.own);
    EXPECT_EQ(sheet.colours[0], (std::pair(u"Ground"_s, u"2-Störm"_s)));
}

TEST(SkySheets, dayIsColouredAndTheOthersAreAsTheyAre) {
    SkyInstall install;
    install.addSkySet(u"40-Red"_s, u"Sky Clear"_s, false);
    install.session.state<SkyColourTables>().skyTextureGroups[2].red = 77; // of the set in hand
    const Sheet sheet = *skySheet(install.session, u"40-Red"_s);
    EXPECT_EQ(rowsOf(sheet), (QStringList{"Day: sky_afternoon_3+sky_day_1+Sky_Day_2",
                                          "Sunrise: sky_sunrise_1", "Sunset: sky_sunset_1"}));
    EXPECT_EQ(install.session.state<SkyColourTables>().skyTextureGroups[2].red, 77);
    const SheetPictures pictures(install.files, install.session.AppPath, sheet);
    for (std::size_t i = 0; i < sheet.textures.size(); ++i) {
        const SheetPair pair = pictures.load(i, SheetPictures::smallSide);
        EXPECT_EQ(pair.own.size(), QSize(32, 32));
        EXPECT_EQ(pair.own == pair.base, i > 2) << i;
    }
}

TEST(SheetLayouts, rowsOpenAndArrowsGoWhereTheyPoint) {
    Sheet sheet;
    sheet.columns = QStringList{"Spring", "Summer"};
    sheet.textures.resize(12);
    sheet.rows = {{u"Cities"_s, {{0, 1, 2, 3, 4, 5, 6}, {7, 8}}}, {u"Night"_s, {{9, 10, 11}}}};
    const SheetLayout closed(sheet, {}, {}), open(sheet, {}, {true, false});
    // As it was drawn: three a line of 36 pixels, two lines, rows of 91.
    EXPECT_EQ(closed.rows()[0].height(), 91);
    EXPECT_EQ(closed.place(0), QRect(106, 8, 36, 36));
    EXPECT_EQ(closed.place(4), QRect(145, 47, 36, 36));
    EXPECT_TRUE(closed.place(6).isNull());
    EXPECT_EQ(open.place(6), QRect(106, 86, 36, 36));
    EXPECT_EQ(open.openerPlace(0), closed.openerPlace(0));
    EXPECT_TRUE(open.openerPlace(1).isNull());
    const struct {
        std::size_t from;
        int right, down;
        std::optional<std::size_t> to;
    } steps[] = {{0, 1, 0, 1}, {2, 1, 0, 7},  {7, -1, 0, 2}, {0, -1, 0, {}}, {0, 0, 1, 3},  {3, 0, 1, 6},
                 {6, 0, 1, 9}, {6, 1, 0, {}}, {9, 0, -1, 6}, {8, 0, 1, 5},   {0, 0, -1, {}}};
    for (const auto& [from, right, down, to] : steps)
        EXPECT_EQ(open.neighbour(from, right, down), to) << from << ' ' << right << ' ' << down;
    for (int zoom = smallestZoom; zoom <= largestZoom; ++zoom) {
        const SheetLayout layout(sheet, {.zoom = zoom}, {true, true});
        for (std::size_t i = 0; i < 12; ++i)
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_FALSE(layout.place(i).intersects(layout.place(j))) << zoom << ' ' << i << ' ' << j;
    }
}

} // namespace
} // namespace morvane::test
