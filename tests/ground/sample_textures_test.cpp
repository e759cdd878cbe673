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

TEST(SampleTextures, theDialogOffersNoEntryWithoutAFile) {
    QSet<QString> files;
    for (const SampleChoice& type : sampleTextureTypes())
        for (const SampleChoice& season : sampleSeasons())
            files << fileOf(type.key, season.key, false);
    EXPECT_FALSE(files.contains(QString()));
    EXPECT_EQ(files.size(), 37);
    EXPECT_EQ(fileOf(u"crops"_s, u"winter"_s, true), u"Resources\\DUTCH\\005a2wi2.bmp"_s);
    EXPECT_EQ(fileOf(u"desert"_s, u"spring"_s, true), u"Resources\\GENERIC WORLD\\003b2wi3.bmp"_s)
        << "its winter, wanted";
    EXPECT_TRUE(fileOf(u"ocean"_s, u"fall"_s, true).isEmpty());
}

} // namespace
} // namespace morvane
