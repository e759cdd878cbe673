#include "sky/sky_tuning.h"

#include "app/exit_flow.h"
#include "core/ini_file.h"
#include "imaging/pixel_patterns.h"
#include "sets/slider_values.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_groups.h"
#include "sky/sky_install.h"
#include "sky/sky_tuning_state.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

struct SkyTuningTest : testing::Test {
    bool isColoured() { return test::bytesOf(tuning.resultDib()) != test::bytesOf(tuning.sourceDib()); }
    SkyGroup& group(int number) {
        return skyRecord(session.state<SkyColourTables>().skyPaletteGroups, number);
    }
    bool shows(const QString& baseSet) {
        SkySample sample(session, SkyTable::palette);
        EXPECT_TRUE(sample.openImage(skySampleFile(session, baseSet)));
        return test::bytesOf(sample.sourceDib()) == test::bytesOf(tuning.sourceDib());
    }

    test::SkyInstall install;
    Session& session = install.session;
    SkyTuning tuning{session};
    const FilePath settings = install.home() / u"LastSkySettings.cfg";
};

// A place on the palette picture.
constexpr float topRow = 3, water = 100;

TEST_F(SkyTuningTest, settingsComeBackWithTheMapsRegions) {
    tuning.open();
    tuning.optCloudCover(2);
    session.state<SkyTuningState>().baseSet = u"Default Softer"_s;
    tuning.clickPalette(water, topRow);
    tuning.SkyProcess({-1, 2, -3, 4, -5, 6});
    group(3).red = 12.75f;
    group(4).blue = -0.5f;
    group(10).PixelXLow = 17; // the file gets the map's
    saveLastSkySettings(session);

    session.state<SkyTuningState>() = {};
    session.state<SkyColourTables>().skyPaletteGroups = {};
    EXPECT_EQ(tuning.open(), SliderValues{});
    EXPECT_EQ(session.state<SkyTuningState>().cloudCover, "Partly Cloudy");
    EXPECT_EQ(session.state<SkyTuningState>().cloudIndex, 3);
    EXPECT_EQ(session.state<SkyTuningState>().baseSet, "Default Softer");
    EXPECT_EQ(session.state<SkyTuningState>().selectedGroup, 1);
    EXPECT_EQ(skyColourString(group(6), skyGroup(6)), "-1:2:-3:4:-5:6:6:31:32");
    EXPECT_EQ(group(3).red, 12); // cut, not rounded
    EXPECT_EQ(group(4).blue, 0);
    EXPECT_EQ(group(10).PixelXLow, 1);
    EXPECT_EQ(GetIniString(install.files, u"Red"_s, u"3"_s, settings), "12.75");
    EXPECT_TRUE(isColoured()); // all ten groups apply at once
}

TEST_F(SkyTuningTest, settingsOfAnotherHandAreTakenAsTheyAre) {
    test::writeFile(settings,
                    "[Cloud Cover]\r\n1= A very foggy morning \r\n[Texture Set Group]\r\n1=Sunny\r\n"
                    "[Red]\r\n1=250\r\n2=x\r\n10=-7.9\r\n[PixelY]\r\n1=99999999999\r\n"
                    "[Kept]\r\nas=it is\r\n");
    EXPECT_EQ(tuning.open()[1], 100); // what a slider can show
    EXPECT_EQ(session.state<SkyTuningState>().cloudCover, "A very foggy mo");
    EXPECT_EQ(session.state<SkyTuningState>().cloudIndex, 1);
    EXPECT_TRUE(shows(u"Sunny"_s));
    EXPECT_EQ(group(2).red, 0);
    EXPECT_EQ(group(10).red, -7);
    EXPECT_EQ(group(10).PixelY, 0);
    EXPECT_TRUE(install.user.told().isEmpty());
    saveLastSkySettings(session);
    EXPECT_EQ(GetIniString(install.files, u"Cloud Cover"_s, u"1"_s, settings), "A very foggy mo");
    EXPECT_EQ(GetIniString(install.files, u"Kept"_s, u"as"_s, settings), "it is");
}

TEST_F(SkyTuningTest, exitWritesOnlyWhatWasLoaded) {
    const QByteArray contents = "[Cloud Cover]\r\n1=Overcast\r\n[Texture Set Group]\r\n1=Sunny\r\n";
    test::writeFile(settings, contents);
    exitProgram(session);
    EXPECT_EQ(test::readFile(settings), contents);
    tuning.open();
    session.CommandLineRun = true; // the store is closed: nothing can be asked of it
    exitProgram(session);
    EXPECT_EQ(GetIniString(install.files, u"PixelXHigh"_s, u"6"_s, settings), "31");
    EXPECT_EQ(GetIniString(install.files, u"Cloud Cover"_s, u"1"_s, settings), "Overcast");
    EXPECT_TRUE(install.user.told().isEmpty());
    install.files.remove(settings);
    install.files.makeFolder(settings); // it cannot be written
    exitProgram(session);
    EXPECT_EQ(install.user.told().size(), 1);
}

} // namespace
} // namespace morvane
