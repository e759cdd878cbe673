#include "core/flag_text.h"
#include "core/flights_folder.h"
#include "core/store.h"
#include "ground/texture_sets.h"
#include "night/night_texture_sets.h"
#include "sets/options_in_force.h"
#include "sets/simulator_copy.h"
#include "simulator/option_table.h"
#include "simulator/options.h"
#include "simulator/simulator_restore.h"
#include "simulator/texture_switches.h"
#include "support/night_install.h"
#include "support/small_install.h"

namespace morvane::test {
namespace {

struct OptionsTest : InstallTest {
    void store(const QString& name, const QString& text) { storeOwnValue(install.registry, name, text); }
    QString stored(const QString& name) { return ownValue(install.registry, name); }
};

TEST_F(OptionsTest, theSplashOptionTakesTwoWordsAndRepairsTheRest) {
    for (const QString& held : QStringList{"True", "False", {}, " True ", "true"}) {
        store("InhibitCustomSplash", held);
        const bool isSet = held == "True";
        session.state<OptionsInForce>().InhibitCustomSplash = !isSet;
        getCustomSplashVal(session);
        EXPECT_EQ(session.state<OptionsInForce>().InhibitCustomSplash, isSet) << held.toStdString();
        EXPECT_EQ(stored("InhibitCustomSplash"), flagText(isSet)) << held.toStdString();
    }
    EXPECT_TRUE(user.told().isEmpty());
}

TEST_F(OptionsTest, theWideClientOptionIsTrimmedAndOtherwiseAsked) {
    const std::tuple<QString, bool, QString> cases[] = {
        // What is held, what the pilot says when asked, and what is held then.
        {u" True "_s, false, u" True "_s},
        {u"true"_s, false, u"False"_s},
        {QString(), true, u"True"_s},
    };
    for (const auto& [held, answer, after] : cases) {
        store(u"IsWideClient"_s, held);
        user.otherwise = answer;
        getSideFSVal(session);
        EXPECT_EQ(session.state<OptionsInForce>().IsWideClient, after.trimmed() == u"True");
        EXPECT_EQ(stored(u"IsWideClient"_s), after);
    }
    EXPECT_EQ(user.told().size(), 2);
    EXPECT_TRUE(user.told()[0].startsWith(u"Question|For WideFS Users Only!|Please indicate if you "_s));
}

TEST_F(OptionsTest, theFlightsFolderIsAskedForUntilItIsUsable) {
    const FilePath good = install.folder / u"Flight Simulator Files", own = install.home() / u"Flights";
    for (const FilePath& folder : {good, own})
        install.files.makeFolder(folder);
    const QString required =
        "Information|Saved Flights/Flight Plans Location required|Please supply the path to your "
        "My Documents\\Flight Simulator Files folder. Please ensure that you are not pointing to "
        "your Morvane Flights folder";
    const QString missing =
        "Exclamation|Saved Flights Invalid Path|The path for your FS9 saved flights was invalid "
        "please enter a new path";
    const QString invalid = u"Exclamation|Invalid Path|The path supplied was invalid please try again"_s;
    const std::tuple<QString, std::deque<QString>, QString, QStringList> cases[] = {
        // What is held, what is chosen, what is held then and what is told.
        {"  " + good.native() + ' ', {}, "  " + good.native() + ' ', {}},
        {own.native().toUpper(), {own.native() + "/./", good.native()}, good.native(), {required, invalid}},
        {"/nowhere", {own.native(), good.native()}, good.native(), {missing, invalid}},
        {"/nowhere", {}, "/nowhere", {missing}},
    };
    for (const auto& [held, chosen, after, told] : cases) {
        SCOPED_TRACE(held.toStdString());
        store("NonEnglishPath", held);
        user.messages.clear();
        user.foldersToChoose = chosen;
        EXPECT_EQ(getNonEnglishPath(session), after.contains(good.native()) ? good.native() : QString());
        EXPECT_EQ(stored("NonEnglishPath"), after);
        EXPECT_EQ(user.told(), told);
    }
    user.messages.clear();
    setNonEnglishRegVal(session);
    EXPECT_EQ(stored("NonEnglishPath"), "/nowhere") << "the browser was cancelled";
    user.foldersToChoose = {u"/Çhosen folder"_s};
    setNonEnglishRegVal(session);
    EXPECT_EQ(user.told(), QStringList{u"Information|FS9 Flight Simulator Files Path|FS9 My Documents Flight "
                                       u"Simulator Files path has been updated to: /Çhosen folder"_s});
    EXPECT_EQ(stored("NonEnglishPath"), "/Çhosen folder");
}

const SmallInstallOptions stock{
    .baseImages = {u"GENERIC WORLD\\029b2su6.bmp"_s, u"GENERIC WORLD\\029h2su6.bmp"_s,
                   u"GENERIC WORLD\\029b2wi1.bmp"_s, u"GENERIC WORLD\\045B2sp1.bmp"_s,
                   u"GENERIC WORLD\\005a2su2.bmp"_s, u"GENERIC WORLD\\008a2su1.bmp"_s,
                   u"DUTCH\\005a2su2.bmp"_s}};

struct TextureSwitches : testing::Test {
    SmallInstall install{stock};
    Session& session = install.session;
    FilePath world = install.simulator() / u"Scenery\\World\\texture";

