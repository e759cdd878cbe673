#include "core/application.h"
#include "ground/ground_installation.h"
#include "ground/ground_sets.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::SmallInstall;

struct ExitQuestion : testing::Test {
    SmallInstall install;

    void put(const QString& name) {
        install.session.ground.SelectedGroundSet = name;
        GroundInstallation(install.session).installTextureSet(true);
        install.user.messages.clear();
    }
};

TEST_F(ExitQuestion, comesForASetOfAWeatherAndPutsDefaultBack) {
    install.addGroundSet("2-Storm", "Overcast", true);
    put("2-Storm");
    checkResetTextures(install.session);
    EXPECT_EQ(install.user.told(),
              QStringList(
                  {"Question|Reset MV Textures?|Morvane has detected that you have 'Overcast' Ground Texture "
                   "Set installed. Please select the check button if you wish to reset Morvane textures to a "
                   "nominal weather condition of Partly Cloudy before exiting."}));
    EXPECT_TRUE(install.user.messages.front().offersFastExit);
    EXPECT_EQ(install.installedSets(), QStringList({"Default"}));
}

TEST_F(ExitQuestion, aNoKeepsTheSet) {
    install.addGroundSet("2-Storm", "Overcast", true);
    put("2-Storm");
    install.user.otherwise = false;
    checkResetTextures(install.session);
    EXPECT_EQ(install.installedSets(), QStringList({"2-Storm"}));
}

TEST_F(ExitQuestion, isNotAskedWithoutNeed) {
    checkResetTextures(install.session); // nothing installed
    put("Default");
    checkResetTextures(install.session);
    install.addGroundSet("2-Storm", "Overcast", true);
    put("2-Storm");
    install.session.IsFastExit = true;
    checkResetTextures(install.session);
    install.session.IsFastExit = false;
    install.session.CommandLineRun = true;
    exitProgram(install.session);
    EXPECT_TRUE(install.user.told().isEmpty());
}

} // namespace
} // namespace morvane
