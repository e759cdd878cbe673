#include "made_install.h"

#include "imaging/bitmap_header.h"
#include "imaging/picture_reader.h"
#include "imaging/texture_codec.h"
#include "night/night_files.h"
#include "night/night_sets.h"
#include "sets/catalogue_file.h"
#include "support/printing.h"
#include "support/small_install.h"

namespace morvane::test {
namespace {

using StockFiles = MadeInstall;
using StockCatalogue = StartedInstall;

const QStringList resourceFolders{u"GENERIC WORLD"_s, u"UT EUROPE"_s,           u"UTIND"_s,
                                  u"DUTCH"_s,         u"GENERIC WORLD NIGHT"_s, u"DUTCH NIGHT"_s};
constexpr int textureSize = 43778; ///< of 256 x 256 pixels with all levels
/// One file in eight is compressed again: all of them would take as long as making the install.
bool isSampled(const QString& name) {
    return qChecksum(name.toLatin1()) % 8 == 0;
}

BitmapHeader headerOf(const QByteArray& file) {
    return readBitmapHeader(
        {reinterpret_cast<const std::uint8_t*>(file.constData()), static_cast<std::size_t>(file.size())});
}

TEST_F(StockFiles, everyBaseImageHasItsBodyAndTheBodyShowsIt) {
    for (const QString& folder : resourceFolders) {
        const FilePath resources = (home() / u"Resources").child(folder), bodies = home().child(folder);
        const QStringList names = files.list(resources, u"*.*"_s);
        EXPECT_FALSE(names.isEmpty());
        EXPECT_EQ(files.list(bodies, u"*.*"_s), names);
        for (const QString& name : names) {
            const QByteArray base = files.read(resources.child(name)), body = files.read(bodies.child(name));
            const BitmapHeader header = headerOf(base);
            ASSERT_TRUE(header.kind == PixelKind::plain && header.bitsPerPixel == 24) << name.toStdString();
            ASSERT_EQ(std::pair(header.width, header.height), std::pair(256, 256)) << name.toStdString();
            EXPECT_EQ(body.size(), textureSize);
            if (isSampled(name)) {
                EXPECT_EQ(body, compressTexture(readPicture(base))) << name.toStdString();
            }
        }
    }
}

TEST_F(StockFiles, deliveredFlightsAndSkiesStandTwice) {
    const std::tuple<FilePath, FilePath, int> copies[] = {
        {home() / u"Resources\\Sky\\Default", home() / u"Sky Texture Sets\\Default", 24},
        {home() / u"Flights", simulator() / u"Flights\\Morvane", 6}};
    for (const auto& [one, other, count] : copies) {
        EXPECT_EQ(contentsBelow(one).size(), count);
        EXPECT_TRUE(contentsBelow(one) == contentsBelow(other)) << one.text().toStdString();
    }
}

TEST_F(StockCatalogue, deliveredNightSetsHaveTheirFiles) {
    QStringList contents;
    for (const auto& set : loadedNightSets(session)) {
        if (set->TextureSet == u"Default") continue;
        for (const CatalogueFile& file : popNightTextureList(session, set->TextureSet))
            EXPECT_TRUE(files.exists(file.targetFolder.child(file.fileName)))
                << set->TextureSet.toStdString() << ' ' << file.fileName.toStdString();
        contents << files.read(nightSetFolder(session, set->TextureSet) / u"Texture\\029b2lm1.bmp").toHex();
    }
    contents.removeDuplicates();
    EXPECT_EQ(contents.size(), 4) << "no two have the same colours";
    for (const QString& folder : NightKind::facts().subfolders)
        EXPECT_TRUE(files.list(home() / u"TempBitmaps" / folder, u"*.*"_s).isEmpty());
}

} // namespace
} // namespace morvane::test
