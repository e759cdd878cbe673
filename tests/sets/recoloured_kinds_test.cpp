#include "core/store.h"
#include "ground/ground_tuning.h"
#include "night/night_tuning.h"
#include "sets/set_removal.h"
#include "support/night_install.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

/// How a test makes a deactivated set of the kind, and its colour page.
struct Ground {
    using Kind = GroundKind;
    using Tuning = GroundTuning;
    static void add(test::SmallInstall& install, const QString& name) {
        install.addGroundSet(name, u"Overcast"_s, false);
    }
};

struct Night {
    using Kind = NightKind;
    using Tuning = NightTuning;
    static void add(test::SmallInstall& install, const QString& name) {
        test::addNightSet(install, name, false);
    }
};

template <class Sample>
struct RecolouredKindTest : testing::Test {
    using Kind = typename Sample::Kind;

    RecolouredKindTest() { test::addNightStock(install); }
    void nameFavourite(const QString& name, const QString& description = {}) {
        install.user.onModal = [=, this](Screen screen) {
            ASSERT_EQ(screen, Screen::frm_AddFav);
            auto& answer = session.state<FavouriteAnswer>();
            EXPECT_EQ(answer.favName + answer.favDescription, u""_s) << "not those of last time";
            answer = {name, description, true};
        };
        tuning.newFavourite();
    }
    auto record(const QString& name) {
        refreshSets<Kind>(session);
        return findSet<Kind>(session, name);
    }
    QString activations(const QStringList& names) {
        QStringList texts;
        for (const QString& name : names)
            texts << activationOf(*record(name));
        return texts.join(u' ');
    }
    auto& selection() { return session.state<typename Kind::Selection>(); }
    FilePath sets() const { return install.home() / Kind::facts().folder; }

    test::SmallInstall install;
    Session& session = install.session;
    typename Sample::Tuning tuning{session};
};

using Samples = testing::Types<Ground, Night>;
TYPED_TEST_SUITE(RecolouredKindTest, Samples);

TYPED_TEST(RecolouredKindTest, severalAreActivatedAfterAConfirmation) {
    const QStringList names{u"2-A"_s, u"3-B"_s, u"4-C"_s};
    for (const QString& name : names)
        TypeParam::add(this->install, name);
    this->selection().selectedRows = QStringList{u"Default"_s} + names;
    this->install.user.onModal = [&](Screen screen) {
        ASSERT_EQ(screen, Screen::frm_MultiDelete);
        EXPECT_EQ(this->session.template state<MultiChoice>().multiNames, names);
        this->session.template state<MultiChoice>().multiConfirmed = QStringList{names[0], names[2]};
    };
    TestFixture::Kind::activate(this->session);
    EXPECT_EQ(this->activations(names), "True False True");
    EXPECT_EQ(this->install.files.listFolders(this->sets()), QStringList({names[0], names[2]}));
}

TYPED_TEST(RecolouredKindTest, aCancelLeavesTheSetDeactivatedInBothPasses) {
    TypeParam::add(this->install, u"2-A"_s);
    for (const QString& pass : {u"Process 1"_s, u"Process 2"_s}) {
        clickSetNamed<typename TestFixture::Kind>(this->session, u"2-A"_s);
        this->install.user.onPump = [&] {
            if (this->install.user.messages.back().text.contains(pass))
                this->install.user.answers().cancelRequested = true;
        };
        TestFixture::Kind::activate(this->session);
        EXPECT_EQ(this->activations({u"2-A"_s}), "False");
        EXPECT_TRUE(test::contentsBelow(this->sets()).isEmpty());
        EXPECT_TRUE(test::contentsBelow(this->install.home() / u"TempBitmaps\\Texture").isEmpty());
    }
}

