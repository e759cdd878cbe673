#include "core/store.h"
#include "ground/ground_installation.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/texture_sets.h"
#include "night/night_texture_sets.h"
#include "sets/options_in_force.h"
#include "simulator/configs.h"
#include "simulator/options.h"
#include "simulator/simulator_restore.h"
#include "simulator/texture_switches.h"
#include "support/night_install.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::readFile;
using test::writeFile;

const test::SmallInstallOptions stock{
    .baseImages = {u"GENERIC WORLD\\029b2su6.bmp"_s, u"GENERIC WORLD\\029h2su6.bmp"_s,
                   u"GENERIC WORLD\\029b2wi1.bmp"_s, u"GENERIC WORLD\\045B2sp1.bmp"_s,
                   u"GENERIC WORLD\\005a2su2.bmp"_s, u"GENERIC WORLD\\008a2su1.bmp"_s,
                   u"DUTCH\\005a2su2.bmp"_s}};

struct TextureSwitches : testing::Test {
    test::SmallInstall install{stock};
    Session& session = install.session;
    FilePath world = install.simulator() / u"Scenery\\World\\texture";

    TextureSwitches() {
        test::addNightStock(install);
        for (const char16_t* path :
             {u"DUTCH\\005a2an1.agn", u"DUTCH\\note.agn", u"DUTCH NIGHT\\005a2an2.agn",
              u"GENERIC WORLD\\005a2an1.agn", u"GENERIC WORLD\\029b2an1.agn", u"GENERIC WORLD\\029h2an1.agn"})
            writeFile(install.home() / path, "body of " + QStringView(path).toUtf8());
        for (const char16_t* name :
             {u"005A2AN1.AGN", u"005A2AN2.AGN", u"029H2AN1.AGN", u"045H2SP1.BMP", u"029H2WI1.BMP"})
            writeFile(world / name, "the pilot's");
        test::addNightSet(install, u"Default"_s, true);
        test::addNightSet(install, u"2-Red"_s, true,
                          {u"Texture\\008a2lm1.bmp"_s, u"Texture\\029b2lm1.bmp"_s, u"Dutch\\005a2lm2.bmp"_s});
        install.addGroundSet(u"2-Storm"_s, u"Overcast"_s, true,
                             {u"Texture\\029b2su6.bmp"_s, u"Texture\\029H2SU6.bmp"_s,
                              u"Texture\\005a2su2.bmp"_s, u"Texture\\003b2su1.bmp"_s,
                              u"Dutch\\005a2su2.bmp"_s});
    }
    void installDefaults() {
        session.rows<clsTextureSets>()->markInstalled(u"Default"_s);
        session.rows<clsNightTextureSets>()->markInstalled(u"Default"_s);
    }
    static QStringList lines(const std::vector<FileCopy>& copies) {
        QStringList list;
        for (const FileCopy& copy : copies) {
            EXPECT_EQ(copy.target.parent().relative(), u"Scenery\\WORLD\\Texture"_s);
            list << copy.source.relative() + u" > "_s + copy.target.fileName();
        }
        return list;
    }
};

TEST_F(TextureSwitches, goldenListsOfDutchTextures) {
    const QString base = u"Default"_s, ground = u"2-Storm"_s, night = u"2-Red"_s;
    const struct {
        bool isOn;
        QString ground, night;
        QStringList copies;
    } cases[] = {
        {true,
         base,
         base,
         {u"DUTCH\\005a2su2.bmp > 005a2su2.bmp"_s, u"DUTCH\\005a2an1.agn > 005a2an1.agn"_s,
          u"DUTCH NIGHT\\005a2lm2.bmp > 005a2lm2.bmp"_s, u"DUTCH NIGHT\\008b2lm1.bmp > 008b2lm1.bmp"_s,
          u"DUTCH NIGHT\\005a2an2.agn > 005a2an2.agn"_s}},
        {true,
         ground,
         night,
         {u"Texture Sets\\2-Storm\\Dutch\\005a2su2.bmp > 005a2su2.bmp"_s,
          u"DUTCH\\005a2an1.agn > 005a2an1.agn"_s,
          u"Night Texture Sets\\2-Red\\Dutch\\005a2lm2.bmp > 005a2lm2.bmp"_s,
          u"DUTCH NIGHT\\005a2an2.agn > 005a2an2.agn"_s}},
        // The night of "Default" comes from the Dutch folder also when the Dutch textures go.
        {false,
         base,
         base,
         {u"GENERIC WORLD\\005a2su2.bmp > 005a2su2.bmp"_s, u"GENERIC WORLD\\005a2an1.agn > 005a2an1.agn"_s,
          u"GENERIC WORLD\\008a2su1.bmp > 008a2su1.bmp"_s, u"DUTCH NIGHT\\005a2lm2.bmp > 005a2lm2.bmp"_s,
          u"DUTCH NIGHT\\005a2an2.agn > 005a2an2.agn"_s}},
        {false,
         ground,
         night,
         {u"Texture Sets\\2-Storm\\Texture\\005a2su2.bmp > 005a2su2.bmp"_s,
          u"GENERIC WORLD\\005a2an1.agn > 005a2an1.agn"_s, u"DUTCH NIGHT\\005a2an2.agn > 005a2an2.agn"_s,
          u"Night Texture Sets\\2-Red\\Texture\\008a2lm1.bmp > 008a2lm1.bmp"_s}},
        {true,
         {},
         {},
         {u"DUTCH\\005a2an1.agn > 005a2an1.agn"_s, u"DUTCH NIGHT\\005a2an2.agn > 005a2an2.agn"_s}},
    };
    for (const auto& road : cases)
        EXPECT_EQ(lines(dutchCopies(session, road.isOn, road.ground, road.night)), road.copies);
}

