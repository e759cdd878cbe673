#include "splash_screen.h"

#include "core/literals.h"

#include <QSet>
#include <gtest/gtest.h>

namespace morvane {
namespace {

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
