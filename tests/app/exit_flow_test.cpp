#include "app/exit_flow.h"
#include "core/store_connection.h"
#include "ground/ground_installation.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "sets/options_in_force.h"
#include "sky/sky_installation.h"
#include "sky/sky_selection.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

struct ExitQuestion : testing::Test {
    test::SmallInstall install;
    Session& session = install.session;

    void put(const QString& ground, const QString& sky = {}) {
        session.state<GroundSelection>().SelectedGroundSet = ground;
        GroundInstallation(session).installTextureSet(true);
        session.state<SkySelection>().SelectedSkySet = sky;
        if (!sky.isEmpty()) SkyInstallation(session).installSkySet(true);
        install.user.messages.clear();
        install.user.calls.clear();
    }
};

TEST_F(ExitQuestion, namesWhatStandsThereAndResetsThatOnly) {
    install.addGroundSet("2-Storm", "Overcast", true);
    install.addSkySet("Default", "Partly Cloudy", true);
    install.addSkySet("2-Calm", "Sky Clear", true);
    const QString start = "Question|Reset MV Textures?|Morvane has detected that you have ";
    const QString end =
        " Texture Set installed. Please select the check button if you wish to reset Morvane textures "
        "to a nominal weather condition of Partly Cloudy before exiting.";
    const std::tuple<QString, QString, QString> cases[] = {
        {"2-Storm", {}, "'Overcast' Ground"},
        {"Default", "2-Calm", "'Sky Clear' Sky"},
        {"2-Storm", "2-Calm", "'Overcast' Ground Texture Set installed and 'Sky Clear' Sky"}};
    for (const auto& [ground, sky, text] : cases) {
        put(ground, sky);
        checkResetTextures(session);
        EXPECT_EQ(install.user.told(), QStringList{start + text + end});
        EXPECT_TRUE(install.user.messages.front().offersFastExit);
        EXPECT_EQ(install.installedSets(), QStringList{"Default"});
        EXPECT_EQ(install.installedSkySets(), QStringList(sky.isEmpty() ? 0 : 1, "Default"));
        EXPECT_EQ(install.user.calls.filter("ground textures").isEmpty(), ground == "Default");
        install.user.messages.clear();
    }
    checkResetTextures(session); // "Default" stands there
    put("2-Storm");
    session.state<OptionsInForce>().IsFastExit = true;
    checkResetTextures(session);
    session.state<OptionsInForce>().IsFastExit = false;
    EXPECT_TRUE(install.user.told().isEmpty()) << "without need it is not asked";
    install.user.otherwise = false;
    checkResetTextures(session);
    EXPECT_EQ(install.installedSets(), QStringList{"2-Storm"}) << "a No keeps the set";
    session.CommandLineRun = true;
    exitProgram(session);
    EXPECT_EQ(install.user.told().size(), 1);
}

TEST_F(ExitQuestion, theEndOfTheSessionEndsACopyAtItsNextFileAsksNothingAndResetsNothing) {
    const QStringList files{"Texture\\a.bmp", "Texture\\b.bmp", "Texture\\c.bmp", "Texture\\d.bmp"};
    install.addGroundSet("2-Storm", "Overcast", true, files);
    session.state<OptionsInForce>().InhibitCustomSplash = true;
    const auto placed = [this] {
        return session.files.list(session.FSPath / u"Scenery\\World\\texture", u"?.bmp"_s);
    };
    install.user.onPump = [&] {
        if (placed().size() == 2) session.ExitInProgress.moveTo(ExitStage::sessionEnd);
    };
    put("2-Storm");
    EXPECT_EQ(placed(), QStringList({"a.bmp", "b.bmp"}));
    exitProgram(session);
    EXPECT_EQ(install.user.told(), QStringList{});
    EXPECT_EQ(session.adoConn, nullptr);
    connectDatabase(session);
    EXPECT_EQ(install.installedSets(), QStringList({"2-Storm"}));
}

} // namespace
} // namespace morvane