TYPED_TEST(RecolouredKindTest, aFavouriteIsARowAndEmptyFolders) {
    const auto countBefore = loadedSets<typename TestFixture::Kind>(this->session).Count();
    this->tuning.showColourPreview({5, 0, -7, 0, 0, 10});
    this->nameFavourite(u"  Pilot's: storm "_s, u" wet & windy "_s);
    const QString name = QString::number(countBefore + 1) + u"-Pilot's_ storm"_s;
    EXPECT_EQ(this->selection().*TestFixture::Kind::nameInHand, name);
    EXPECT_EQ(this->selection().*TestFixture::Kind::descriptionInHand, "wet & windy");
    EXPECT_EQ(this->selection().madeSet, name);
    EXPECT_TRUE(this->selection().*TestFixture::Kind::refreshList);
    const auto calls = this->install.user.calls.last(2).join(u' ');
    EXPECT_TRUE(calls.startsWith(u"refresh frm_"_s) && calls.contains(u" show frm_"_s))
        << calls.toStdString();
    const auto set = this->record(name);
    EXPECT_EQ((QStringList{set->ColorSettings, set->Actvated, set->Description}),
              (QStringList{"5:0:-1.4:0:0:3", "False", "wet & windy"}));
    QStringList subfolders = TestFixture::Kind::facts().subfolders;
    subfolders.sort();
    EXPECT_EQ(this->install.files.listFolders(this->sets() / name), subfolders);
    EXPECT_TRUE(test::contentsBelow(this->sets()).isEmpty() && this->install.user.told().isEmpty());

    this->session.template state<FavouriteAnswer>().favConfirmed = true; // an OK of last time
    this->install.user.onModal = [](Screen) {};
    this->tuning.newFavourite();
    EXPECT_EQ(loadedSets<typename TestFixture::Kind>(this->session).Count(), countBefore + 1);
}

TYPED_TEST(RecolouredKindTest, noTitleLeadsOutOfTheSetsFolder) {
    const QStringList folders = this->install.files.listFolders(this->install.home());
    for (const QString& title : {u""_s, u"..\\..\\Resources"_s, u"../../../evil"_s, u"con."_s,
                                 u"' OR 1=1 --"_s, u"a\nb"_s + QChar(0)})
        this->nameFavourite(title, title);
    QStringList titles;
    for (const QString& name : this->install.files.listFolders(this->sets())) {
        titles << name.section(u'-', 1);
        EXPECT_EQ(this->activations({name}), "False") << name.toStdString();
    }
    EXPECT_EQ(titles.join(u'|'), u"|.._.._Resources|.._.._.._evil|con|' OR 1=1 --|a_b_"_s);
    EXPECT_EQ((this->install.files.listFolders(this->install.home()) + folders).removeDuplicates(),
              folders.size());
    EXPECT_TRUE(this->install.user.told().isEmpty());
}

/// Were the list's last record taken for the one just saved, another set would stand as the selected one.
TYPED_TEST(RecolouredKindTest, aRefusedSaveChangesNothingAndARowStandsWithoutItsFolders) {
    TypeParam::add(this->install, u"2-A"_s);
    this->selection().*TestFixture::Kind::nameInHand = u"2-A"_s;
    this->session.adoConn->execute(u"CREATE TRIGGER T BEFORE INSERT ON %1 BEGIN SELECT RAISE(ABORT, 'no'); "
                                   "END"_s.arg(TestFixture::Kind::Record::table().name));
    this->nameFavourite(u"Calm"_s);
    EXPECT_EQ(this->install.user.countOfKind(MessageKind::error), 1);
    EXPECT_EQ(this->selection().*TestFixture::Kind::nameInHand, "2-A");
    EXPECT_FALSE(this->selection().*TestFixture::Kind::refreshList);
    EXPECT_TRUE(this->install.files.listFolders(this->sets()).isEmpty());
    EXPECT_TRUE(this->install.user.calls.filter(u"show frm_"_s).isEmpty());

    this->session.adoConn->execute(u"DROP TRIGGER T"_s);
    const QString name =
        QString::number(loadedSets<typename TestFixture::Kind>(this->session).Count() + 1) + u"-Calm"_s;
    test::writeFile(this->sets() / name, "in the way");
    this->nameFavourite(u"Calm"_s);
    EXPECT_EQ(this->install.user.countOfKind(MessageKind::error), 2);
    EXPECT_TRUE(this->selection().*TestFixture::Kind::refreshList);
    EXPECT_EQ(this->activations({name}), "False");
}

} // namespace
} // namespace morvane
