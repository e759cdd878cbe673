#include "sky/sky_activation.h"

#include "core/numbers.h"
#include "core/store.h"
#include "sets/set_removal.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_groups.h"
#include "sky/sky_selection.h"
#include "sky/sky_sets.h"
#include "sky/sky_texture_sets.h"
#include "sky/sky_texture_sub_sets.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <QImage>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::contentsBelow;
using test::SmallInstall;
using test::writeFile;

/// Two base sets' pictures and those of the two other times of day, each family of names of its own.
struct SkyActions : testing::Test {
    SmallInstall install;
    Session& session = install.session;
    const FilePath sets = install.home() / u"Sky Texture Sets";

    void SetUp() override {
        const std::pair<QString, QString> stock[] = {
            {"Default", "day.bmp"}, {"Sunny", "sunny.bmp"}, {"Sunrise", "rise.bmp"}, {"Sunset", "set.bmp"}};
        for (const auto& [folder, name] : stock)
            writeFile(install.home() / u"Resources\\Sky" / folder / name, test::smallBitmap(32, 90));
    }
    void click(const QString& name, const QStringList& ticked = {}) {
        EXPECT_TRUE(clickSkyRow(session, name));
        session.state<SkySelection>().selectedRows = ticked;
    }
    QString activationOf(const QString& name) {
        install.reload();
        const auto set = findSkySet(session, name);
        return set ? set->Activated : "gone";
    }
    QStringList filesOf(const QString& name) { return install.files.list(sets.child(name), "*"); }
    /// Confirms what is offered but for the last name.
    void confirmAllButTheLast() {
        install.user.onModal = [this](Screen screen) {
            ASSERT_EQ(screen, Screen::frm_MultiDelete);
            session.state<MultiChoice>().multiConfirmed = session.state<MultiChoice>().multiNames.first(
                session.state<MultiChoice>().multiNames.size() - 1);
        };
    }
};

TEST_F(SkyActions, aClickTakesTheRowInHand) {
    const int key = install.addSkySet("1-Storm", "Overcast", true, {}, "Sunny");
    ASSERT_TRUE(clickSkyRow(session, "1-Storm"));
    const auto& sky = session.state<SkySelection>();
    EXPECT_EQ((QStringList{sky.SelectedSkyKey, sky.SelectedSkySet, sky.SelectedSkyCover, sky.SelectedSkyGroup,
                           sky.SelectedSkyDescription}),
              (QStringList{u"Key:%1"_s.arg(key), "1-Storm", "Overcast", "Sunny", "A sky of a test"}));
    EXPECT_TRUE(sky.SelectedSkyActivated);
    EXPECT_FALSE(clickSkyRow(session, "1-Fog"));
}

TEST_F(SkyActions, oneSetGetsThreeFamiliesOfFiles) {
    install.addSkySet("1-Storm", "Overcast", false, {}, "Sunny");
    install.addSkySet("2-Calm", "Sky Clear", false);
    click("1-Storm", {"Default", "1-Storm"}); // "Default" does not make it two
    SkyActivation(session).activateSkySet();
    EXPECT_EQ(activationOf("1-Storm"), "True");
    EXPECT_EQ(filesOf("1-Storm"), QStringList({"rise.bmp", "set.bmp", "sunny.bmp"}));
    const FilePath stock = install.home() / u"Resources\\Sky";
    EXPECT_EQ(test::readFile(sets / u"1-Storm\\rise.bmp"), test::readFile(stock / u"Sunrise\\rise.bmp"));
    // The day alone has the set's colours: its main sky is redder than the base set's.
    const QImage base((stock / u"Sunny\\sunny.bmp").native()), day((sets / u"1-Storm\\sunny.bmp").native());
    EXPECT_GT(qRed(day.pixel(20, 10)), qRed(base.pixel(20, 10)));
    EXPECT_EQ(day.pixel(0, 31), base.pixel(0, 31));
    EXPECT_EQ(session.state<SkySelection>().SelectedSkySet, "1-Storm");
    EXPECT_TRUE(session.state<SkySelection>().SelectedSkyActivated);
    EXPECT_TRUE(session.state<SkySelection>().selectedRows.isEmpty());
    EXPECT_TRUE(session.state<SkySelection>().RefreshSkyList);
    EXPECT_TRUE(install.user.calls.contains("refresh frm_KMTextures"));
    EXPECT_TRUE(install.user.told().isEmpty());
}

TEST_F(SkyActions, aBaseSetThatIsNoFolderIsToldBeforeAnythingIsStored) {
    install.addSkySet("1-Storm", "Overcast", false, {}, "..");
    click("1-Storm");
    SkyActivation(session).activateSkySet();
    EXPECT_EQ(activationOf("1-Storm"), "False");
    EXPECT_EQ(install.user.countOfKind(MessageKind::error), 1);
}

TEST_F(SkyActions, severalSetsGetTheDayOnlyAndACancelEndsThemBeforeTheNext) {
    for (const char* name : {"1-A", "2-B", "4-D"})
        install.addSkySet(name, "Overcast", false);
    install.addSkySet("3-C", "Overcast", true);
    confirmAllButTheLast();
    const auto activations = [&] { return activationOf("1-A") + activationOf("2-B") + activationOf("4-D"); };
    install.user.onPump = [&] { install.user.answers().cancelRequested = true; };
    click("4-D", {"1-A", "3-C", "2-B", "4-D"});
    SkyActivation(session).activateSkySet();
    EXPECT_EQ(activations(), "TrueFalseFalse");
    EXPECT_FALSE(install.user.answers().cancelRequested);
    install.user.onPump = [] {};
    click("4-D", {"3-C", "2-B", "4-D"});
    SkyActivation(session).activateSkySet();
    EXPECT_EQ(activations(), "TrueTrueFalse") << "the last was not confirmed";
    EXPECT_EQ(session.state<SkySelection>().SelectedSkySet, "2-B") << "the last one that was made";
    EXPECT_EQ(filesOf("2-B"), QStringList{"day.bmp"});
    EXPECT_TRUE(filesOf("3-C").isEmpty()) << "it is activated already";
    EXPECT_TRUE(filesOf("4-D").isEmpty() && install.user.told().isEmpty());
}

