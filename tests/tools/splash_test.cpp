#include "splash_lettering.h"
#include "splash_screen.h"

#include "core/literals.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

/// Mean of blue minus red over the sky's upper half: large for a blue sky.
double blueness(const QImage& splash) {
    double sum = 0;
    for (int y = 0; y < 100; ++y)
        for (int x = 0; x < splash.width(); ++x)
            sum += qBlue(splash.pixel(x, y)) - qRed(splash.pixel(x, y));
    return sum / (100.0 * splash.width());
}

TEST(Splash, skyGreysWithTheCover) {
    double bluer = 256;
    for (const QString& word : {u"SKC"_s, u"FEW"_s, u"SCT"_s, u"BKN"_s, u"OVC"_s}) {
        const QImage splash = drawSplash(word);
        EXPECT_EQ(splash.size(), QSize(500, 350));
        EXPECT_EQ(splash.depth(), 24);
        EXPECT_LT(blueness(splash), bluer - 3) << word.toStdString();
        bluer = blueness(splash);
    }
}

TEST(SplashLettering, hasEveryLetterOfFileNamesAndCaptions) {
    const QString letters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789.,:-_/()%&"_s;
    for (const QChar letter : letters)
        EXPECT_FALSE(letteringPath(letter, 20).isEmpty()) << letter.toLatin1();
}

} // namespace
} // namespace morvane