    TextureSwitches() {
        addNightStock(install);
        for (const char16_t* path :
             {u"DUTCH\\005a2an1.agn", u"DUTCH\\note.agn", u"DUTCH NIGHT\\005a2an2.agn",
              u"GENERIC WORLD\\005a2an1.agn", u"GENERIC WORLD\\029b2an1.agn", u"GENERIC WORLD\\029h2an1.agn"})
            writeFile(install.home() / path, "body of " + QStringView(path).toUtf8());
        for (const char16_t* name :
             {u"005A2AN1.AGN", u"005A2AN2.AGN", u"029H2AN1.AGN", u"045H2SP1.BMP", u"029H2WI1.BMP"})
            writeFile(world / name, "the pilot's");
        addNightSet(install, u"Default"_s, true);
        addNightSet(install, u"2-Red"_s, true,
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

/// Switching the splash off puts the simulator's own back; on, the next set brings its splash, not the
/// switch.
TEST_F(TextureSwitches, eachOptionReachesReadOnlyFilesTheStoreAndTheUser) {
    installDefaults();
    const FilePath dutch = world / u"005A2SU2.BMP", tropical = world / u"029H2SU6.BMP",
                   splash = splashTarget(session), media = install.home() / u"Media";
    for (const QString& name : {u"halo"_s, u"halodefault"_s, u"dlgsplash"_s})
        writeFile(media / (name + u".bmp"_s), name.toUtf8());
    for (const bool isOn : {true, false}) {
        for (const FilePath& file : {dutch, tropical})
            install.files.setReadOnly(file, true);
        writeFile(splash, "another");
        EXPECT_TRUE(switchDutch(session, isOn) && switchTropical(session, isOn));
        switchHalo(session, isOn);
        switchFastExit(session, isOn);
        setCustomSplashVal(session, isOn);
        setSideFSVal(session, isOn);
        EXPECT_EQ(readFile(dutch),
                  isOn ? "body of DUTCH\\005a2su2.bmp" : "body of GENERIC WORLD\\005a2su2.bmp");
        EXPECT_EQ(readFile(tropical),
                  isOn ? "body of GENERIC WORLD\\029b2su6.bmp" : "body of GENERIC WORLD\\029h2su6.bmp");
        EXPECT_FALSE(install.files.isReadOnly(dutch) || install.files.isReadOnly(tropical));
        EXPECT_EQ(readFile(install.simulator() / u"Texture\\halo.bmp"), isOn ? "halo" : "halodefault");
        EXPECT_EQ(readFile(splash), isOn ? "dlgsplash" : "another");
        for (const SimulatorOption& option : simulatorOptions()) {
            EXPECT_EQ(session.state<OptionsInForce>().*option.flag, isOn);
            EXPECT_TRUE(!option.column || storedSwitch(session, option.flag) == isOn);
        }
        for (const QString& name : {u"InhibitCustomSplash"_s, u"IsWideClient"_s})
            EXPECT_EQ(ownValue(install.registry, name), flagText(isOn));
    }
    EXPECT_TRUE(install.user.calls.contains("progress 14.2857")) << "the first of five files, and two steps";
    const QString halo = "Information|File Copied|The %1 halo file has been copied to flight simulator",
                  shown = "Information|FS9 Splash Screen Status|The %1splash screen %2 Flight %3",
                  wide = "Information|FS9 WideFS Status|This setting states that this PC is a Wide%1 PC and "
                         "therefore Morvane will %2attempt to start Flight Simulator%3.";
    QStringList told = install.user.told();
    EXPECT_TRUE(told.value(5).contains(u"Fast Exit not enabled"_s) &&
                !told.value(1).contains(u"not enabled"_s));
    told.remove(5);
    told.remove(1);
    EXPECT_EQ(told, QStringList({halo.arg("custom"),
                                 shown.arg("default FS ", "has been copied to",
                                           "Similator. The Morvane FS9 splash screen will not be shown when "
                                           "Flight Simulator is started."),
                                 wide.arg("Client", "not ", ""), halo.arg("default"),
                                 shown.arg("Morvane FS9 ", "will be shown when", "Simulator is started."),
                                 wide.arg("Server/Stand Alone", "", " as required by you the user")}));
    install.files.failAt(1, true);
    EXPECT_THROW(switchHalo(session, true), Error);
    setCustomSplashVal(session, true);
    EXPECT_TRUE(
        install.user.told().last().startsWith(u"Exclamation|Morvane Error!|Sub setCustomSplashVal\n"_s));
    install.files.failAt(0, false);
    session.ExitInProgress.moveTo(ExitStage::sessionEnd);
    restoreOriginals(session);
    EXPECT_EQ(readFile(install.simulator() / u"Texture\\halo.bmp"), "halodefault")
        << "not before the desktop ends";
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

} // namespace
} // namespace morvane::test