/// On: the "b" pictures under the "h" names, in lower case. Off: the true "h" pictures, letters as they are.
TEST_F(TextureSwitches, goldenListsOfTropicalTextures) {
    EXPECT_EQ(lines(tropicalCopies(session, true, u"Default"_s)),
              (QStringList{u"GENERIC WORLD\\045B2sp1.bmp > 045h2sp1.bmp"_s,
                           u"GENERIC WORLD\\029b2su6.bmp > 029h2su6.bmp"_s,
                           u"GENERIC WORLD\\029b2wi1.bmp > 029h2wi1.bmp"_s,
                           u"GENERIC WORLD\\029b2an1.agn > 029h2an1.agn"_s}));
    EXPECT_EQ(lines(tropicalCopies(session, true, u"2-Storm"_s)),
              (QStringList{u"Texture Sets\\2-Storm\\Texture\\029b2su6.bmp > 029h2su6.bmp"_s,
                           u"GENERIC WORLD\\029b2an1.agn > 029h2an1.agn"_s}));
    EXPECT_EQ(lines(tropicalCopies(session, false, u"2-Storm"_s)),
              (QStringList{u"Texture Sets\\2-Storm\\Texture\\029H2SU6.bmp > 029H2SU6.bmp"_s,
                           u"GENERIC WORLD\\029h2an1.agn > 029h2an1.agn"_s}));
    EXPECT_TRUE(tropicalCopies(session, true, {}).empty());
}

TEST_F(TextureSwitches, dutchReachesReadOnlyFilesAndTheStore) {
    installDefaults();
    install.files.setReadOnly(world / u"005A2SU2.BMP", true);
    EXPECT_TRUE(switchDutch(session, true));
    EXPECT_EQ(readFile(world / u"005A2SU2.BMP"), "body of DUTCH\\005a2su2.bmp");
    EXPECT_FALSE(install.files.isReadOnly(world / u"005A2SU2.BMP"));
    EXPECT_TRUE(session.state<OptionsInForce>().IsDutch && clsConfigs(session).GetDutchVal());
    EXPECT_EQ(install.user.messages.back().title, u"File Copy"_s);
    EXPECT_TRUE(switchDutch(session, false));
    EXPECT_EQ(readFile(world / u"005A2SU2.BMP"), "body of GENERIC WORLD\\005a2su2.bmp");
    EXPECT_FALSE(session.state<OptionsInForce>().IsDutch || clsConfigs(session).GetDutchVal());
}

/// A target that is not there ends the list. The Dutch switch tells and is stored all the same; the tropical
/// one leaves the telling to its caller, and the flags as they were.
TEST_F(TextureSwitches, aMissingTargetEndsTheList) {
    installDefaults();
    install.files.remove(world / u"005A2AN1.AGN");
    EXPECT_TRUE(switchDutch(session, true));
    ASSERT_EQ(install.user.countOfKind(MessageKind::error), 1);
    EXPECT_TRUE(install.user.messages.back().text.startsWith(u"File not found: "_s));
    EXPECT_EQ(readFile(world / u"005A2LM2.BMP"), "the pilot's DUTCH NIGHT\\005a2lm2.bmp");
    EXPECT_TRUE(session.state<OptionsInForce>().IsDutch && clsConfigs(session).GetDutchVal());
    install.files.remove(world / u"029H2WI1.BMP");
    EXPECT_THROW(switchTropical(session, true), Error);
    EXPECT_EQ(readFile(world / u"029H2SU6.BMP"), "body of GENERIC WORLD\\029b2su6.bmp");
    EXPECT_FALSE(session.state<OptionsInForce>().IsTropical || clsConfigs(session).GetTropicalVal());
}

TEST_F(TextureSwitches, tropicalGoesOnAndOff) {
    installDefaults();
    EXPECT_TRUE(switchTropical(session, true));
    EXPECT_EQ(readFile(world / u"045H2SP1.BMP"), "body of GENERIC WORLD\\045B2sp1.bmp");
    EXPECT_TRUE(session.state<OptionsInForce>().IsTropical && clsConfigs(session).GetTropicalVal());
    EXPECT_TRUE(switchTropical(session, false));
    EXPECT_EQ(readFile(world / u"029H2SU6.BMP"), "body of GENERIC WORLD\\029h2su6.bmp");
    EXPECT_FALSE(session.state<OptionsInForce>().IsTropical || clsConfigs(session).GetTropicalVal());
}

