#include "sky/screens/palette_picture.h"
#include "sky/screens/sky_sets_screen.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_generation.h"
#include "sky/sky_groups.h"
#include "sky/sky_selection.h"
#include "sky/sky_tuning_state.h"
#include "support/window_program.h"
#include "ui/controls/set_table.h"
#include "ui/controls/slider.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace morvane::test {
namespace {

const QString hostName = u"frm_KMTextures"_s, pageName = u"frm_SkyColorize"_s;

// The list ------------------------------------------------------------------------------------------------

/// The window of the sky over an activated, a deactivated and another activated set.
struct SkySetsScreenTest : testing::Test {
    SkySetsScreenTest() {
        const QStringList day{u"sky_afternoon_3.bmp"_s};
        program.install.addSkySet(u"1-Storm"_s, u"Overcast"_s, true, day, u"Overcast"_s);
        program.install.addSkySet(u"2-Haze"_s, u"Sky Clear"_s, false);
        program.install.addSkySet(u"3-Calm"_s, u"Sky Clear"_s, true, day, u"Sunny"_s);
    }
    void open() {
        program.press(u"frm_Main"_s, u"btn_KMTextures"_s);
        list = &program.control<SetTable>(hostName, u"lstSkyTextureSets"_s);
    }
    void clickRow(int row) const { test::clickRow(*list, row, {.x = 60}); }
    void tick(int row) const { test::clickRow(*list, row, {.x = 11}); }
    ButtonState activate() { return program.stateOf(hostName, u"btn_SkyTextureActivate"_s); }
    ButtonState install() { return program.stateOf(hostName, u"btn_SkyTextureInstall"_s); }
    QImage picture(const QString& name) { return program.picture(hostName, name); }

    WindowProgram program;
    const SkySelection& selection = program.session.state<SkySelection>();
    SetTable* list = nullptr;

    static constexpr auto alive = ButtonState::enabled, dead = ButtonState::disabled;
};

TEST_F(SkySetsScreenTest, listsEverySkyAndShowsTheFirstOnItsOwnBase) {
    open();
    EXPECT_EQ(list->rowCount(), 3);
    EXPECT_EQ(list->textOf(2, 0) + list->textOf(2, 3) + list->textOf(3, 3), u"2-HazeDefaultSunny"_s);
    EXPECT_EQ(list->topLevelItem(2)->toolTip(3), u"3-Calm"_s) << "on every column";
    EXPECT_EQ(program.text(hostName, u"lblSkyTSDescription"_s), u"A sky of a test"_s);
    const QImage first = picture(u"picSkyTextureSetSource"_s);
    EXPECT_NE(first, picture(u"picSkyTextureSetResult"_s));
    clickRow(3);
    EXPECT_NE(first, picture(u"picSkyTextureSetSource"_s)) << "another base set";
    EXPECT_EQ(list->storedColour(1), qRgb(0, 0, 255));
}

/// Unlike on the ground a selection from code offers deactivation, too; unlike there ticks say which are
/// several.
TEST_F(SkySetsScreenTest, theClickedRowIsInHandAndTheTickedOnesAreSeveral) {
    open();
    EXPECT_EQ(activate(), ButtonState::deactivate) << "selected by the page";
    EXPECT_EQ(install(), alive);
    clickRow(2);
    EXPECT_EQ(activate(), alive);
    EXPECT_EQ(install(), dead);
    tick(1);
    tick(3);
    EXPECT_EQ(selection.selectedRows, (QStringList{u"1-Storm"_s, u"3-Calm"_s}));
    EXPECT_EQ(selection.SelectedSkySet, u"2-Haze"_s) << "a tick takes nothing in hand";
    EXPECT_EQ(list->selectedNames(), QStringList{u"2-Haze"_s});
    tick(3);
    clickRow(3);
    EXPECT_EQ(selection.SelectedSkyKey, list->keyOf(3));
    EXPECT_EQ(selection.selectedRows, QStringList{u"1-Storm"_s}) << "a click leaves the ticks";
    EXPECT_EQ(list->selectedNames(), QStringList{u"3-Calm"_s}) << "and is the only row in hand";
}

// The colour page -------------------------------------------------------------------------------------------

struct SkyColourScreenTest : testing::Test {
    void open() {
        program.shell.showHost(hostName);
        program.press(hostName, u"btn_Ground"_s);
        palette = &program.control<PalettePicture>(pageName, u"picSkySource"_s);
    }
    void clickPalette(int x, int y) const {
        QTest::mouseClick(palette, Qt::LeftButton, {}, palette->picturePlace().topLeft() + QPoint(x, y));
    }
    void press(const QString& button) {
        QTest::mouseClick(&program.control<QPushButton>(pageName, button), Qt::LeftButton);
    }
    ucSlider& slider(const QString& name) { return program.control<ucSlider>(pageName, name); }
    QString label(const QString& name) { return program.text(pageName, name); }
    QStringList labels() {
        QStringList texts;
        for (const QString& name : {u"Sat"_s, u"Red"_s, u"Green"_s, u"Blue"_s, u"Bright"_s, u"Contrast"_s})
            texts << label(u"lblSky"_s + name);
        return texts;
    }
    SkyGroup& record(int group) {
        return skyRecord(program.session.state<SkyColourTables>().skyPaletteGroups, group);
    }
    QImage source() { return program.picture(pageName, u"picSkySource"_s); }
    bool isChanged() { return source() != program.picture(pageName, u"picSkyResult"_s); }

