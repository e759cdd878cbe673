#include "sky/sky_activation.h"

#include "sets/set_removal.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_groups.h"
#include "sky/sky_sets.h"
#include "support/printing.h"
#include "support/small_install.h"

#include <QImage>
#include <gtest/gtest.h>

namespace morvane {
namespace {

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

TEST_F(SkyActions, oneSetGetsThreeFamiliesOfFiles) {
    install.addSkySet("1-Storm", "Overcast", false, {}, "Sunny");
    install.addSkySet("2-Calm", "Sky Clear", false);
    click("1-Storm", {"Default", "1-Storm"}); // "Default" does not make it two
    SkyActivation(session).activateInHand();
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
    SkyActivation(session).activateInHand();
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
    SkyActivation(session).activateInHand();
    EXPECT_EQ(activations(), "TrueFalseFalse");
    EXPECT_FALSE(install.user.answers().cancelRequested);
    install.user.onPump = [] {};
    click("4-D", {"3-C", "2-B", "4-D"});
    SkyActivation(session).activateInHand();
    EXPECT_EQ(activations(), "TrueTrueFalse") << "the last was not confirmed";
    EXPECT_EQ(session.state<SkySelection>().SelectedSkySet, "2-B") << "the last one that was made";
    EXPECT_EQ(filesOf("2-B"), QStringList{"day.bmp"});
    EXPECT_TRUE(filesOf("3-C").isEmpty()) << "it is activated already";
    EXPECT_TRUE(filesOf("4-D").isEmpty() && install.user.told().isEmpty());
}

} // namespace
} // namespace morvane
