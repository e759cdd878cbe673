#include "ground/texture_catalogue.h"
#include "sets/catalogue_file.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <gtest/gtest.h>

namespace morvane::test {
namespace {

QStringList namesOf(const std::vector<CatalogueFile>& files) {
    QStringList names;
    for (const CatalogueFile& file : files)
        names << file.fileName;
    return names;
}

/// The names that a category's walk over these base images gives.
QStringList walk(const QStringList& baseImages, int category, int seasonCount) {
    QStringList paths;
    for (const QString& name : baseImages)
        paths << u"GENERIC WORLD\\%1.bmp"_s.arg(name);
    SmallInstall install(SmallInstallOptions{paths});
    TextureCatalogue catalogue(install.session);
    catalogue.flags.categories[static_cast<std::size_t>(category - 1)] = true;
    return namesOf(catalogue.popTextureList(seasonCount, 1, true, "7-Storm")).replaceInStrings(".bmp", "");
}

TEST(TextureCatalogue, walksSeasonsOutsideAndPatternsInsideByTheLettersOfACategory) {
    const QStringList town{"030a2sp1", "029b2su6", "029h2sp6", "029a2sp6", "136a2wi1", "029a2lm6"},
        letters{"006a2sp7", "006c2sp7", "006k2sp7", "013c2sp7"}, red{"002c2wi1", "052c2wi1", "052c2su1"};
    const std::tuple<QStringList, int, int, QString> cases[] = {
        {town, 1, 0, "029a2sp6 029h2sp6 030a2sp1 029b2su6 136a2wi1"},
        {letters, 3, 0, "006a2sp7 013c2sp7"},
        {letters, 10, 0, "006c2sp7"},
        {red, 10, 0, "052c2su1 002c2wi1 052c2wi1 002c2wi1 052c2wi1"}, // winter of the red soil stands twice,
        {red, 10, 1, "002c2wi1 052c2wi1"}, // and with its flag off comes all the same, once
    };
    for (const auto& [baseImages, category, seasonCount, expected] : cases)
        EXPECT_EQ(walk(baseImages, category, seasonCount).join(u' '), expected) << category;
}

TEST(TextureCatalogue, industrialAreasAreFiveRuns) {
    SmallInstall install(
        {{u"UTIND\\034b2su4.bmp"_s, u"UTIND\\038b2wi4.bmp"_s, u"GENERIC WORLD\\003a2wi1.bmp"_s,
          u"GENERIC WORLD\\056a2su3.bmp"_s, u"GENERIC WORLD\\056a2sp3.bmp"_s,
          u"GENERIC WORLD\\139b2fa1.bmp"_s, u"GENERIC WORLD\\139b2fa2.bmp"_s,
          u"GENERIC WORLD\\142b2su1.bmp"_s, u"GENERIC WORLD\\142b2wi1.bmp"_s}});
    TextureCatalogue catalogue(install.session);
    catalogue.flags.categories[12] = true;
    const auto files = catalogue.popTextureList(0, 1, true, "7-Storm");
    EXPECT_EQ(namesOf(files), QStringList({"034b2su4.bmp", "038b2wi4.bmp", "003a2wi1.bmp", "056a2su3.bmp",
                                           "139b2fa1.bmp", "142b2su1.bmp"}));
    for (const CatalogueFile& file : files) {
        EXPECT_EQ(file.targetFolder.relative(), "Texture Sets\\7-Storm\\UTEurLC");
        EXPECT_EQ(file.tempFolder.relative(), "TempBitmaps\\UTEurLC");
    }
    EXPECT_EQ(files.front().sourceFolder.relative(), "Resources\\UTIND");
    EXPECT_EQ(files.back().sourceFolder.relative(), "Resources\\GENERIC WORLD");
    EXPECT_TRUE(catalogue.flags.popSpring &&
                catalogue.flags.popWinter); // put back after the summer-only runs
}

} // namespace
} // namespace morvane::test
