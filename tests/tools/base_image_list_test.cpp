#include "base_image_list.h"

#include "core/error.h"
#include "core/file_path.h"
#include "support/printing.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>
#include <set>

namespace morvane {
namespace {

std::set<QString> pathsOf(const std::vector<BaseImage>& stock) {
    std::set<QString> paths;
    for (const BaseImage& image : stock)
        paths.insert(image.resourceFolder + u'\\' + image.fileName.toLower());
    return paths;
}

TEST(BaseImageList, hasAFileForEverythingASetAsksFor) {
    const auto stock = pathsOf(baseImageList(1));
    const QString demands =
        test::readFile(FilePath(QStringLiteral(MORVANE_TEST_FOLDER "/stock_demands.txt")));
    int asked = 0;
    for (const QString& line : demands.split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u'#')) continue;
        for (const QString& pattern : line.section(u'|', 1, 1).split(u' '))
            for (const QString& ending : line.section(u'|', 2).split(u' ')) {
                const QString mask = line.section(u'|', 0, 0) + u'\\' + pattern + ending;
                const auto matches = [&](const QString& path) { return matchesMask(path, mask); };
                EXPECT_TRUE(std::any_of(stock.begin(), stock.end(), matches)) << mask.toStdString();
                ++asked;
            }
    }
    EXPECT_GT(asked, 800);
}

TEST(BaseImageList, growsWithTheDensityByNewNamesOnly) {
    std::set<QString> smaller;
    for (int density = lowestStockDensity; density <= highestStockDensity; ++density) {
        const auto stock = baseImageList(density);
        const auto paths = pathsOf(stock);
        EXPECT_EQ(paths.size(), stock.size()) << density; // no name twice
        EXPECT_TRUE(std::includes(paths.begin(), paths.end(), smaller.begin(), smaller.end())) << density;
        smaller = paths;
    }
    EXPECT_NEAR(static_cast<double>(baseImageList(1).size()), 1050, 100);
    EXPECT_NEAR(static_cast<double>(baseImageList(4).size()), 4050, 250);
    EXPECT_THROW(baseImageList(lowestStockDensity - 1), Error);
    EXPECT_THROW(baseImageList(highestStockDensity + 1), Error);
}

TEST(BaseImageList, spellsNamesAsTheSimulatorDoes) {
    for (const BaseImage& image : baseImageList(highestStockDensity))
        EXPECT_TRUE(image.resourceFolder == u"UT EUROPE" || matchesMask(image.fileName, u"????2???.bmp"))
            << image.fileName.toStdString();
}

} // namespace
} // namespace morvane
