
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
    user.answersNothing = true;
    store(u"IsWideClient"_s, {});
    getSideFSVal(session);
    EXPECT_FALSE(session.state<OptionsInForce>().IsWideClient);
    EXPECT_EQ(stored(u"IsWideClient"_s), QString()) << "nobody answered, so it is asked again";
}

/// Switching the splash off puts the simulator's own back; on, the next set brings its splash, not the
/// switch.
TEST_F(OptionsTest, eachChoiceIsStoredAndTold) {
    const FilePath shown = splashTarget(session);
    writeFile(install.home() / u"Media\\dlgsplash.bmp", "the simulator's own");
    for (const bool value : {true, false}) {
        writeFile(shown, "another");
        setCustomSplashVal(session, value);
        setSideFSVal(session, value);
        EXPECT_EQ(session.state<OptionsInForce>().InhibitCustomSplash, value);
        EXPECT_EQ(session.state<OptionsInForce>().IsWideClient, value);
        EXPECT_EQ(stored("InhibitCustomSplash") + stored("IsWideClient"), flagText(value) + flagText(value));
        EXPECT_EQ(test::readFile(shown), value ? "the simulator's own" : "another");
    }
    const QString splash = "Information|FS9 Splash Screen Status|The %1splash screen %2 Flight %3",
                  wide = "Information|FS9 WideFS Status|This setting states that this PC is a Wide%1 PC and "
                         "therefore Morvane will %2attempt to start Flight Simulator%3.";
    EXPECT_EQ(
        user.told(),
        QStringList({splash.arg("default FS ", "has been copied to",
                                "Similator. The Morvane FS9 splash screen will not be shown when Flight "
                                "Simulator is started."),
                     wide.arg("Client", "not ", ""),
                     splash.arg("Morvane FS9 ", "will be shown when", "Simulator is started."),
                     wide.arg("Server/Stand Alone", "", " as required by you the user")}));
    install.files.failAt(1, true);
    setCustomSplashVal(session, true);
    EXPECT_TRUE(user.told().last().startsWith(u"Exclamation|Morvane Error!|Sub setCustomSplashVal\n"_s));
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

} // namespace
} // namespace morvane
