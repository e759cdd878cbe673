#include "made_install.h"

#include "ground/texture_catalogue.h"
#include "ground/tropical_files.h"
#include "imaging/bitmap_header.h"
#include "imaging/picture_reader.h"
#include "night/night_files.h"
#include "night/night_samples.h"
#include "night/night_sets.h"
#include "sets/catalogue_file.h"
#include "sets/sample_choice.h"
#include "support/printing.h"

#include <QImage>
#include <QSet>
#include <cmath>

namespace morvane {
namespace {

using StockFiles = test::MadeInstall;
using StockCatalogue = test::StartedInstall;

const QStringList resourceFolders{u"GENERIC WORLD"_s, u"UT EUROPE"_s,           u"UTIND"_s,
                                  u"DUTCH"_s,         u"GENERIC WORLD NIGHT"_s, u"DUTCH NIGHT"_s};
constexpr int textureSize = 43778;   ///< of 256 x 256 pixels with all levels
constexpr double leastLikeness = 26; ///< decibels; town centres by night are the hardest to compress

/// Likeness of two pictures of one size, in decibels.
double likeness(const Picture& one, const Picture& other) {
    double squares = 0;
    for (std::size_t i = 0; i < one.rows.size(); ++i)
        squares += (one.rows[i] - other.rows[i]) * (one.rows[i] - other.rows[i]);
    return 10 * std::log10(255.0 * 255.0 * static_cast<double>(one.rows.size()) / squares);
}

/// One file in eight is decoded: pixel by pixel all of them would take longer than making the install.
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
                EXPECT_GT(likeness(readPicture(base), readPicture(body)), leastLikeness)
                    << name.toStdString();
            }
        }
    }
}

TEST_F(StockFiles, simulatorHasTexturesOfItsOwnUnderTheSameNames) {
    // The options replace only what is there: every Dutch file and both forms of the tropics.
    const auto namesForTheOptions = [this] {
        QStringList names =
            files.list(home() / u"DUTCH", u"*"_s) + files.list(home() / u"DUTCH NIGHT", u"*"_s);
        for (const QString& pattern : tropicalPatterns(TropicalForm::b))
            names += files.list(home() / u"GENERIC WORLD", pattern + u"*"_s);
        for (QString& name : names)
            name = (name.contains(u"b2") ? tropicalName(name) : name).toUpper();
        return names;
    };
    const std::pair<const char16_t*, QStringList> places[] = {
        {u"Scenery\\World\\Texture", {u"GENERIC WORLD"_s, u"UT EUROPE"_s, u"GENERIC WORLD NIGHT"_s}},
        {u"Scenery\\UTEurLC\\Texture", {u"UTIND"_s}}};
    for (const auto& [place, folders] : places) {
        QStringList expected;
        for (const QString& folder : folders) {
            for (const QString& name : files.list(home().child(folder), u"*.*"_s)) {
                expected << name.toUpper();
                const QByteArray own = files.read((simulator() / place).child(name.toUpper()));
                const QByteArray body = files.read(home().child(folder).child(name));
                EXPECT_EQ(own.size(), textureSize);
                EXPECT_EQ(headerOf(own).kind, PixelKind::dxt1);
                // A change of the ground must be seen.
                EXPECT_NE(own, body) << name.toStdString();
                // Near black differs by little, whatever its colour.
                if (isSampled(name) && !folder.endsWith(u" NIGHT")) {
                    EXPECT_LT(likeness(readPicture(own), readPicture(body)), 32) << name.toStdString();
                }
            }
        }
        if (place == places[0].first) expected += namesForTheOptions();
        expected.removeDuplicates();
        expected.sort();
        // Spelled in upper case on the disk, one file a name.
        QStringList found = files.list(simulator() / place, u"*.*"_s);
        found.sort();
        EXPECT_EQ(found, expected);
    }
}

TEST_F(StockCatalogue, everySampleOfTheNightIsThere) {
    for (const SampleChoice& sample : nightSamples())
        EXPECT_TRUE(files.exists(nightSampleTexture(session.AppPath, sample.key)))
            << sample.key.toStdString();
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

TEST_F(StockFiles, splashesAreDifferentBitmapsOf24Bits) {
    QSet<QByteArray> contents;
    for (const char16_t* name : {u"SKC", u"FEW", u"SCT", u"BKN", u"OVC"}) {
        const FilePath file = home() / u"Media" / u"dlgSplash%1.bmp"_s.arg(QStringView(name));
        const QByteArray splash = files.read(file);
        EXPECT_EQ(splash.at(28), 24); // bits a pixel
        EXPECT_EQ(readPicture(splash).rows.size(), std::size_t{1500} * 350);
        contents << splash;
    }
    const QByteArray own = files.read(home() / u"Media\\dlgsplash.bmp");
    contents << own;
    EXPECT_EQ(contents.size(), 6);
    EXPECT_EQ(files.read(simulator() / u"Uires\\dlgsplash.bmp"), own);
}

TEST_F(StockFiles, halosAreBrightInTheMiddleAndBlackAtTheirEdge) {
    QSet<QByteArray> contents;
    for (const char16_t* name : {u"halo.bmp", u"halodefault.bmp"}) {
        const QByteArray halo = files.read(home() / u"Media" / name);
        const QImage picture = QImage::fromData(halo);
        EXPECT_EQ(picture.size(), QSize(64, 64));
        EXPECT_GT(qGray(picture.pixel(32, 32)), 240);
        for (int x = 0; x < 64; ++x)
            EXPECT_EQ(qGray(picture.pixel(x, 0)), 0) << "a square would stand round each lamp";
        contents << halo;
    }
    EXPECT_EQ(contents.size(), 2);
    EXPECT_EQ(files.read(simulator() / u"Texture\\halo.bmp"), files.read(home() / u"Media\\halodefault.bmp"));
}

TEST_F(StockCatalogue, noBaseImageIsWithoutUse) {
    QSet<QString> used, there;
    for (const CatalogueFile& file : TextureCatalogue(session).popTextureList(0, 0, true, u"7-Storm"_s))
        used << file.sourceFolder.child(file.fileName).text();
    for (const CatalogueFile& file : popNightTextureList(session, u"7-Storm"_s))
        used << file.sourceFolder.child(file.fileName).text();
    for (const QString& folder : resourceFolders) {
        const FilePath resources = (home() / u"Resources").child(folder);
        for (const QString& name : files.list(resources, u"*.*"_s))
            there << resources.child(name).text();
    }
    EXPECT_EQ(used, there);
}

} // namespace
} // namespace morvane
