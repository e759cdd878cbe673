#include "base_image_list.h"

#include "core/error.h"
#include "core/file_path.h"
#include "support/printing.h"

#include <gtest/gtest.h>
#include <set>

namespace morvane {
namespace {

/// What a ground set asks the stock for: a folder, beginnings of names, and the endings joined to each.
struct Demand {
    const char16_t* folder;
    const char16_t* patterns;
    const char16_t* endings;
};

constexpr const char16_t* allSeasons = u"sp*.bmp su*.bmp fa*.bmp wi*.bmp";

constexpr Demand demands[] = {
    {u"GENERIC WORLD",
     u"029*2 030*2 031*2 032*2 033*2 034*2 035*2 036*2 037*2 038*2 039*2 040*2 041*2 042*2 043*2 044*2 045*2 "
     u"046*2 047*2 048*2 049*2 136*2",
     allSeasons},
    {u"GENERIC WORLD", u"014*2 019*2 020*2 021*2 022*2 023*2 024*2 025*2 026*2 027*2 028*2 059*2 060*2",
     allSeasons},
    {u"GENERIC WORLD",
     u"006a2 006b2 006d2 006e2 006f2 006g2 006h2 006i2 006j2 013*2 052a2 052b2 052d2 052e2 052f2 052g2 052h2 "
     u"052i2 052j2 061*2 062*2 064*2 065*2 066*2 128*2 129*2 131*2 134*2 135*2 139*2 140*2 141*2 142*2",
     allSeasons},
    {u"GENERIC WORLD", u"016*2 017*2 018*2 063*2", allSeasons},
    {u"GENERIC WORLD",
     u"002a2 002b2 002d2 002e2 002f2 002g2 002h2 002i2 002j2 003a2 003b2 003d2 003e2 003f2 003g2 003h2 003i2 "
     u"003j2 050a2 050b2 050d2 050e2 050f2 050g2 050h2 050i2 050j2 051a2 051b2 051d2 051e2 051f2 051g2 051h2 "
     u"051i2 051j2 132*2 133*2 137*2 138*2 143*2",
     allSeasons},
    {u"GENERIC WORLD", u"007*2 008*2", allSeasons},
    {u"GENERIC WORLD", u"004*2 005a2 005b2 005d2 005e2 005f2 005g2 005h2 005i2 005j2 010*2 015*2 068*2 069*2",
     allSeasons},
    {u"GENERIC WORLD",
     u"009a2 009b2 009d2 009e2 009f2 009g2 009h2 009i2 009j2 011a2 011b2 011d2 011e2 011f2 011g2 011h2 011i2 "
     u"011j2 058*2",
     allSeasons},
    {u"GENERIC WORLD", u"055*2 056*2", allSeasons},
    {u"GENERIC WORLD", u"002c2 003c2 005c2 006c2 009c2 011c2 050c2 051c2 052c2", allSeasons},
    {u"GENERIC WORLD", u"123*2 124*2 125*2 126*2 127*2", allSeasons},
    {u"UT EUROPE", u"eugol eupar EuIndu", allSeasons},
    {u"UTIND", u"034*2 038*2", allSeasons},
    {u"GENERIC WORLD", u"003*2", allSeasons},
    {u"GENERIC WORLD", u"139b2 140b2 141b2", u"sp1.bmp su1.bmp fa1.bmp wi1.bmp"},
    {u"GENERIC WORLD", u"142b2 143b2", u"su1.bmp"},
    {u"DUTCH", u"005a2 008a2", allSeasons},
    {u"GENERIC WORLD", u"002*2 022*2", allSeasons},
    // A "b" file is copied under the name of its "h" twin: both must exist.
    {u"GENERIC WORLD", u"004b2 005b2 007b2 008b2 029b2 031b2 033b2 035b2 037b2 039b2 041b2 043b2 045b2 047b2",
     allSeasons},
    {u"GENERIC WORLD", u"004h2 005h2 007h2 008h2 029h2 031h2 033h2 035h2 037h2 039h2 041h2 043h2 045h2 047h2",
     allSeasons},
    // The pictures that the sample dialog opens.
    {u"GENERIC WORLD", u"029h2", u"sp6.bmp su6.bmp fa6.bmp wi6.bmp"},
    {u"GENERIC WORLD", u"011b2", u"sp5.bmp su5.bmp fa5.bmp wi5.bmp"},
    {u"GENERIC WORLD", u"006A2", u"sp7.bmp su7.bmp fa7.bmp wi7.bmp"},
    {u"GENERIC WORLD", u"016b2", u"sp3.bmp su3.bmp fa3.bmp wi3.bmp"},
    {u"GENERIC WORLD", u"003b2", u"su3.bmp wi3.bmp"},
    {u"GENERIC WORLD", u"007b2 004b2 009b2", u"sp2.bmp su2.bmp fa2.bmp wi2.bmp"},
    {u"DUTCH", u"008a2 005a2", u"sp2.bmp su2.bmp fa2.bmp wi2.bmp"},
    {u"GENERIC WORLD", u"056a2 003c2", u"su3.bmp"},
    {u"UT EUROPE", u"eugol", u"sp1.bmp su1.bmp fa1.bmp wi1.bmp"},
    {u"UTIND", u"034b2", u"su4.bmp"},
};

QStringList words(const char16_t* text) {
    return QString::fromUtf16(text).split(u' ', Qt::SkipEmptyParts);
}

bool holdsMatch(const std::vector<BaseImage>& stock, const QString& folder, const QString& mask) {
    for (const BaseImage& image : stock)
        if (image.resourceFolder == folder && matchesMask(image.fileName, mask)) return true;
    return false;
}

std::set<QString> pathsOf(const std::vector<BaseImage>& stock) {
    std::set<QString> paths;
    for (const BaseImage& image : stock)
        paths.insert(image.resourceFolder + u'\\' + image.fileName.toLower());
    return paths;
}

TEST(BaseImageList, hasAFileForEverythingASetAsksFor) {
    const auto stock = baseImageList(1);
    for (const Demand& demand : demands)
        for (const QString& pattern : words(demand.patterns))
            for (const QString& ending : words(demand.endings))
                EXPECT_TRUE(holdsMatch(stock, QString::fromUtf16(demand.folder), pattern + ending))
                    << (pattern + ending).toStdString();
}

TEST(BaseImageList, hasAboutAThousandFilesADensityAndNoNameTwice) {
    const std::vector<std::size_t> counts = {baseImageList(1).size(), baseImageList(4).size()};
    EXPECT_GE(counts[0], 950u);
    EXPECT_LE(counts[0], 1150u);
    EXPECT_GE(counts[1], 3800u);
    EXPECT_LE(counts[1], 4300u);
    for (int density = lowestStockDensity; density <= highestStockDensity; ++density) {
        const auto stock = baseImageList(density);
        EXPECT_EQ(pathsOf(stock).size(), stock.size()) << "density " << density;
    }
}

TEST(BaseImageList, keepsItsFilesAtAHigherDensity) {
    for (int density = lowestStockDensity; density < highestStockDensity; ++density) {
        const auto larger = pathsOf(baseImageList(density + 1));
        for (const QString& path : pathsOf(baseImageList(density)))
            EXPECT_TRUE(larger.contains(path)) << path.toStdString();
    }
}

TEST(BaseImageList, spellsNamesAsTheSimulatorDoes) {
    const auto stock = baseImageList(6);
    for (const BaseImage& image : stock) {
        if (image.resourceFolder == u"UT EUROPE") continue;
        EXPECT_TRUE(matchesMask(image.fileName, u"????2???.bmp")) << image.fileName.toStdString();
    }
    EXPECT_TRUE(pathsOf(stock).contains(u"UT EUROPE\\euindufa1.bmp"_s));
    EXPECT_TRUE(pathsOf(stock).contains(u"GENERIC WORLD\\006a2sp7.bmp"_s));
}

TEST(BaseImageList, refusesADensityItCannotGive) {
    EXPECT_THROW(baseImageList(0), Error);
    EXPECT_THROW(baseImageList(highestStockDensity + 1), Error);
}

} // namespace
} // namespace morvane
