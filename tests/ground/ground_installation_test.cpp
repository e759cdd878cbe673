#include "ground/ground_installation.h"
#include "ground/ground_sets.h"
#include "ground/tropical_files.h"
#include "sets/options_in_force.h"
#include "support/install_test.h"
#include "support/system_files.h"

#include <QFile>

namespace morvane::test {
namespace {

struct GroundInstall : InstallTest {
    void SetUp() override {
        install.addGroundSet("2-Storm", "Overcast", true,
                             {"Texture\\029h2su6.bmp", "Texture\\029B2SU6.BMP", "Texture\\new.bmp",
                              "UTEurLC\\034b2su4.bmp", "Dutch\\029h2su6.bmp"});
    }
    void installSet(const QString& name) { GroundInstallation(session).installTextureSet(name); }
    QByteArray world(const char16_t* name) {
        return readFile(install.simulator() / u"Scenery\\World\\texture" / name);
    }
    QByteArray splash() { return readFile(install.simulator() / u"Uires\\dlgsplash.bmp"); }
};

TEST_F(GroundInstall, copiesTheSetAndRecordsIt) {
    writeFile(install.home() / u"GENERIC WORLD\\029h2an.agn", "annotation");
    installSet("2-Storm");
    EXPECT_EQ(world(u"029h2su6.bmp"), "2-Storm Texture\\029h2su6.bmp");
    EXPECT_EQ(world(u"new.bmp"), "2-Storm Texture\\new.bmp");
    EXPECT_EQ(world(u"029h2an.agn"), "annotation");
    EXPECT_EQ(splash(), "splash OVC");
    EXPECT_EQ(install.installedSets(), QStringList({"2-Storm"}));
    EXPECT_TRUE(install.user.told().isEmpty());
    EXPECT_TRUE(install.user.calls.contains("file Installing Overcast (OVC) ground textures"));
    // Five files, and two steps more than there are: the bar jumps at its end. Wanted.
    EXPECT_EQ(install.user.calls.filter("progress ").first(2),
              QStringList({"progress 14.2857", "progress 28.5714"}));
    // "029H2SU6.BMP" was replaced, not doubled, and keeps its spelling.
    EXPECT_EQ(install.files.list(install.simulator() / u"Scenery\\World\\texture", "*.bmp"),
              QStringList({"002C2WI1.BMP", "005A2SU2.BMP", "029B2SU6.BMP", "029H2SU6.BMP", "new.bmp"}));
}

TEST_F(GroundInstall, dutchAndTropicalFollowTheirSwitches) {
    session.state<OptionsInForce>().IsDutch = true;
    installSet("2-Storm");
    EXPECT_EQ(world(u"029h2su6.bmp"), "2-Storm Dutch\\029h2su6.bmp"); // behind the generic one, so it stays
    session.state<OptionsInForce>().IsDutch = false;
    session.state<OptionsInForce>().IsTropical = true;
    installSet("2-Storm");
    EXPECT_EQ(world(u"029h2su6.bmp"), "2-Storm Texture\\029B2SU6.BMP"); // the "b" picture in the "h" file
    EXPECT_EQ(tropicalName("029B2su6b.bmp"), "029h2su6b.bmp");
}

TEST_F(GroundInstall, theAddOnsFolderDecidesDifferentlyForDefault) {
    const FilePath textures = install.simulator() / u"Scenery\\UTEurLC\\Texture";
    installSet("2-Storm");
    EXPECT_EQ(readFile(textures / u"034b2su4.bmp"), "2-Storm UTEurLC\\034b2su4.bmp");
    // Without "Texture" a set passes its add-on files over, "Default" still tries them and fails.
    install.files.rename(textures, install.simulator() / u"Scenery\\UTEurLC\\Elsewhere");
    installSet("2-Storm");
    EXPECT_EQ(install.user.countOfKind(MessageKind::error), 0);
    installSet("Default");
    EXPECT_EQ(install.user.countOfKind(MessageKind::error), 1);
}

TEST_F(GroundInstall, defaultBringsTheBodiesAndItsSplashWhateverTheOption) {
    installSet("2-Storm");
    session.state<OptionsInForce>().InhibitCustomSplash = true;
    writeFile(install.simulator() / u"Uires\\dlgsplash.bmp", "the pilot's second splash");
    installSet("2-Storm");
    EXPECT_EQ(splash(), "the pilot's second splash");
    installSet("Default");
    EXPECT_EQ(splash(), "splash SCT");
    EXPECT_EQ(world(u"029h2su6.bmp"), "body of GENERIC WORLD\\029h2su6.bmp");
    EXPECT_EQ(readFile(install.simulator() / u"Scenery\\UTEurLC\\Texture\\034b2su4.bmp"),
              "body of UTIND\\034b2su4.bmp");
    EXPECT_EQ(world(u"005a2su2.bmp"), "the pilot's DUTCH\\005a2su2.bmp"); // the switch is off
    EXPECT_EQ(install.installedSets(), QStringList({"Default"}));
    EXPECT_TRUE(install.user.calls.contains("file Installing Partly Cloudy (SCT) ground textures"));
    EXPECT_EQ(world(u"new.bmp"), "2-Storm Texture\\new.bmp"); // what the new set lacks keeps its content
}

TEST_F(GroundInstall, linksAreReplacedAndModesStay) {
    if (!hasLinks) GTEST_SKIP() << "no links, nor modes, on this system";
    const FilePath world = install.simulator() / u"Scenery\\World\\texture",
                   elsewhere = install.folder / u"else.bmp";
    const QString onDisk = (world / u"029H2SU6.BMP").native();
    QFile::setPermissions(onDisk, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    install.files.remove(world / u"029b2su6.bmp");
    writeFile(elsewhere, "mine");
    ASSERT_TRUE(QFile::link(elsewhere.native(), (world / u"029b2su6.bmp").native()));
    installSet("2-Storm");
    EXPECT_EQ(readFile(world / u"029h2su6.bmp"), "2-Storm Texture\\029h2su6.bmp");
    EXPECT_TRUE(QFile::permissions(onDisk).testFlag(QFile::ReadGroup));
    EXPECT_FALSE(QFile::permissions(onDisk).testFlag(QFile::ReadOther));
    EXPECT_EQ(readFile(world / u"029b2su6.bmp"), "2-Storm Texture\\029B2SU6.BMP");
    EXPECT_EQ(readFile(elsewhere), "mine");
}

} // namespace
} // namespace morvane::test
