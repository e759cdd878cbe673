#include "ground/sample_textures.h"

#include "sets/sample_choice.h"
#include "support/printing.h"

#include <QSet>
#include <gtest/gtest.h>

namespace morvane {
namespace {

QString fileOf(const QString& key, const QString& season, bool isDutch) {
    return sampleTexture(FilePath(u"/home"_s), key, season, isDutch).relative();
}

TEST(SampleTextures, eachChoiceHasItsFile) {
    const struct {
        QString key, season, generic, dutch;
    } cases[] = {
        {u"default"_s, u"summer"_s, u"GENERIC WORLD\\029h2su6.bmp"_s, {}},
        {u"city"_s, u"spring"_s, u"GENERIC WORLD\\029h2sp6.bmp"_s, {}},
        {u"forest"_s, u"fall"_s, u"GENERIC WORLD\\011b2fa5.bmp"_s, {}},
        {u"grassland"_s, u"winter"_s, u"GENERIC WORLD\\006A2wi7.bmp"_s, {}},
        {u"swamp"_s, u"summer"_s, u"GENERIC WORLD\\016b2su3.bmp"_s, {}},
        {u"desert"_s, u"spring"_s, u"GENERIC WORLD\\003b2wi3.bmp"_s, {}}, // its winter, wanted
        {u"desert"_s, u"fall"_s, u"GENERIC WORLD\\003b2su3.bmp"_s, {}},
        {u"rural"_s, u"fall"_s, u"GENERIC WORLD\\007b2fa2.bmp"_s, u"DUTCH\\008a2fa2.bmp"_s},
        {u"crops"_s, u"winter"_s, u"GENERIC WORLD\\004b2wi2.bmp"_s, u"DUTCH\\005a2wi2.bmp"_s},
        {u"shrubs"_s, u"spring"_s, u"GENERIC WORLD\\009b2sp2.bmp"_s, {}},
        {u"rocks"_s, u"winter"_s, u"GENERIC WORLD\\056a2su3.bmp"_s, {}},
        {u"red"_s, u"spring"_s, u"GENERIC WORLD\\003c2su3.bmp"_s, {}},
        {u"utgolf"_s, u"winter"_s, u"UT EUROPE\\eugolwi1.bmp"_s, {}},
        {u"utind"_s, u"fall"_s, u"UTIND\\034b2su4.bmp"_s, {}},
    };
    for (const auto& [key, season, generic, dutch] : cases) {
        EXPECT_EQ(fileOf(key, season, false), u"Resources\\"_s + generic);
        EXPECT_EQ(fileOf(key, season, true), u"Resources\\"_s + (dutch.isEmpty() ? generic : dutch));
    }
}

TEST(SampleTextures, nothingForWhatTheTableDoesNotKnow) {
    const std::pair<QString, QString> unknown[] = {
        {u"City"_s, u"summer"_s}, {u"ocean"_s, u"fall"_s}, {{}, {}}, {u"city"_s, u"Summer"_s}};
    for (const auto& [key, season] : unknown)
        EXPECT_TRUE(fileOf(key, season, true).isEmpty()) << key.toStdString() << ' ' << season.toStdString();
}

TEST(SampleTextures, theDialogOffersNoEntryWithoutAFile) {
    EXPECT_EQ(sampleSeasons().size(), 4u);
    QSet<QString> keys{defaultSample}; // not offered
    for (const SampleChoice& type : sampleTextureTypes()) {
        keys << type.key;
        for (const SampleChoice& season : sampleSeasons())
            EXPECT_FALSE(fileOf(type.key, season.key, false).isEmpty()) << type.key.toStdString();
    }
    EXPECT_EQ(keys.size(), 13);
}

} // namespace
} // namespace morvane
