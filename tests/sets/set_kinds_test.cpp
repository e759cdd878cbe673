#include "core/row_set.h"
#include "ground/ground_sets.h"
#include "night/night_sets.h"
#include "sets/set_removal.h"
#include "sky/sky_sets.h"
#include "support/night_install.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::SmallInstall;

/// How a test makes a set of the kind, and the files that it has in its folder.
template <class Kind>
struct Sample;

template <>
struct Sample<GroundKind> {
    static QStringList files() {
        return {u"Texture\\029h2su6.bmp"_s, u"UTEurLC\\034b2su4.bmp"_s, u"Dutch\\005a2su2.bmp"_s};
    }
    static void add(SmallInstall& install, const QString& name, bool activated, const QStringList& files) {
        install.addGroundSet(name, u"Overcast"_s, activated, files);
    }
    static FilePath target(const SmallInstall& install) {
        return install.simulator() / u"Scenery\\World\\texture\\029h2su6.bmp";
    }
};

template <>
struct Sample<NightKind> {
    static QStringList files() { return {u"Texture\\029b2lm1.bmp"_s, u"Dutch\\005a2lm2.bmp"_s}; }
    static void add(SmallInstall& install, const QString& name, bool activated, const QStringList& files) {
        test::addNightSet(install, name, activated, files);
    }
    static FilePath target(const SmallInstall& install) {
        return install.simulator() / u"Scenery\\World\\texture\\029b2lm1.bmp";
    }
};

template <>
struct Sample<SkyKind> {
    static QStringList files() { return {u"day.bmp"_s}; }
    static void add(SmallInstall& install, const QString& name, bool activated, const QStringList& files) {
        install.addSkySet(name, u"Overcast"_s, activated, files);
    }
    static FilePath target(const SmallInstall& install) { return install.simulator() / u"Texture\\day.bmp"; }
};

/// An install with "Default" and the activated sets "2-A", "3-B" and "4-C" of the kind.
template <class Kind>
struct SetKindTest : testing::Test {
    SetKindTest() {
        test::addNightStock(install);
        test::writeFile(install.simulator() / u"Texture\\day.bmp", "the pilot's sky");
        if (!findSet<Kind>(session, u"Default"_s)) Sample<Kind>::add(install, u"Default"_s, true, {});
        for (const QString& name : {u"2-A"_s, u"3-B"_s, u"4-C"_s})
            Sample<Kind>::add(install, name, true, Sample<Kind>::files());
    }
    void click(const QString& name) { EXPECT_TRUE(clickSetNamed<Kind>(session, name)); }
    void select(const QStringList& names) { setKind<Kind>().inHand(session).selection.selectedRows = names; }
    void confirm(const QStringList& names) {
        install.user.onModal = [=, this](Screen screen) {
            ASSERT_EQ(screen, Screen::frm_MultiDelete);
            offered = session.state<MultiChoice>().multiNames;
            session.state<MultiChoice>().multiConfirmed = names;
        };
    }
    bool& refreshList() { return setKind<Kind>().inHand(session).refreshList; }
    /// All sets behind "Default", "+" behind an activated and "*" behind an installed one.
    QString stored() { return test::setStates<Kind>(session).section(u' ', 1); }
    FilePath sets() const { return install.home() / Kind::facts().folder; }
    auto files() const { return test::contentsBelow(sets()); }

    SmallInstall install;
    Session& session = install.session;
    QStringList offered; ///< by frm_MultiDelete
};

using Kinds = testing::Types<GroundKind, NightKind, SkyKind>;
TYPED_TEST_SUITE(SetKindTest, Kinds);

TYPED_TEST(SetKindTest, deactivatingKeepsRowAndFoldersAndDeletingNothing) {
    this->click(u"2-A"_s);
    this->install.user.answersToGive = {false, true, true};
    TypeParam::remove(this->session, true);
    EXPECT_EQ(this->stored(), "2-A+ 3-B+ 4-C+") << "answered with no";
    this->refreshList() = false;
    TypeParam::remove(this->session, true);
    EXPECT_EQ(this->stored(), "2-A 3-B+ 4-C+");
    EXPECT_TRUE(this->refreshList());
    EXPECT_TRUE(this->files().keys().filter(u"2-A/"_s).isEmpty());
    EXPECT_EQ(this->install.files.listFolders(this->sets() / u"2-A").size(),
              TypeParam::facts().subfolders.size());
    this->click(u"2-A"_s);
    TypeParam::remove(this->session, false);
    EXPECT_EQ(this->stored(), "3-B+ 4-C+");
    EXPECT_EQ(this->install.files.listFolders(this->sets()), QStringList({"3-B", "4-C"}));
    const QString title = u"Question|Morvane Information|Do you wish to "_s;
    EXPECT_EQ(
        this->install.user.told().mid(1),
        QStringList({title + u"deactivate this the texture set: '2-A'?\n\nSelect Ok, to deactivate the "
                             "set or select Cancel to cancel the deactivate."_s,
                     title + u"delete the texture set: '2-A'?  This action cannot be reversed\n\nSelect "
                             "Ok, to delete the file or select Cancel to cancel the delete."_s}));
}