TEST_F(TextureSwitches, withoutGroundSetsNothingIsStored) {
    session.adoConn->execute(u"DELETE FROM TEXTURE_SETS WHERE ID <> 0"_s);
    for (const auto switchTextures : {switchDutch, switchTropical}) {
        install.user.messages.clear();
        EXPECT_FALSE(switchTextures(session, true));
        EXPECT_EQ(install.user.told(),
                  QStringList{u"Exclamation|No Texture Sets Installed|There are no texture sets installed.  "
                              "You must have at least one texture set installed to use this function."_s});
    }
    EXPECT_FALSE(session.state<OptionsInForce>().IsDutch || session.state<OptionsInForce>().IsTropical ||
                 clsConfigs(session).GetDutchVal());
}

TEST_F(TextureSwitches, haloAndFastExitAreStoredAndTold) {
    writeFile(install.home() / u"Media\\halo.bmp", "ours");
    writeFile(install.home() / u"Media\\halodefault.bmp", "default");
    const FilePath halo = install.simulator() / u"Texture\\halo.bmp";
    for (const bool isOn : {true, false}) {
        install.user.messages.clear();
        switchHalo(session, isOn);
        switchFastExit(session, isOn);
        EXPECT_EQ(readFile(halo), isOn ? "ours" : "default");
        EXPECT_EQ(clsConfigs(session).GetHaloVal(), isOn);
        EXPECT_EQ(clsConfigs(session).GetFastExitVal(), isOn);
        EXPECT_TRUE(session.state<OptionsInForce>().IsHalo == isOn &&
                    session.state<OptionsInForce>().IsFastExit == isOn);
        const QStringList told = install.user.told();
        ASSERT_EQ(told.size(), 2);
        EXPECT_EQ(told[0], isOn ? u"Information|File Copied|The custom halo file has been copied to flight "
                                  "simulator"_s
                                : u"Information|File Copied|The default halo file has been copied to flight "
                                  "simulator"_s);
        EXPECT_EQ(told[1].count(u"Fast Exit not enabled"_s), isOn ? 0 : 1);
    }
    install.files.remove(install.home() / u"Media\\halo.bmp");
    EXPECT_THROW(switchHalo(session, true), Error);
}

/// What the options put first may have the very bytes of the pilot's file: it is kept all the same.
TEST_F(TextureSwitches, thePilotsFileComesBackAlsoWhereOurFirstCopyEqualsIt) {
    writeFile(install.home() / u"Media\\halo.bmp", "ours");
    writeFile(install.home() / u"Media\\halodefault.bmp", "default");
    writeFile(install.home() / u"Media\\dlgsplash.bmp", "the pilot's splash");
    writeFile(install.simulator() / u"Texture\\halo.bmp", "default");
    installDefaults();
    const auto before = test::contentsBelow(install.simulator());
    switchHalo(session, false);
    switchHalo(session, true);
    setCustomSplashVal(session, true);
    setCustomSplashVal(session, false);
    session.state<GroundSelection>().SelectedGroundSet = u"2-Storm"_s;
    GroundInstallation(session).installTextureSet(true);
    switchDutch(session, true);
    switchTropical(session, true);
    EXPECT_NE(test::contentsBelow(install.simulator()), before);

    install.user.calls.clear();
    restoreOriginals(session);
    EXPECT_EQ(test::contentsBelow(install.simulator()), before);
    EXPECT_TRUE(install.user.calls.last().startsWith(u"done "_s));
    EXPECT_TRUE(install.installedSets().isEmpty());
    clsConfigs switches(session);
    EXPECT_FALSE(session.state<OptionsInForce>().IsHalo || session.state<OptionsInForce>().IsDutch ||
                 session.state<OptionsInForce>().IsTropical);
    EXPECT_FALSE(switches.GetHaloVal() || switches.GetDutchVal() || switches.GetTropicalVal());
}

/// Whatever fails, each file of the simulator is the old one or the new one, and the old ones can be put
/// back.
TEST_F(TextureSwitches, everyFailingOperationOfTheDutchSwitchLeavesWholeFiles) {
    installDefaults();
    const auto before = test::contentsBelow(install.simulator());
    switchDutch(session, true);
    const auto switched = test::contentsBelow(install.simulator());
    EXPECT_NE(switched, before);
    int failures = 0;
    for (bool hasFailed = true; hasFailed; ++failures) {
        Originals(install.files, session.FSPath, session.AppPath).restore();
        EXPECT_EQ(test::contentsBelow(install.simulator()), before) << failures;
        install.files.failAt(failures + 1, false);
        switchDutch(session, true);
        hasFailed = install.files.hasFailed();
        install.files.failAt(0, false);
        const auto after = test::contentsBelow(install.simulator());
        for (auto file = before.begin(); file != before.end(); ++file)
            EXPECT_TRUE(after[file.key()] == *file || after[file.key()] == switched[file.key()])
                << failures << ' ' << file.key().toStdString();
    }
    EXPECT_GT(failures, 15);
}

} // namespace
} // namespace morvane
