#include "base_image_list.h"

#include "core/error.h"
#include "support/printing.h"

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

} // namespace
} // namespace morvane
