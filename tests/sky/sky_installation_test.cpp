#include "core/store.h"
#include "ground/ground_installation.h"
#include "ground/ground_sets.h"
#include "sky/sky_installation.h"
#include "sky/sky_selection.h"
#include "sky/sky_sets.h"
#include "sky/sky_texture_sets.h"
#include "support/small_install.h"

namespace morvane::test {
namespace {

struct SkyInstall : InstallTest {
    void SetUp() override {
        install.user.answersToGive = {true}; // the match is wanted
        install.addSkySet("1-Storm", "Overcast", true, {"cloud.bmp", "SKY_1.BMP", "notes.txt"});
        writeFile(install.simulator() / u"Texture\\sky_1.bmp", "the pilot's sky");
        writeFile(install.simulator() / u"Texture\\sky_2.bmp", "the pilot's second sky");
    }
    void installSky(const QString& name, bool automatic = true) {
        if (automatic) return SkyInstallation(session).installSkySet(name);
        EXPECT_TRUE(clickSkyRow(session, name));
        EXPECT_TRUE(SkyInstallation(session).installSkySet());
    }
    QByteArray texture(const char16_t* name) { return readFile(install.simulator() / u"Texture" / name); }
    QByteArray splash() { return readFile(install.simulator() / u"Uires\\dlgsplash.bmp"); }
};

TEST_F(SkyInstall, copiesTheBitmapsAndRecordsTheSet) {
    install.addSkySet("2-Calm", "Sky Clear", true);
    session.rows<clsSkyTextureSets>()->markInstalled("2-Calm");
    installSky(" 1-Storm ");
    EXPECT_EQ(texture(u"sky_1.bmp"), "1-Storm SKY_1.BMP");
    EXPECT_EQ(texture(u"sky_2.bmp"), "the pilot's second sky"); // what the set lacks stays in place
    EXPECT_EQ(install.files.list(install.simulator() / u"Texture", "*"),
              QStringList({"cloud.bmp", "sky_1.bmp", "sky_2.bmp"}));
    EXPECT_EQ(splash(), "splash OVC");
    EXPECT_EQ(install.installedSkySets(), QStringList{"1-Storm"});
    EXPECT_TRUE(install.user.told().isEmpty());
    const Message& progress = install.user.messages.front();
    EXPECT_EQ(progress.title, "Morvane Information");
    EXPECT_EQ(progress.text,
              "Processing your Sky Texture Files.  Please wait until the process has finished.  "
              "This may take a few moments!");
    EXPECT_EQ(
        install.user.calls,
        QStringList({"message Progress Morvane Information", "file Installing Overcast (OVC) sky textures",
                     "progress 50", "progress 100", "progress 100", "hide message", "refresh frm_Main"}));
    EXPECT_EQ(readFile(install.home() / u"Backup\\Originals\\Texture\\sky_1.bmp"), "the pilot's sky");
}

TEST_F(SkyInstall, theMatchingGroundIsDrawnButNeverTheLast) {
    for (const char* name : {"2-A", "3-B", "4-C"})
        install.addGroundSet(name, " Overcast", true, {"Texture\\029h2su6.bmp"});
    install.addGroundSet("5-D", "Overcast", false);
    install.user.answersToGive = {false};
    installSky("1-Storm", false);
    EXPECT_EQ(install.user.told(),
              QStringList{"Question|Install Matching Ground Texture Set?|Would you like Morvane to install a "
                          "matching Ground Texture set?"});
    EXPECT_TRUE(install.installedSets().isEmpty());
    EXPECT_TRUE(session.state<SkySelection>().RefreshSkyList);
    install.random.numbers = {0.999999};
    install.user.answersToGive = {true};
    installSky("1-Storm", false);
    EXPECT_EQ(install.installedSets(), QStringList{"3-B"});
    EXPECT_EQ(splash(), "splash OVC") << "the sky goes in last";
    session.adoConn->execute(u"UPDATE TEXTURE_SETS SET ACTIVATED = 'False' WHERE TEXTURE_SET <> 'Default'"_s);
    install.reload();
    install.user.answersToGive = {true};
    installSky("1-Storm", false);
    EXPECT_EQ(install.installedSets(), QStringList{"Default"}) << "none of the cover";
}

TEST_F(SkyInstall, theMatchingSkyIsDrawnFromAllOfTheCover) {
    const auto installGround = [this](double draw, bool withMatch = true, const QString& name = u"2-A"_s) {
        install.random.numbers = {draw};
        install.user.answersToGive = {withMatch};
        EXPECT_TRUE(clickGroundRow(session, name));
        EXPECT_TRUE(GroundInstallation(session).installTextureSet());
        EXPECT_EQ(install.installedSets(), QStringList{name});
        return install.installedSkySets();
    };
    install.addGroundSet("2-A", "Overcast", true, {"Texture\\029h2su6.bmp"});
    EXPECT_TRUE(installGround(0, false).isEmpty()) << "not wanted";
    EXPECT_EQ(install.user.told(),
              QStringList{"Question|Install Matching Ground Texture Set?|Would you like Morvane to install a "
                          "matching Sky Texture set?"});
    EXPECT_EQ(installGround(0.9), QStringList{"1-Storm"});
    EXPECT_EQ(install.random.draws, 0) << "the only one needs no draw";
    install.addSkySet("2-Fog", "Overcast ", true, {"cloud.bmp"});
    install.addSkySet("3-Rain", "Overcast", true, {"cloud.bmp"});
    install.addSkySet("4-Mist", "Overcast", false, {"cloud.bmp"});
    EXPECT_EQ(installGround(0), QStringList{"1-Storm"});
    EXPECT_EQ(installGround(0.5), QStringList{"2-Fog"});
    EXPECT_EQ(installGround(0.999999), QStringList{"3-Rain"})
        << "the last one comes, unlike in all other draws";
    EXPECT_EQ(texture(u"cloud.bmp"), "3-Rain cloud.bmp");
    install.addSkySet("Default", "Partly Cloudy", true);
    install.addGroundSet("3-B", "Sky Clear", true);
    EXPECT_EQ(installGround(0, true, "3-B"), QStringList{"Default"}) << "none of the cover";
}

} // namespace
} // namespace morvane::test