/// At night the installed set alone may go: wanted.
TYPED_TEST(SetKindTest, aloneDefaultAndTheInstalledSetAreRefused) {
    constexpr bool isNight = std::is_same<TypeParam, NightKind>::value;
    loadedSets<TypeParam>(this->session).markInstalled(u"2-A"_s);
    const std::pair<QString, QString> protectedSets[] = {{u"Default"_s, u"Default"_s},
                                                         {u"2-A"_s, u"currently installed"_s}};
    for (const auto& [name, words] : protectedSets) {
        if (name == u"2-A" && isNight) continue;
        for (const bool keepsColours : {false, true}) {
            this->click(name);
            TypeParam::remove(this->session, keepsColours);
            EXPECT_EQ(this->install.user.told().last(),
                      u"Exclamation|Morvane Information|You have selected the %1 texture set to "
                      "delete/deactivate.%2This is a protected texture set and no changes can be made to "
                      "this set."_s.arg(words, std::is_same_v<TypeParam, SkyKind> ? u"\n\n"_s : u"\n"_s));
        }
    }
    EXPECT_EQ(this->stored(), "2-A+* 3-B+ 4-C+");
    this->click(u"2-A"_s);
    TypeParam::remove(this->session, false);
    EXPECT_EQ(this->stored(), !isNight ? "2-A+* 3-B+ 4-C+" : "3-B+ 4-C+");
}

TYPED_TEST(SetKindTest, amongSeveralBothArePassedOverWithoutAWord) {
    loadedSets<TypeParam>(this->session).markInstalled(u"3-B"_s);
    this->click(u"2-A"_s);
    this->select({u"Default"_s, u"2-A"_s, u"3-B"_s, u"4-C"_s});
    this->confirm({u"2-A"_s, u"3-B"_s});
    TypeParam::remove(this->session, false);
    EXPECT_EQ(this->offered, QStringList({"2-A", "3-B", "4-C"}));
    EXPECT_EQ(this->stored(), "3-B+* 4-C+");
    EXPECT_TRUE(this->install.user.told().isEmpty());
    EXPECT_EQ(this->install.user.calls.filter("done "), QStringList({"done 1 texture set deleted"}));
    EXPECT_EQ(this->install.user.doneRemark, "1 set left");
}

TYPED_TEST(SetKindTest, aRemovalShowsThatItIsBusyAndCanBeEnded) {
    struct Case {
        bool keepsColours;
        int cancelAt; ///< the set before which the user cancels
        const char *stored, *verb, *done;
    };
    const Case cases[] = {
        {true, 0, "2-A 3-B 4-C+", "Deactivating", "done 2 texture sets deactivated"},
        {false, 2, "3-B 4-C+", "Deleting", "done 1 texture set deleted"},
    };
    this->confirm({u"2-A"_s, u"3-B"_s});
    for (const Case& example : cases) {
        this->select({u"2-A"_s, u"3-B"_s, u"4-C"_s});
        this->install.user.calls.clear();
        this->install.user.onPump = [&] {
            if (this->install.user.calls.filter("progress").size() == example.cancelAt)
                this->install.user.answers().cancelRequested = true;
        };
        TypeParam::remove(this->session, example.keepsColours);
        const QString text = u"%1 %2 texture set %3 of 2, '%4'.  Please wait............"_s;
        EXPECT_EQ(
            this->install.user.calls.mid(1, 5),
            QStringList({"message Progress Morvane Information",
                         text.arg("progress 0", example.verb, "1", "2-A"),
                         text.arg("progress 50", example.verb, "2", "3-B"), "hide message", example.done}));
        EXPECT_EQ(this->stored(), example.stored);
    }
}

TYPED_TEST(SetKindTest, severalRowsAreNotInstalled) {
    this->click(u"2-A"_s);
    this->select({u"2-A"_s, u"Default"_s});
    EXPECT_FALSE(TypeParam::install(this->session, false));
    EXPECT_EQ(this->stored(), "2-A+ 3-B+ 4-C+");
    const QString one = std::is_same_v<TypeParam, SkyKind> ? u"one"_s : u"one sky"_s; // so also of the ground
    EXPECT_EQ(this->install.user.told(),
              QStringList{u"Exclamation|Multiple Selection Detetected!|Morvane has detected more than one "
                          "selection for installation.  You can only select %1 texture set to be installed "
                          "at any one time.  Please check your selection and try again!."_s.arg(one)});
    EXPECT_FALSE(this->refreshList());
}

/// A file that cannot be replaced ends the install behind the row, which names the set already.
TYPED_TEST(SetKindTest, theStoreNamesTheSetBeforeTheFirstFile) {
    const FilePath target = Sample<TypeParam>::target(this->install);
    const QByteArray before = test::readFile(target);
    this->install.files.setReadOnly(target, true);
    this->click(u"2-A"_s);
    TypeParam::install(this->session, true);
    EXPECT_EQ(this->stored(), "2-A+* 3-B+ 4-C+");
    EXPECT_EQ(test::readFile(target), before);
    ASSERT_EQ(this->install.user.told().size(), 1);
    EXPECT_TRUE(this->install.user.told()[0].startsWith("Error|Morvane Error|Permission denied: "));
    this->install.files.setReadOnly(target, false);
    // In memory "3-B" still says "True": what another hand wrote stands.
    auto changed = *findSet<TypeParam>(this->session, u"3-B"_s);
    changed.*changed.table().activated = u"False"_s;
    ASSERT_TRUE(loadedSets<TypeParam>(this->session).Save(changed));
    TypeParam::install(this->session, true);
    EXPECT_EQ(this->stored(), "2-A+* 3-B 4-C+");
    EXPECT_NE(test::readFile(target), before);
}

} // namespace
} // namespace morvane