TEST_F(SkyActions, defaultIsActivatedLikeAnyOther) {
    install.addSkySet("Default", "Partly Cloudy", true, {"day.bmp"});
    click("Default", {"Default"});
    SkyActivation(session).activateSkySet();
    EXPECT_EQ(filesOf("Default"), QStringList({"day.bmp", "rise.bmp", "set.bmp"}));
    EXPECT_NE(test::readFile(sets / u"Default\\day.bmp"), "Default day.bmp");
    EXPECT_TRUE(install.user.told().isEmpty());
}

TEST_F(SkyActions, deactivatingKeepsRowColoursAndFolder) {
    install.addSkySet("1-Storm", "Overcast", true, {"day.bmp", "rise.bmp", "notes.txt"});
    install.addSkySet("2-Calm", "Sky Clear", true);
    writeFile(install.home() / u"TempBitmaps\\left.bmp", "over");
    click("1-Storm");
    SkyActivation(session).deleteSkySet(true);
    EXPECT_EQ(activationOf("1-Storm"), "False");
    EXPECT_TRUE(install.files.isFolder(sets / u"1-Storm"));
    EXPECT_TRUE(filesOf("1-Storm").isEmpty());
    EXPECT_FALSE(install.files.exists(install.home() / u"TempBitmaps\\left.bmp"));
    EXPECT_EQ(session.state<SkySelection>().SelectedSkySet, "2-Calm") << "the last row is in hand";
    EXPECT_EQ(install.user.told(),
              QStringList{"Question|Morvane Information|Do you wish to deactivate this the texture set: "
                          "'1-Storm'?\n\nSelect Ok, to deactivate the set or select Cancel to cancel the "
                          "deactivate."});
    click("1-Storm");
    ASSERT_TRUE(loadSkySubSet(session, session.state<SkySelection>().SelectedSkyKey, skyDay));
    EXPECT_EQ(session.state<SkyColourTables>().skyTextureGroups[9].red, 50);
}

TEST_F(SkyActions, deletingTakesRowsAndFolder) {
    const int key = install.addSkySet("1-Störm", "Overcast", true, {"day.bmp"});
    click("1-Störm");
    install.user.answersToGive = {false, true};
    SkyActivation(session).deleteSkySet(false);
    EXPECT_EQ(activationOf("1-Störm"), "True");
    EXPECT_FALSE(session.state<SkySelection>().RefreshSkyList);
    SkyActivation(session).deleteSkySet(false);
    EXPECT_EQ(activationOf("1-Störm"), "gone");
    EXPECT_FALSE(install.files.exists(sets / u"1-Störm"));
    ASSERT_TRUE(clsSkyTextureSubSets::reload(session, toInteger(key)));
    EXPECT_EQ(session.rows<clsSkyTextureSubSets>()->Count(), 0);
    EXPECT_EQ(install.user.told().last(),
              "Question|Morvane Information|Do you wish to delete the texture set: '1-Störm'?  This action "
              "cannot be reversed\n\nSelect Ok, to delete the file or select Cancel to cancel the delete.");
}

TEST_F(SkyActions, aloneDefaultAndTheInstalledSetAreRefused) {
    install.addSkySet("Default", "Partly Cloudy", true, {"day.bmp"});
    install.addSkySet("1-Storm", "Overcast", true, {"day.bmp"});
    session.rows<clsSkyTextureSets>()->markInstalled("1-Storm");
    const auto before = contentsBelow(sets);
    const std::pair<QString, QString> cases[] = {{"Default", "Default"}, {"1-Storm", "currently installed"}};
    for (const auto& [name, word] : cases) {
        const QString said = "Exclamation|Morvane Information|You have selected the " + word +
                             " texture set to delete/deactivate.\n\nThis is a protected texture set and no "
                             "changes can be made "
                             "to this set.";
        click(name);
        install.user.messages.clear();
        SkyActivation(session).deleteSkySet(false);
        SkyActivation(session).deleteSkySet(true);
        EXPECT_EQ(activationOf(name), "True");
        EXPECT_EQ(install.user.told(), QStringList({said, said}));
    }
    EXPECT_EQ(contentsBelow(sets), before);
    EXPECT_FALSE(session.state<SkySelection>().RefreshSkyList);
}

TEST_F(SkyActions, amongSeveralTheInstalledSetStaysWithoutAWord) {
    for (const char* name : {"1-A", "2-B", "3-C"})
        install.addSkySet(name, "Overcast", true, {"day.bmp"});
    session.rows<clsSkyTextureSets>()->markInstalled("2-B");
    click("1-A", {"Default", "1-A", "2-B", "3-C"});
    confirmAllButTheLast();
    SkyActivation(session).deleteSkySet(false);
    EXPECT_EQ(session.state<MultiChoice>().multiNames, QStringList({"1-A", "2-B", "3-C"}));
    EXPECT_EQ(activationOf("1-A"), "gone");
    EXPECT_EQ(activationOf("2-B"), "True");
    EXPECT_EQ(activationOf("3-C"), "True");
    EXPECT_TRUE(install.user.told().isEmpty());
}

} // namespace
} // namespace morvane
