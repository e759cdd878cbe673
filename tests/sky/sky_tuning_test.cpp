#include "sky/sky_tuning.h"

#include "app/exit_flow.h"
#include "core/ini_file.h"
#include "imaging/pixel_patterns.h"
#include "sets/slider_values.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_groups.h"
#include "sky/sky_install.h"
#include "sky/sky_palette_map.h"
#include "sky/sky_strings.h"
#include "sky/sky_tuning_state.h"
#include "support/testing.h"

namespace morvane::test {
namespace {

struct SkyTuningTest : testing::Test {
    bool isColoured() const { return bytesOf(tuning.resultDib()) != bytesOf(tuning.sourceDib()); }
    SkyGroup& group(int number) {
        return skyRecord(session.state<SkyColourTables>().skyPaletteGroups, number);
    }
    bool shows(const QString& baseSet) {
        SkySample sample(session, SkyTable::palette);
        EXPECT_TRUE(sample.openImage(skySampleFile(session, baseSet)));
        return bytesOf(sample.sourceDib()) == bytesOf(tuning.sourceDib());
    }

    SkyInstall install;
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
    writeFile(settings, "[Cloud Cover]\r\n1= A very foggy morning \r\n[Texture Set Group]\r\n1=Sunny\r\n"
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
    writeFile(settings, contents);
    exitProgram(session);
    EXPECT_EQ(readFile(settings), contents);
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

/// Which groups draw, in which order, and which take another's numbers: the sum holds all ten groups of a set
/// whose draws are all different.
TEST(SkyStrings, everyGroupFollowsItsRule) {
    SmallInstall install;
    const struct {
        int cloudIndex;
        int familyA, familyB; ///< sums
    } cases[] = {
        {1, 65409, 55394}, {2, 51212, 57609}, {3, 12433, 4566}, {4, 26304, 34117}, {5, 33039, 33039}};
    const QStringList familyA{"Default", "Default Softer", "Horizons", "Pro Sky"},
        familyB{"Sunny", "Tropical"};
    for (const auto& [cloudIndex, sumOfA, sumOfB] : cases)
        for (const QString& base : familyA + familyB) {
            QStringList sets;
            for (const auto& numbers :
                 {std::vector{0.0}, std::vector{0.5}, std::vector{0.99999999}, mixedNumbers(99991)}) {
                install.random = {};
                install.random.numbers = numbers;
                for (const QString& text : drawSkyStrings(install.session, cloudIndex, base))
                    sets << text.section(u':', 0, 5);
            }
            EXPECT_EQ(qChecksum(sets.join(u' ').toLatin1()), familyA.contains(base) ? sumOfA : sumOfB)
                << cloudIndex << base.toStdString();
        }
}

/// The cells are 7.5 or 8 wide with gaps of a tenth behind them, and two are of other widths, as ever: the
/// sum holds every end of every cell.
TEST(PaletteMap, everyCellWithItsEndsAndTheGapBehindIt) {
    QByteArray cells;
    for (int twentieth = -20; twentieth <= 4840; ++twentieth) {
        const float place = static_cast<float>(twentieth / 20.0);
        const int column = mouseToPixelX(place), row = mouseToPixelY(place);
        cells.append(static_cast<char>(column));
        EXPECT_EQ(row, column == 0 ? 0 : 33 - column) << place;
    }
    EXPECT_EQ(qChecksum(cells), 22812);
    QByteArray tips;
    constexpr std::pair<float, float> groups[] = {{3, 3},  {12, 3},  {20, 3},    {28, 3},   {35, 3},
                                                  {42, 3}, {240, 3}, {120, 228}, {60, 237}, {3, 12}};
    for (const auto& [x, y] : groups)
        tips += SkyTuning::tipAt(x, y).value_or(u""_s).toUtf8();
    EXPECT_EQ(qChecksum(tips), 25376)
        << "the tip of dark water speaks of light water, and one has a slip: wanted";
}

} // namespace
} // namespace morvane::test
