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
        {u"default"_s, u"summer"_s, u"029h2su6"_s, {}},
        {u"grassland"_s, u"winter"_s, u"006A2wi7"_s, {}},
        {u"desert"_s, u"spring"_s, u"003b2wi3"_s, {}}, // its winter, wanted
        {u"rural"_s, u"fall"_s, u"007b2fa2"_s, u"008a2fa2"_s},
        {u"crops"_s, u"winter"_s, u"004b2wi2"_s, u"005a2wi2"_s},
        {u"rocks"_s, u"winter"_s, u"056a2su3"_s, {}},
    };
    for (const auto& [key, season, generic, dutch] : cases) {
        const QString ofTheWorld = u"Resources\\GENERIC WORLD\\"_s + generic + u".bmp"_s;
        EXPECT_EQ(fileOf(key, season, false), ofTheWorld);
        EXPECT_EQ(fileOf(key, season, true),
                  dutch.isEmpty() ? ofTheWorld : u"Resources\\DUTCH\\"_s + dutch + u".bmp"_s);
    }
    EXPECT_EQ(fileOf(u"utgolf"_s, u"winter"_s, false), u"Resources\\UT EUROPE\\eugolwi1.bmp"_s);
    EXPECT_EQ(fileOf(u"utind"_s, u"fall"_s, true), u"Resources\\UTIND\\034b2su4.bmp"_s);
    const std::pair<QString, QString> unknown[] = {
        {u"City"_s, u"summer"_s}, {u"ocean"_s, u"fall"_s}, {{}, {}}, {u"city"_s, u"Summer"_s}};
    for (const auto& [key, season] : unknown)
        EXPECT_TRUE(fileOf(key, season, true).isEmpty()) << key.toStdString() << ' ' << season.toStdString();
}

TEST(SampleTextures, theDialogOffersNoEntryWithoutAFile) {
    QSet<QString> files;
    for (const SampleChoice& type : sampleTextureTypes())
        for (const SampleChoice& season : sampleSeasons())
            files << fileOf(type.key, season.key, false);
    EXPECT_FALSE(files.contains(QString()));
    EXPECT_EQ(files.size(), 37);
}

} // namespace
} // namespace morvane
