#include "skin_icons.h"
#include "skin_pages.h"
#include "skin_strokes.h"

#include "core/error.h"
#include "skin_palette.h"

#include <gtest/gtest.h>
#include <map>

namespace morvane {
namespace {

using namespace skin;

/// Between paper and the blue of texts, each channel lies between those of the two.
bool isPaperToBlue(const QColor& colour) {
    return colour.red() <= paperTop.red() && colour.green() >= textBlue.green() &&
           colour.green() <= paperTop.green() && colour.blue() >= textBlue.blue();
}

TEST(SkinIcons, lieOnKeyColourAndAreBlendedWithPaperOnly) {
    for (const IconImage& icon : iconImages()) {
        const QImage picture = drawIcon(icon, 1);
        int drawn = 0;
        for (int y = 0; y < icon.side; ++y)
            for (int x = 0; x < icon.side; ++x) {
                const QColor colour = picture.pixelColor(x, y);
                if (colour == keyColour) continue;
                EXPECT_TRUE(isPaperToBlue(colour)) << icon.name.toString().toStdString();
                ++drawn;
            }
        EXPECT_EQ(picture.pixelColor(0, 0), keyColour);
        EXPECT_GT(drawn, icon.side * icon.side / 12) << icon.name.toString().toStdString();
    }
}

TEST(SkinIcons, misspeltNamesShowTheExclamation) {
    std::map<QString, QImage> pictures;
    for (const IconImage& icon : iconImages())
        pictures[icon.name.toString()] = drawIcon(icon, 1);
    for (const QString& name : {u"icon_Exlamation"_s, u"icon_Exclamtion"_s})
        EXPECT_EQ(pictures.at(name), pictures.at(u"icon_Exclamation"_s));
}

TEST(SkinIcons, coversFillQuarterByQuarterFromTheTopRight) {
    for (const CoverImage& cover : coverImages()) {
        const QImage disc = drawCover(cover, 2);
        const int near = cover.side * 2 / 3, far = cover.side * 4 / 3;
        const QPoint quarters[] = {{far, near}, {far, far}, {near, far}, {near, near}};
        for (int quarter = 0; quarter < 4; ++quarter)
            EXPECT_EQ(disc.pixelColor(quarters[quarter]), quarter < cover.quarters ? textBlue : keyColour)
                << cover.name.toString().toStdString() << quarter;
    }
}

TEST(SkinPages, haveRuleDeckAndCornersInTheirPlaces) {
    for (const PagePicture& page : pagePictures()) {
        const QImage picture = drawPage(page, 1);
        EXPECT_EQ(picture.pixelColor(300, page.ruleTop), ruleColour);
        EXPECT_NE(picture.pixelColor(300, page.ruleTop - 1), ruleColour);
        EXPECT_EQ(picture.pixelColor(0, 0), lineColour);
        EXPECT_EQ(picture.pixelColor(595, 449), lineColour);
        EXPECT_GT(qGray(picture.pixel(300, page.deckTop - 1)), 200);
        if (page.deckTop == 450) continue;
        EXPECT_EQ(picture.pixelColor(300, page.deckTop), lineColour);
        EXPECT_EQ(picture.pixelColor(300, page.deckTop + 1), deckRim);
        EXPECT_EQ(picture.pixelColor(300, page.deckTop + 2), deck);
    }
}

TEST(SkinStrokes, unknownLettersAreRefused) {
    EXPECT_THROW(strokesFrom("M 1 1 Q 2 2"), Error);
    const Strokes strokes = strokesFrom("M 1 2 L 3 4 A 10 10 5 0 90 D 1 1 1");
    EXPECT_EQ(strokes.lines.elementAt(1).y, 4);
    EXPECT_EQ(strokes.lines.elementAt(2).x, 15);
    EXPECT_NEAR(strokes.lines.currentPosition().y(), 5, 1e-9);
    EXPECT_FALSE(strokes.dots.isEmpty());
}

} // namespace
} // namespace morvane
