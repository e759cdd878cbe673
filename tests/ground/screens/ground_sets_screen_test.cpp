#include "core/store.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/screens/ground_sets_screen.h"
#include "support/printing.h"
#include "support/window_program.h"
#include "ui/controls/set_table.h"

#include <QHeaderView>
#include <gtest/gtest.h>

namespace morvane::test {
namespace {

constexpr QRgb red = qRgb(255, 0, 0), blue = qRgb(0, 101, 161);
const QString hostName = u"frm_MVTextures"_s;

/// The window of the ground over Default (activated), an activated and a deactivated set.
struct GroundSetsScreenTest : testing::Test {
    GroundSetsScreenTest() {
        program.install.addGroundSet(u"2-Storm"_s, u"Overcast"_s, true, {u"Texture\\029h2su6.bmp"_s});
        program.install.addGroundSet(u"3-Haze"_s, u"Sky Clear"_s, false, {u"Texture\\029h2su6.bmp"_s});
    }
    void open() {
        program.shell.showHost(hostName);
        screen = &program.shell.screen<frm_MVTextures>(hostName);
        list = screen->findChild<SetTable*>(u"lstTextureSets"_s);
    }
    void clickRow(int row, const RowClick& how = {}) const { test::clickRow(*list, row, how); }
    SkinnedButton& key(const QString& name) const { return *screen->button(name); }
    /// States of delete, create, activate and install, in the order in which the page sets them.
    std::vector<ButtonState> keyStates() const {
        std::vector<ButtonState> states;
        for (const QString& name : {u"btn_TextureDelete"_s, u"btn_textureCreate"_s, u"btn_TextureActivate"_s,
                                    u"btn_TextureInstall"_s})
            states.push_back(key(name).state());
        return states;
    }
    QImage picture(const QString& name) { return program.picture(hostName, name); }

    WindowProgram program;
    const GroundSelection& selection = program.session.state<GroundSelection>();
    frm_MVTextures* screen = nullptr;
    SetTable* list = nullptr;

    static constexpr auto alive = ButtonState::enabled, dead = ButtonState::disabled;
};

TEST_F(GroundSetsScreenTest, aDoubleClickInstallsWhatHasFilesAndActivatesWhatHasNone) {
    open();
    // The matching sky, the start of the simulator, and that folders are missing.
    const QStringList refused{u"Install Matching Ground Texture Set?"_s, u"Launch Flight Simulator?"_s};
    program.toldDuring([this] { clickRow(2, {.isDouble = true}); }, refused);
    EXPECT_EQ(list->storedColour(2), red) << "it is installed";
    program.toldDuring([this] { clickRow(3, {.isDouble = true}); });
    EXPECT_EQ(list->textOf(3, 1), u"True"_s);
    EXPECT_EQ(list->selectedNames(), QStringList{u"3-Haze"_s});
}

TEST_F(GroundSetsScreenTest, clicksTakeRowsInHand) {
    open();
    clickRow(3);
    clickRow(2, {.keys = Qt::ControlModifier});
    EXPECT_EQ(selection.SelectedGroundSet, u"2-Storm"_s) << "the last one clicked";
    EXPECT_EQ(selection.selectedRows, (QStringList{u"2-Storm"_s, u"3-Haze"_s}));
    QTest::keyClick(list, Qt::Key_Up);
    EXPECT_EQ(selection.selectedRows, QStringList{u"Default"_s}) << "the arrow keys select as clicks do";
    const auto placeOf = [this](int row) {
        return list->visualItemRect(list->topLevelItem(row - 1)).center();
    };
    QTest::mousePress(list->viewport(), Qt::LeftButton, {}, placeOf(1));
    QTest::mouseMove(list->viewport(), placeOf(3));
    QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, placeOf(3));
    EXPECT_EQ(selection.SelectedGroundSet, u"3-Haze"_s) << "a drag ends on it";
}

TEST_F(GroundSetsScreenTest, keepsTheRowInHandWhenItIsFilledAnew) {
    open();
    list->header()->setSortIndicatorShown(false);
    Q_EMIT list->header()->sectionClicked(0);
    ASSERT_EQ(list->textOf(2, 0), u"3-Haze"_s);
    clickRow(2);
    program.user.refreshScreen(Screen::frm_MVTextures);
    EXPECT_EQ(list->selectedNames(), QStringList{u"3-Haze"_s}) << "though it was the second when sorted";

    program.install.addGroundSet(u"4-Late"_s, u"Overcast"_s, false);
    program.user.refreshScreen(Screen::frm_MVTextures);
    EXPECT_EQ(list->rowCount(), 3) << "without the flag the collection is shown as it stands";
    program.session.state<GroundSelection>().RefreshGroundList = true;
    loadedGroundSets(program.session).markInstalled(u"3-Haze"_s);
    program.user.refreshScreen(Screen::frm_MVTextures);
    EXPECT_EQ(list->rowCount(), 4);
    EXPECT_EQ(list->storedColour(3), red);
    EXPECT_EQ(list->storedColour(4), blue);
    int row = 4;
    screen->formatSets(row);
    EXPECT_EQ(row, 0);
    EXPECT_EQ(list->selectedNames(), QStringList{u"4-Late"_s});
}

/// Each click shows one message, and the keys are never those of the row before.
TEST_F(GroundSetsScreenTest, aSetOfDamagedColoursCanOnlyBeTakenAway) {
    program.install.addGroundSet(u"4-Odd"_s, u"Mostly Clear"_s, true, {u"Texture\\029h2su6.bmp"_s});
    program.install.addGroundSet(u"5-Odd"_s, u"Overcast"_s, false);
    program.install.session.adoConn->execute(
        u"UPDATE TEXTURE_SETS SET COLOR_SETTINGS = '0:x' WHERE TEXTURE_SET LIKE '%Odd'"_s);
    open();
    EXPECT_EQ(selection.SelectedGroundCover, u"Partly Cloudy"_s) << "the page's choice has a cover, too";
    for (const auto& [row, activate] : {std::pair(4, ButtonState::deactivate), std::pair(5, dead)}) {
        clickRow(2);
        EXPECT_EQ(program.toldDuring([&, row = row] { clickRow(row); }).size(), 1);
        EXPECT_EQ(selection.SelectedGroundSet, list->textOf(row, 0));
        EXPECT_EQ(keyStates(), (std::vector{alive, alive, activate, dead})) << row;
        EXPECT_EQ(picture(u"picTextureSetSource"_s), picture(u"picTextureSetResult"_s));
    }
}

} // namespace
} // namespace morvane::test