    WindowProgram program;
    const SkyTuningState& tuning = program.session.state<SkyTuningState>();
    PalettePicture* palette = nullptr;
};

TEST_F(SkyColourScreenTest, clicksAndArrowKeysTakeAGroupInHandAndTheTipTellsOfIt) {
    open();
    EXPECT_EQ(label(u"lblSkyPixelSelected"_s), skyGroup(1).text);
    const std::tuple<int, int, int> clicks[] = {{100, 3, 6}, {1, 237, 9}, {120, 120, 10}, {3, 3, 1}};
    for (const auto& [x, y, group] : clicks) {
        clickPalette(x, y);
        EXPECT_EQ(tuning.selectedGroup, group) << x << ' ' << y;
        EXPECT_EQ(label(u"lblSkyPixelSelected"_s), skyGroup(group).text);
    }
    clickPalette(120, -3);
    EXPECT_EQ(tuning.selectedGroup, 1) << "the frame is not the picture";
    for (int group = 2; group <= 11; ++group) {
        QTest::keyClick(palette, group % 2 ? Qt::Key_Right : Qt::Key_Down);
        EXPECT_EQ(tuning.selectedGroup, std::min(group, 10));
    }
    QTest::keyClick(palette, Qt::Key_Left);
    EXPECT_EQ(palette->accessibleDescription(), skyGroup(9).text);

    const auto tipAt = [this](double x, double y) {
        const QPointF place = palette->picturePlace().topLeft() + QPointF(x, y);
        QMouseEvent move(QEvent::MouseMove, place, palette->mapToGlobal(place), Qt::NoButton, {}, {});
        QApplication::sendEvent(palette, &move);
        return palette->toolTip();
    };
    EXPECT_EQ(tipAt(2, 3), skyGroup(1).tip);
    EXPECT_EQ(tipAt(7.55, 3), skyGroup(1).tip) << "between two columns the last one stays";
    EXPECT_EQ(tipAt(120, 236), skyGroup(9).tip);
}

TEST_F(SkyColourScreenTest, slidersWriteTheGroupInHandAndNoOther) {
    open();
    EXPECT_FALSE(isChanged());
    slider(u"vcSkyRed"_s).setValue(30);
    EXPECT_EQ(record(1).red, 30);
    EXPECT_FALSE(isChanged()) << "no region applies before it was clicked";
    clickPalette(3, 3);
    EXPECT_TRUE(isChanged());
    slider(u"vcSkyRed"_s).setValue(0);
    clickPalette(120, 120);
    EXPECT_EQ(labels(), QStringList(6, u"default"_s));
    slider(u"vcSkyRed"_s).setValue(-35);
    EXPECT_TRUE(isChanged());
    clickPalette(100, 3);
    press(u"cmdSkyResetAll"_s);
    EXPECT_EQ(record(10).red, -35);
    clickPalette(120, 120);
    program.press(hostName, u"btn_TextureSets"_s);
    program.press(hostName, u"btn_Ground"_s);
    EXPECT_EQ(label(u"lblSkyRed"_s), u"-35%"_s) << "the state is loaded once";
    EXPECT_EQ(label(u"lblSkyPixelSelected"_s), skyGroup(10).text);
}

TEST_F(SkyColourScreenTest, aDrawnZeroIsNoDefault) {
    open();
    clickPalette(35, 3); // dark water has no rule
    program.press(pageName, u"btn_SkyRandomize"_s);
    EXPECT_EQ(labels(), QStringList(6, u"0%"_s));
    press(u"cmdSkyRedReset"_s);
    EXPECT_EQ(label(u"lblSkyRed"_s), u"default"_s);
    clickPalette(3, 3);
    program.press(pageName, u"btn_SkyRandomize"_s);
    EXPECT_EQ(label(u"lblSkyBright"_s), u"100%"_s) << "a clear sky";
    EXPECT_EQ(record(1).brightness, 100);
}

/// It is in force at its click and shown by OK, some even after a cancel: wanted.
TEST_F(SkyColourScreenTest, aBaseSetIsChosenByItsClick) {
    open();
    const std::tuple<int, bool, bool> choices[] = {
        {1, false, false}, {1, true, true}, {2, false, true}, {3, false, true}, {4, false, true}};
    for (const auto& [number, isTaken, isShown] : choices) {
        const QImage before = source();
        program.whenShown(u"frm_SelectBaseSky"_s, [number = number, isTaken = isTaken](DialogForm& dialog) {
            auto* option = dialog.findChild<QRadioButton*>(u"optBaseSky%1"_s.arg(number));
            EXPECT_EQ(option->isChecked(), isTaken);
            option->click();
            isTaken ? dialog.ok() : dialog.cancel();
        });
        program.press(pageName, u"btn_LoadSkyTexture"_s);
        EXPECT_EQ(source() != before, isShown) << number;
    }
}

// The quantities --------------------------------------------------------------------------------------------

TEST(SkySetCounts, theBoxesOfTheBaseSetsEnableTheirCounts) {
    WindowProgram program;
    program.show(Screen::frm_SelectSkyTexture, [&](DialogForm& dialog) {
        for (int index = 0; index < 7; ++index) {
            auto* box = dialog.findChild<QCheckBox*>(u"chkStsGroup%1"_s.arg(index));
            box->click();
            EXPECT_EQ(program.session.state<SkySetCounts>().skyBaseSets, skyBaseSetBoxes().mid(index, 1));
            EXPECT_EQ(dialog.findChild<QLineEdit*>(u"txtOvercastClouds"_s)->isEnabled(), index == 3);
            EXPECT_EQ(dialog.findChild<QLineEdit*>(u"txtNoClouds"_s)->isEnabled(), index != 3);
            box->click();
        }
        dialog.cancel();
    });
}

} // namespace
} // namespace morvane::test
