#include "core/store.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/ground_tuning.h"
#include "ground/sample_textures.h"
#include "imaging/pixel_patterns.h"
#include "sets/favourite_name.h"
#include "sets/sample_choice.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

struct GroundTuningTest : testing::Test {
    /// What the user types into the dialog, or chooses on it, before OK.
    void nameFavourite(const QString& name, const QString& description) {
        install.user.onModal = [=, this](Screen screen) {
            ASSERT_EQ(screen, Screen::frm_AddFav);
            EXPECT_EQ(session.state<FavouriteAnswer>().favKind, FavouriteKind::ground);
            EXPECT_EQ(session.state<FavouriteAnswer>().favName +
                          session.state<FavouriteAnswer>().favDescription,
                      u""_s); // not those of last time
            session.state<FavouriteAnswer>().favName = name;
            session.state<FavouriteAnswer>().favDescription = description;
            session.state<FavouriteAnswer>().favConfirmed = true;
        };
        tuning.newFavTexture();
    }
    QStringList storedSet(const QString& name) {
        install.reload();
        const auto set = findGroundSet(session, name);
        if (!set) return {};
        EXPECT_TRUE(set->IsDutch && !set->Installed);
        return {set->ColorSettings, set->Actvated, set->Description, set->CloudCover};
    }
    FilePath sets() const { return install.home() / u"Texture Sets"; }

    test::SmallInstall install;
    Session& session = install.session;
    GroundTuning tuning{session};
};

TEST_F(GroundTuningTest, aSampleIsOpenedInTheColoursOfTheLastPreview) {
    tuning.showColourPreview({0, 0, 0, 0, 100, 0}); // with no sample yet: nothing to tell
    QString type = u"utind"_s;
    install.user.onModal = [&](Screen) {
        session.state<GroundSampleChoice>().selectedTextureType = type;
        session.state<GroundSampleChoice>().sampleConfirmed = true;
    };
    tuning.openSample();
    const QByteArray bright = test::bytesOf(tuning.tuningResultDib());
    ASSERT_FALSE(bright.isEmpty());
    EXPECT_NE(bright, test::bytesOf(tuning.tuningSourceDib()));
    type = u"ocean"_s; // the table has none: the sample stays
    tuning.openSample();
    EXPECT_EQ(test::bytesOf(tuning.tuningResultDib()), bright);
    EXPECT_TRUE(install.user.told().isEmpty());
}

TEST_F(GroundTuningTest, aSampleThatCannotBeReadIsStillRecoloured) {
    TextureSample sample(session, session.state<GroundSelection>().colours);
    const FilePath file = sampleTexture(session.AppPath, defaultSample, u"summer"_s, false);
    ASSERT_TRUE(sample.openTexImage(file));
    const QByteArray plain = test::bytesOf(sample.resultDib());
    session.state<GroundSelection>().colours.red = 20;
    test::writeFile(file, "no picture");
    EXPECT_FALSE(sample.openTexImage(file));
    EXPECT_NE(test::bytesOf(sample.resultDib()), plain); // else the set in hand would show the one before
    EXPECT_EQ(install.user.told().size(), 1);
}

TEST_F(GroundTuningTest, aFavouriteIsARowAndEmptyFolders) {
    tuning.optCloudCover(3);
    tuning.showColourPreview({5, 0, -7, 0, 0, 10});
    nameFavourite(u"  Pilot's storm "_s, u" wet & windy "_s);
    const QString name = u"2-Pilot's storm"_s;
    EXPECT_EQ(session.state<GroundSelection>().SelectedGroundSet, name);
    EXPECT_EQ(session.state<GroundSelection>().SelectedGroundDescription, "wet & windy");
    EXPECT_TRUE(session.state<GroundSelection>().RefreshGroundList);
    EXPECT_EQ(install.user.calls.mid(install.user.calls.size() - 2),
              QStringList({"refresh frm_MVTextures", "show frm_MVTextures"}));
    EXPECT_EQ(storedSet(name), QStringList({"5:0:-1.4:0:0:3", "False", "wet & windy", "Mostly Cloudy"}));
    EXPECT_EQ(install.files.listFolders(sets()), QStringList{name});
    EXPECT_EQ(install.files.listFolders(sets() / name), QStringList({"Dutch", "Texture", "UTEurLC"}));
    EXPECT_TRUE(test::contentsBelow(sets()).isEmpty());
    EXPECT_TRUE(install.user.told().isEmpty());

    session.state<FavouriteAnswer>().favConfirmed = true; // an OK of last time is none of this time's
    install.user.onModal = [](Screen) {};
    tuning.newFavTexture();
    EXPECT_EQ(loadedGroundSets(session).Count(), 2);
}

TEST_F(GroundTuningTest, noTitleLeadsOutOfTheSetsFolder) {
    const QStringList folders = install.files.listFolders(install.home());
    for (const QString& title : {u""_s, u"..\\..\\Resources"_s, u"../../../evil"_s, u"con."_s,
                                 u"' OR 1=1 --"_s, u"a\nb"_s + QChar(0)})
        nameFavourite(title, title);
    const QStringList names = install.files.listFolders(sets());
    EXPECT_EQ(names.join(u'|'), u"2-|3-.._.._Resources|4-.._.._.._evil|5-con|6-' OR 1=1 --|7-a_b_"_s);
    EXPECT_EQ(install.files.listFolders(install.home()), folders);
    for (const QString& name : names)
        EXPECT_EQ(storedSet(name).value(1), "False") << name.toStdString();
    EXPECT_TRUE(install.user.told().isEmpty());
}

/// Were the list's last record taken for the one just saved, another set would stand as the selected one.
TEST_F(GroundTuningTest, aRefusedSaveChangesNothing) {
    install.addGroundSet(u"2-Storm"_s, u"Overcast"_s, true);
    session.state<GroundSelection>().SelectedGroundSet = u"Default"_s;
    session.adoConn->execute(u"CREATE TRIGGER T BEFORE INSERT ON TEXTURE_SETS "
                             "BEGIN SELECT RAISE(ABORT, 'refused'); END"_s);
    nameFavourite(u"Calm"_s, {});
    EXPECT_EQ(install.user.countOfKind(MessageKind::error), 1);
    EXPECT_EQ(session.state<GroundSelection>().SelectedGroundSet, "Default");
    EXPECT_FALSE(session.state<GroundSelection>().RefreshGroundList);
    EXPECT_TRUE(install.files.listFolders(sets()).isEmpty());
    EXPECT_FALSE(install.user.calls.contains(u"show frm_MVTextures"_s));
}

TEST_F(GroundTuningTest, theRowStandsWhenItsFoldersCannotBeMade) {
    test::writeFile(sets() / u"2-Calm", "in the way");
    nameFavourite(u"Calm"_s, {});
    EXPECT_EQ(install.user.countOfKind(MessageKind::error), 1);
    EXPECT_TRUE(session.state<GroundSelection>().RefreshGroundList);
    EXPECT_EQ(storedSet(u"2-Calm"_s).value(1), "False");
}

} // namespace
} // namespace morvane
