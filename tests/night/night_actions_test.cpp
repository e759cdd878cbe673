#include "ground/texture_catalogue.h"
#include "imaging/picture_reader.h"
#include "night/night_files.h"
#include "night/night_generation.h"
#include "night/night_selection.h"
#include "night/night_texture_sets.h"
#include "sets/catalogue_file.h"
#include "sets/options_in_force.h"
#include "sets/set_removal.h"
#include "support/night_install.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::addNightSet;
using test::contentsBelow;
using test::nightSets;

struct NightActions : testing::Test {
    NightActions() {
        test::addNightStock(install);
        addNightSet(install, u"Default"_s, true);
    }
    void click(const QString& name) { ASSERT_TRUE(clickNightRow(session, name)); }
    void activate() { NightGeneration(session).activateNightTextureSet(); }
    void deleteInHand(bool keepsColours) { NightGeneration(session).deleteNightTextureSet(keepsColours); }
    FilePath sets() { return install.home() / u"Night Texture Sets"; }
    void confirm(const QStringList& names) {
        install.user.onModal = [=, this](Screen screen) {
            ASSERT_EQ(screen, Screen::frm_MultiDelete);
            session.state<MultiChoice>().multiConfirmed = names;
        };
    }

    test::SmallInstall install;
    Session& session = install.session;
};

TEST_F(NightActions, theListTakesEveryBitmapWhateverTheDutchSwitch) {
    QStringList lines;
    for (const CatalogueFile& file : popNightTextureList(session, u"2-Blue"_s))
        lines << file.sourceFolder.text().section(u'/', -1) + u'/' + file.fileName + u' ' +
                     file.targetFolder.text().section(u'/', -2) + u' ' +
                     file.tempFolder.text().section(u'/', -2);
    const QString generic = u"GENERIC WORLD NIGHT/0%1b2lm1.bmp 2-Blue/Texture TempBitmaps/Texture"_s,
                  dutch = u"DUTCH NIGHT/00%1.bmp 2-Blue/Dutch TempBitmaps/Dutch"_s;
    EXPECT_FALSE(session.state<OptionsInForce>().IsDutch);
    EXPECT_EQ(lines, (QStringList{generic.arg(u"08"), generic.arg(u"29"), generic.arg(u"45"),
                                  dutch.arg(u"5a2lm2"), dutch.arg(u"8b2lm1")}));
}

TEST_F(NightActions, activationMakesEveryFileInTheColoursOfTheSet) {
    addNightSet(install, u"2-Red"_s, false);
    click(u"2-Red"_s);
    activate();
    EXPECT_EQ(nightSets(session), u"Default+ 2-Red+"_s);
    EXPECT_EQ(contentsBelow(sets()).keys().join(u' '),
              u"2-Red/Dutch/005a2lm2.bmp 2-Red/Dutch/008b2lm1.bmp 2-Red/Texture/008b2lm1.bmp "
              "2-Red/Texture/029b2lm1.bmp 2-Red/Texture/045b2lm1.bmp"_s);
    const Picture base =
        loadPicture(install.files, install.home() / u"Resources\\GENERIC WORLD NIGHT\\029b2lm1.bmp");
    const Picture made = loadPicture(install.files, sets() / u"2-Red\\Texture\\029b2lm1.bmp");
    EXPECT_GT(made.rows[5], base.rows[5]) << "the set is redder"; // the second pixel, off the marks
    EXPECT_TRUE(install.user.told().isEmpty());
    const Message& first = install.user.messages.front();
    EXPECT_EQ(first.title + u'|' + first.text,
              u"Creating Night Texture Sets|Colorizing texture set 1 of 1 texture sets.  Process 1 of 2 Be "
              "aware that this may take 3 - 5 minutes per set dependant on your system specification. "
              "\nPlease wait............"_s);
    EXPECT_TRUE(install.user.calls.contains(u"hide frm_NightTextures"_s));
    EXPECT_EQ(install.user.calls.last(), u"show frm_NightTextures"_s);
    EXPECT_TRUE(session.state<NightSelection>().RefreshNightList);
}

TEST_F(NightActions, severalAreActivatedAfterAConfirmation) {
    for (const QString& name : {u"2-A"_s, u"3-B"_s, u"4-C"_s})
        addNightSet(install, name, false);
    session.state<NightSelection>().selectedRows = QStringList{u"Default"_s, u"2-A"_s, u"3-B"_s, u"4-C"_s};
    confirm({u"2-A"_s, u"4-C"_s});
    activate();
    EXPECT_EQ(session.state<MultiChoice>().multiNames, QStringList({u"2-A"_s, u"3-B"_s, u"4-C"_s}));
    EXPECT_EQ(nightSets(session), u"Default+ 2-A+ 3-B 4-C+"_s);
    EXPECT_EQ(install.files.listFolders(sets()), QStringList({u"2-A"_s, u"4-C"_s}));
}

TEST_F(NightActions, aCancelLeavesTheSetDeactivatedInBothPasses) {
    addNightSet(install, u"2-Red"_s, false, {});
    for (const QString& pass : {u"Process 1"_s, u"Process 2"_s}) {
        click(u"2-Red"_s);
        install.user.onPump = [&] {
            if (install.user.messages.back().text.contains(pass))
                install.user.answers().cancelRequested = true;
        };
        activate();
        EXPECT_EQ(nightSets(session), u"Default+ 2-Red"_s);
        EXPECT_TRUE(contentsBelow(sets()).isEmpty());
        EXPECT_TRUE(contentsBelow(install.home() / u"TempBitmaps\\Texture").isEmpty());
    }
}

/// It may go alone, unlike on the ground, and is passed over among several.
TEST_F(NightActions, theInstalledSetGoesAloneAndNotAmongSeveral) {
    for (const QString& name : {u"2-A"_s, u"3-B"_s})
        addNightSet(install, name, true, {u"Texture\\029b2lm1.bmp"_s, u"Dutch\\005a2lm2.bmp"_s});
    session.rows<clsNightTextureSets>()->markInstalled(u"2-A"_s);
    session.state<NightSelection>().selectedRows = QStringList{u"2-A"_s, u"3-B"_s};
    confirm({u"2-A"_s, u"3-B"_s});
    deleteInHand(false);
    EXPECT_EQ(nightSets(session), u"Default+ 2-A+*"_s);
    EXPECT_TRUE(install.user.told().isEmpty());

    click(u"2-A"_s);
    deleteInHand(true);
    EXPECT_EQ(nightSets(session), u"Default+ 2-A*"_s);
    EXPECT_EQ(install.files.listFolders(sets() / u"2-A"), QStringList({u"Dutch"_s, u"Texture"_s}));
    EXPECT_TRUE(contentsBelow(sets()).isEmpty());
    deleteInHand(false);
    EXPECT_EQ(nightSets(session), u"Default+"_s) << "and no row is installed";
    EXPECT_TRUE(install.files.listFolders(sets()).isEmpty());
    EXPECT_EQ(install.user.countOfKind(MessageKind::question), 2);
}

TEST_F(NightActions, defaultIsProtected) {
    click(u"Default"_s);
    for (const bool keepsColours : {false, true}) {
        deleteInHand(keepsColours);
        EXPECT_EQ(install.user.told().last(),
                  u"Exclamation|Morvane Information|You have selected the Default texture set to "
                  "delete/deactivate.\nThis is a protected texture set and no changes can be made to this "
                  "set."_s);
    }
    EXPECT_EQ(nightSets(session), u"Default+"_s);
}

} // namespace
} // namespace morvane
