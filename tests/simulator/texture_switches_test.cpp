#include "core/store.h"
#include "ground/ground_sets.h"
#include "ground/texture_sets.h"
#include "night/night_texture_sets.h"
#include "sets/options_in_force.h"
#include "simulator/options.h"
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
    /// In force and in the store.
    void expectOption(bool OptionsInForce::*flag, bool isOn) {
        EXPECT_EQ(session.state<OptionsInForce>().*flag, isOn);
        EXPECT_EQ(storedSwitch(session, flag), isOn);
    }
    void installDefaults() {
        session.rows<clsTextureSets>()->markInstalled(u"Default"_s);
        session.rows<clsNightTextureSets>()->markInstalled(u"Default"_s);
    }
    /// Sources, and what they are called in the simulator where that is another name.
    static QStringList lines(const std::vector<FileCopy>& copies) {
        QStringList list;
        for (const FileCopy& copy : copies) {
            EXPECT_EQ(copy.target.parent().relative(), "Scenery\\WORLD\\Texture");
            const QString name = copy.target.fileName();
            list << copy.source.relative() + (copy.source.fileName() == name ? QString() : " > " + name);
        }
        return list;
    }
};

TEST_F(TextureSwitches, goldenListsOfDutchTextures) {
    const QString base = "Default", ground = "2-Storm", night = "2-Red", none;
    const std::tuple<bool, QString, QString, QString> cases[] = {
        {true, none, none, "DUTCH\\005a2an1.agn|DUTCH NIGHT\\005a2an2.agn"},
        {true, ground, night,
         "Texture Sets\\2-Storm\\Dutch\\005a2su2.bmp|DUTCH\\005a2an1.agn|"
         "Night Texture Sets\\2-Red\\Dutch\\005a2lm2.bmp|DUTCH NIGHT\\005a2an2.agn"},
        // The night of "Default" comes from the Dutch folder also when the Dutch textures go.
        {false, base, base,
         "GENERIC WORLD\\005a2su2.bmp|GENERIC WORLD\\005a2an1.agn|GENERIC WORLD\\008a2su1.bmp|"
         "DUTCH NIGHT\\005a2lm2.bmp|DUTCH NIGHT\\005a2an2.agn"},
    };
    for (const auto& [isOn, groundSet, nightSet, copies] : cases)
        EXPECT_EQ(lines(dutchCopies(session, isOn, groundSet, nightSet)).join(u'|'), copies);
}

/// On: the "b" pictures under the "h" names, in lower case. Off: the true "h" pictures, letters as they are.
TEST_F(TextureSwitches, goldenListsOfTropicalTextures) {
    EXPECT_EQ(lines(tropicalCopies(session, true, "Default")),
              (QStringList{"GENERIC WORLD\\045B2sp1.bmp > 045h2sp1.bmp",
                           "GENERIC WORLD\\029b2su6.bmp > 029h2su6.bmp",
                           "GENERIC WORLD\\029b2wi1.bmp > 029h2wi1.bmp",
                           "GENERIC WORLD\\029b2an1.agn > 029h2an1.agn"}));
    EXPECT_EQ(lines(tropicalCopies(session, false, "2-Storm")),
              (QStringList{"Texture Sets\\2-Storm\\Texture\\029H2SU6.bmp", "GENERIC WORLD\\029h2an1.agn"}));
    EXPECT_TRUE(tropicalCopies(session, true, {}).empty());
}

TEST_F(TextureSwitches, eachReachesReadOnlyFilesAndTheStore) {
    installDefaults();
    const FilePath dutch = world / u"005A2SU2.BMP", tropical = world / u"029H2SU6.BMP";
    for (const bool isOn : {true, false}) {
        for (const FilePath& file : {dutch, tropical})
            install.files.setReadOnly(file, true);
        EXPECT_TRUE(switchDutch(session, isOn) && switchTropical(session, isOn));
        EXPECT_EQ(readFile(dutch),
                  isOn ? "body of DUTCH\\005a2su2.bmp" : "body of GENERIC WORLD\\005a2su2.bmp");
        EXPECT_EQ(readFile(tropical),
                  isOn ? "body of GENERIC WORLD\\029b2su6.bmp" : "body of GENERIC WORLD\\029h2su6.bmp");
        EXPECT_FALSE(install.files.isReadOnly(dutch) || install.files.isReadOnly(tropical));
        expectOption(&OptionsInForce::IsDutch, isOn);
        expectOption(&OptionsInForce::IsTropical, isOn);
    }
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
    expectOption(&OptionsInForce::IsDutch, true);
    install.files.remove(world / u"029H2WI1.BMP");
    EXPECT_THROW(switchTropical(session, true), Error);
    EXPECT_EQ(readFile(world / u"029H2SU6.BMP"), "body of GENERIC WORLD\\029b2su6.bmp");
    expectOption(&OptionsInForce::IsTropical, false);
}

TEST_F(TextureSwitches, withoutGroundSetsNothingIsStored) {
    session.adoConn->execute(u"DELETE FROM TEXTURE_SETS WHERE ID <> 0"_s);
    EXPECT_FALSE(switchDutch(session, true) || switchTropical(session, true));
    EXPECT_EQ(install.user.told(),
              QStringList(2, u"Exclamation|No Texture Sets Installed|There are no texture sets installed.  "
                             "You must have at least one texture set installed to use this function."_s));
    expectOption(&OptionsInForce::IsDutch, false);
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
        expectOption(&OptionsInForce::IsHalo, isOn);
        expectOption(&OptionsInForce::IsFastExit, isOn);
        const QString copied = "Information|File Copied|The %1 halo file has been copied to flight simulator";
        EXPECT_EQ(install.user.told().value(0), copied.arg(isOn ? "custom" : "default"));
        EXPECT_EQ(install.user.told().value(1).count(u"Fast Exit not enabled"_s), isOn ? 0 : 1);
    }
    install.files.remove(install.home() / u"Media\\halo.bmp");
    EXPECT_THROW(switchHalo(session, true), Error);
}

} // namespace
} // namespace morvane
