#include "base_image_drawing.h"
#include "core/error.h"
#include "core/literals.h"
#include "sky_art.h"
#include "splash_screen.h"
#include "support/testing.h"

#include <QCryptographicHash>
#include <QSet>
#include <set>

namespace morvane {
namespace {

QByteArrayView bytesOf(const Picture& picture) {
    return {picture.rows.data(), static_cast<qsizetype>(picture.rows.size())};
}

/// A stock made elsewhere, or with another compiler or optimisation, must be the same stock. Whoever changes
/// the art on purpose looks at the contact sheet and writes the new digest here.
TEST(BaseImageDrawing, givesEveryFileAPictureOfItsOwnAndTheSameOnEverySystem) {
    std::vector<BaseImage> images = baseImageList(1);
    std::erase_if(images, [](const BaseImage& image) {
        return image.resourceFolder == u"GENERIC WORLD" && !image.landClass.startsWith(u"00") &&
               !image.landClass.startsWith(u"029") && !image.landClass.startsWith(u"056");
    });
    for (const BaseImage& night : nightImageList(1))
        if (night.landClass == u"029b" || night.landClass == u"008b" || night.landClass == u"021a")
            images.push_back(night);
    QCryptographicHash digest(QCryptographicHash::Sha1);
    for (const BaseImage& image : images)
        digest.addData(bytesOf(drawBaseImage(image)));
    EXPECT_EQ(digest.result().toHex().toStdString(), "f8f7e2b38f856e6252089538ccc8ddce6de356ea");
}

TEST(BaseImageList, growsWithTheDensityByNewNamesOnly) {
    std::set<QString> smaller;
    for (int density = lowestStockDensity; density <= highestStockDensity; ++density) {
        const auto stock = baseImageList(density);
        std::set<QString> paths;
        for (const BaseImage& image : stock)
            paths.insert(image.resourceFolder + u'\\' + image.fileName.toLower());
        EXPECT_EQ(paths.size(), stock.size()) << density; // no name twice
        EXPECT_TRUE(std::includes(paths.begin(), paths.end(), smaller.begin(), smaller.end())) << density;
        smaller = paths;
    }
    EXPECT_NEAR(static_cast<double>(baseImageList(1).size()), 1050, 100);
    EXPECT_NEAR(static_cast<double>(baseImageList(4).size()), 4050, 250);
    EXPECT_THROW(baseImageList(lowestStockDensity - 1), Error);
    EXPECT_THROW(baseImageList(highestStockDensity + 1), Error);
}

/// Whoever changes the art on purpose looks at the sky sets' colours and writes the new digest here.
TEST(SkyArt, everyFolderHasADayOfMapsOfItsOwn) {
    EXPECT_EQ(skyFolders().join(u'|'),
              u"Default|Default Softer|Horizons|Pro Sky|Sunny|Tropical|Overcast|Sunrise|Sunset"_s);
    QCryptographicHash digest(QCryptographicHash::Sha1);
    QSet<QString> names; // in one set's folder those of all times must find room
    for (const QString& folder : skyFolders())
        for (int index = 0; const QString& name : skyMapNames(folder)) {
            const Picture map = drawSkyMap(folder, index++);
            ASSERT_EQ(map.rows.size(), std::size_t{32 * 32 * 3});
            digest.addData(bytesOf(map));
            names << name;
        }
    EXPECT_EQ(digest.result().toHex().toStdString(), "5c11e2ca0a1dd4f13dc6455b1b2fb12483dbf9d9");
    EXPECT_EQ(names.size(), 3 * 24);
    EXPECT_EQ(skyMapNames(u"Overcast"_s), skyMapNames(u"Default"_s));
    EXPECT_THROW(drawSkyMap(u"Average"_s, 0), Error);
}

TEST(Splash, isOfTheSizeAndDepthThatTheSimulatorShows) {
    QSet<QByteArray> pictures;
    for (const QString& word : {u"SKC"_s, u"FEW"_s, u"SCT"_s, u"BKN"_s, u"OVC"_s}) {
        const QImage splash = drawSplash(word);
        EXPECT_EQ(splash.size(), QSize(500, 350));
        EXPECT_EQ(splash.depth(), 24);
        pictures << QByteArray(reinterpret_cast<const char*>(splash.constBits()), splash.sizeInBytes());
    }
    EXPECT_EQ(pictures.size(), 5);
}

} // namespace
} // namespace morvane
