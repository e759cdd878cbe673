
#include "core/flag_text.h"
#include "core/flights_folder.h"
#include "sets/options_in_force.h"
#include "sets/simulator_copy.h"
#include "simulator/options.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::SmallInstall;
using test::writeFile;

const QString invalid = u"Exclamation|Invalid Path|The path supplied was invalid please try again"_s;

struct OptionsTest : testing::Test {
    SmallInstall install;
    Session& session = install.session;
    test::ScriptedUser& user = install.user;

    void store(const QString& name, const QString& text) { storeOwnValue(install.registry, name, text); }
    QString stored(const QString& name) { return ownValue(install.registry, name); }
};

TEST_F(OptionsTest, theSplashOptionTakesTwoWordsAndRepairsTheRest) {
    for (const QString& held : QStringList{"True", "False", "Yes", {}, " True ", "true"}) {
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
    const std::tuple<QString, bool, bool, QString> cases[] = {
        // What is held, what the pilot says when asked, the flag, and what is held then.
        {u" True "_s, false, true, u" True "_s}, {u"False"_s, true, false, u"False"_s},
        {u"true"_s, false, false, u"False"_s},   {u"Yes"_s, true, true, u"True"_s},
        {QString(), false, false, u"False"_s},
    };
    for (const auto& [held, answer, flag, after] : cases) {
        store(u"IsWideClient"_s, held);
        user.otherwise = answer;
        getSideFSVal(session);
        EXPECT_EQ(session.state<OptionsInForce>().IsWideClient, flag) << held.toStdString();
        EXPECT_EQ(stored(u"IsWideClient"_s), after) << held.toStdString();
    }
    EXPECT_EQ(user.told().size(), 3); // the last three were asked for
    user.answersNothing = true;
    store(u"IsWideClient"_s, {});
    getSideFSVal(session);
    EXPECT_FALSE(session.state<OptionsInForce>().IsWideClient);
    EXPECT_EQ(stored(u"IsWideClient"_s), QString()) << "nobody answered, so it is asked again";
    EXPECT_TRUE(
        user.told().value(0).startsWith(u"Question|For WideFS Users Only!|Please indicate if you "_s));
}

/// Switching the splash off puts the simulator's own back; on, the next set brings its splash, not the
/// switch.
TEST_F(OptionsTest, eachChoiceIsStoredAndTold) {
    const QString splash = "Information|FS9 Splash Screen Status|", name = "InhibitCustomSplash";
    const QString wide = "Information|FS9 WideFS Status|This setting states that this PC is a ";
    const struct {
        void (*choose)(Session&, bool);
        bool OptionsInForce::*flag;
        QString name;
        bool value;
        QString told;
    } cases[] = {
        {setCustomSplashVal, &OptionsInForce::InhibitCustomSplash, name, true,
         splash + "The default FS splash screen has been copied to Flight Similator. The Morvane FS9 splash "
                  "screen will "
                  "not be shown when Flight Simulator is started."},
        {setCustomSplashVal, &OptionsInForce::InhibitCustomSplash, name, false,
         splash + "The Morvane FS9 splash screen will be shown when Flight Simulator is started."},
        {setSideFSVal, &OptionsInForce::IsWideClient, "IsWideClient", true,
         wide + "WideClient PC and therefore Morvane will not attempt to start Flight Simulator."},
        {setSideFSVal, &OptionsInForce::IsWideClient, "IsWideClient", false,
         wide + "WideServer/Stand Alone PC and therefore Morvane will attempt to start Flight Simulator as "
                "required by "
                "you the user."},
    };
    const FilePath kept = install.home() / u"Media\\dlgsplash.bmp", shown = splashTarget(session);
    writeFile(kept, "the simulator's own");
    for (const auto& road : cases) {
        writeFile(shown, "another");
        road.choose(session, road.value);
        EXPECT_EQ(session.state<OptionsInForce>().*road.flag, road.value);
        EXPECT_EQ(stored(road.name), flagText(road.value));
        EXPECT_EQ(user.told().last(), road.told);
        EXPECT_EQ(test::readFile(shown), road.value && road.name == name ? "the simulator's own" : "another");
    }
    install.files.failAt(1, true);
    setCustomSplashVal(session, true);
    EXPECT_TRUE(user.told().last().startsWith(u"Exclamation|Morvane Error!|Sub setCustomSplashVal\n"_s));
}

TEST_F(OptionsTest, theFlightsFolderIsAskedForUntilItIsUsable) {
    const QString good = (install.folder / u"Flight Simulator Files").native();
    install.files.makeFolder(install.folder / u"Flight Simulator Files");
    const QString own = (install.home() / u"Flights").native();
    const QString link = (install.folder / u"Link").native();
    install.files.makeFolder(install.home() / u"Flights");
    ASSERT_TRUE(QFile::link(own, link));
    const QString required =
        "Information|Saved Flights/Flight Plans Location required|Please supply the path to your "
        "My Documents\\Flight Simulator Files folder. Please ensure that you are not pointing to "
        "your Morvane Flights folder";
    const QString missing =
        "Exclamation|Saved Flights Invalid Path|The path for your FS9 saved flights was invalid "
        "please enter a new path";
    const std::tuple<QString, std::deque<QString>, QString, QStringList> cases[] = {
        // What is held, what is chosen, what is held then and what is told.
        {"  " + good + ' ', {}, "  " + good + ' ', {}},
        {own.toUpper(), {own, own, good}, good, {required, invalid, invalid}},
        {own + '/',
         {own + '\\', own + "/./", link, link + '/', good},
         good,
         {required, invalid, invalid, invalid, invalid}},
        {"/nowhere", {own, good}, good, {missing, invalid}},
        {"/nowhere", {}, "/nowhere", {missing}},
    };
    for (const auto& [held, chosen, after, told] : cases) {
        SCOPED_TRACE(held.toStdString());
        store("NonEnglishPath", held);
        user.messages.clear();
        user.foldersToChoose = chosen;
        EXPECT_EQ(getNonEnglishPath(session), after.contains(good) ? good : QString());
        EXPECT_EQ(stored("NonEnglishPath"), after);
        EXPECT_EQ(user.told(), told);
        EXPECT_TRUE(user.foldersToChoose.empty());
    }
}

TEST_F(OptionsTest, theFlightsFolderCanBeChosenAnew) {
    store(u"NonEnglishPath"_s, u"/before"_s);
    setNonEnglishRegVal(session);
    EXPECT_EQ(stored(u"NonEnglishPath"_s), u"/before"_s); // the browser was cancelled
    EXPECT_TRUE(user.told().isEmpty());
    user.foldersToChoose = {u"/Çhosen folder"_s};
    setNonEnglishRegVal(session);
    EXPECT_EQ(stored(u"NonEnglishPath"_s), u"/Çhosen folder"_s);
    EXPECT_EQ(user.told(), QStringList{u"Information|FS9 Flight Simulator Files Path|FS9 My Documents Flight "
                                       u"Simulator Files path has been updated to: /Çhosen folder"_s});
    EXPECT_EQ(user.calls.last(), u"refresh frm_Switcher"_s);
}

} // namespace
} // namespace morvane
