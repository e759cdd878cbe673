#include "core/store.h"
#include "sky/screens/palette_picture.h"
#include "sky/screens/sky_sets_screen.h"
#include "sky/sky_generation.h"
#include "sky/sky_groups.h"
#include "sky/sky_selection.h"
#include "sky/sky_sets.h"
#include "sky/sky_tuning_state.h"
#include "support/printing.h"
#include "support/window_program.h"
#include "ui/controls/set_table.h"
#include "ui/controls/slider.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <gtest/gtest.h>

namespace morvane {
namespace {

const QString hostName = u"frm_KMTextures"_s, pageName = u"frm_SkyColorize"_s;

// The list ------------------------------------------------------------------------------------------------

/// The window of the sky over an activated, a deactivated and another activated set.
struct SkySetsScreenTest : testing::Test {
    SkySetsScreenTest() {
        program.install.addSkySet(u"1-Storm"_s, u"Overcast"_s, true, {u"sky_afternoon_3.bmp"_s},
                                  u"Overcast"_s);
        program.install.addSkySet(u"2-Haze"_s, u"Sky Clear"_s, false);
        program.install.addSkySet(u"3-Calm"_s, u"Sky Clear"_s, true, {u"sky_afternoon_3.bmp"_s}, u"Sunny"_s);
    }
    void open() {
        program.press(u"frm_Main"_s, u"btn_KMTextures"_s);
        list = &program.control<SetTable>(hostName, u"lstSkyTextureSets"_s);
    }
    void click(int row, int x) {
        const QRect place = list->visualItemRect(list->topLevelItem(row - 1));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, {place.left() + x, place.center().y()});
    }
    void clickRow(int row) { click(row, 60); }
    void tick(int row) { click(row, 11); }
    QStringList column(int column) {
        QStringList texts;
        for (int row = 1; row <= list->rowCount(); ++row)
            texts << list->textOf(row, column);
        return texts;
    }
    ButtonState stateOf(const QString& name) {
        return program.control<SkinnedButton>(hostName, name).state();
    }
    ButtonState activate() { return stateOf(u"btn_SkyTextureActivate"_s); }
    ButtonState install() { return stateOf(u"btn_SkyTextureInstall"_s); }
    QImage picture(const QString& name) { return program.control<PictureFrame>(hostName, name).picture(); }
    QStringList filesOf(const QString& set) {
        return test::contentsBelow(program.install.home() / u"Sky Texture Sets" / set).keys();
    }

    test::WindowProgram program;
    const SkySelection& selection = program.session.state<SkySelection>();
    SetTable* list = nullptr;

    static constexpr auto alive = ButtonState::enabled, dead = ButtonState::disabled;
};

TEST_F(SkySetsScreenTest, aSetOfDamagedColoursCanOnlyBeTakenAway) {
    Store& store = *program.install.session.adoConn;
    store.execute(
        u"UPDATE SKY_TEXTURE_SUB_SETS SET MAIN_SKY = '1:2' WHERE SKY_TEXTURE_SUB_SET LIKE '%3-Calm'"_s);
    store.execute(u"UPDATE SKY_TEXTURE_SETS SET TEXTURE_SET_GROUP = '..' WHERE SKY_TEXTURE_SET = '2-Haze'"_s);
    open();
    program.confirmNext(u"frm_Msg"_s);
    clickRow(3);
    EXPECT_EQ(selection.SelectedSkySet, u"3-Calm"_s);
    EXPECT_EQ(install(), ButtonState::disabled);
    EXPECT_EQ(activate(), ButtonState::deactivate);
    EXPECT_EQ(picture(u"picSkyTextureSetSource"_s), picture(u"picSkyTextureSetResult"_s));
    program.confirmNext(u"frm_Msg"_s);
    clickRow(2); // its base set is no folder's name
    EXPECT_EQ(selection.SelectedSkySet, u"2-Haze"_s);
    EXPECT_EQ(activate(), ButtonState::enabled);
}

TEST_F(SkySetsScreenTest, listsEverySkyAndShowsTheFirstOnItsOwnBase) {
    open();
    EXPECT_EQ(column(0), (QStringList{u"1-Storm"_s, u"2-Haze"_s, u"3-Calm"_s}));
    EXPECT_EQ(column(1), (QStringList{u"True"_s, u"False"_s, u"True"_s}));
    EXPECT_EQ(column(2), (QStringList{u"Overcast"_s, u"Sky Clear"_s, u"Sky Clear"_s}));
    EXPECT_EQ(column(3), (QStringList{u"Overcast"_s, u"Default"_s, u"Sunny"_s}));
    const QStringList heads{u"Activated?"_s, u"Cloud Cover"_s, u"Texture Set Group"_s};
    for (int column = 1; column < 4; ++column) {
        EXPECT_EQ(list->headerItem()->text(column), heads[column - 1]);
        EXPECT_EQ(list->topLevelItem(2)->toolTip(column), u"3-Calm"_s);
    }
    EXPECT_EQ(program.control<QLabel>(hostName, u"lblSkyTSDescription"_s).text(), u"A sky of a test"_s);
    EXPECT_EQ(selection.SelectedSkySet, u"1-Storm"_s);
    const QImage first = picture(u"picSkyTextureSetSource"_s);
    EXPECT_EQ(first.size(), QSize(32, 32));
    EXPECT_NE(first, picture(u"picSkyTextureSetResult"_s));
    clickRow(3);
    EXPECT_NE(first, picture(u"picSkyTextureSetSource"_s)) << "another base set";
    EXPECT_EQ(list->storedColour(1), qRgb(0, 0, 255));
    EXPECT_FALSE(program.session.state<SkySelection>().RefreshSkyList);
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
    EXPECT_EQ(activate(), alive) << "the keys go by the row in hand";
    tick(3);
    EXPECT_EQ(selection.selectedRows, QStringList{u"1-Storm"_s});
    clickRow(3);
    EXPECT_EQ(selection.SelectedSkyKey, list->keyOf(3));
    EXPECT_EQ(selection.selectedRows, QStringList{u"1-Storm"_s}) << "a click leaves the ticks";
    EXPECT_EQ(list->selectedNames(), QStringList{u"3-Calm"_s}) << "and is the only row in hand";
}

TEST_F(SkySetsScreenTest, oneSetIsActivatedForAllTimesOfDay) {
    open();
    clickRow(2);
    program.press(hostName, u"btn_SkyTextureActivate"_s);
    EXPECT_EQ(filesOf(u"2-Haze"_s),
              (QStringList{u"sky_afternoon_3.bmp"_s, u"sky_sunrise_1.bmp"_s, u"sky_sunset_1.bmp"_s}));
    EXPECT_EQ(list->textOf(2, 1), u"True"_s);
    EXPECT_EQ(list->selectedNames(), QStringList{u"2-Haze"_s});
    auto& key = program.control<SkinnedButton>(hostName, u"btn_SkyTextureActivate"_s);
    EXPECT_EQ(key.state(), ButtonState::deactivate);
    EXPECT_EQ(key.ButtonText(), u"Deactivate"_s);
}

TEST_F(SkySetsScreenTest, tickedSetsAreDeactivatedTogether) {
    open();
    clickRow(3);
    tick(1);
    tick(3);
    program.confirmNext(u"frm_MultiDelete"_s);
    program.press(hostName, u"btn_SkyTextureActivate"_s);
    EXPECT_EQ(column(1), QStringList(3, u"False"_s));
    EXPECT_TRUE(filesOf(u"1-Storm"_s).isEmpty());
    EXPECT_EQ(list->checkedNames(), QStringList());
    EXPECT_EQ(selection.selectedRows, QStringList()) << "the ticks went with the rows";
}

TEST_F(SkySetsScreenTest, severalTicksRefuseAnInstallAndOneClickInstalls) {
    open();
    tick(1);
    tick(2);
    QString told;
    program.whenShown(u"frm_Msg"_s, [&](DialogForm& message) {
        told = message.findChild<QLabel*>(u"lbl_Title"_s)->text();
        message.ok();
    });
    program.press(hostName, u"btn_SkyTextureInstall"_s);
    EXPECT_EQ(told, u"Multiple Selection Detetected!"_s);
    EXPECT_EQ(program.install.installedSkySets(), QStringList());
    tick(2);
    clickRow(3);
    QStringList questions;
    QTimer noToAll;
    QObject::connect(&noToAll, &QTimer::timeout, &noToAll, [&] {
        auto& message = program.shell.screen<DialogForm>(u"frm_Msg"_s);
        if (!message.button(u"btn_Cancel"_s)->isVisible()) return; // progress
        questions << message.findChild<QLabel*>(u"lbl_Title"_s)->text();
        message.cancel();
    });
    noToAll.start(0);
    program.press(hostName, u"btn_SkyTextureInstall"_s);
    EXPECT_EQ(questions.value(0), u"Install Matching Ground Texture Set?"_s);
    EXPECT_EQ(program.install.installedSkySets(), QStringList{u"3-Calm"_s});
    EXPECT_EQ(list->storedColour(3), qRgb(255, 0, 0));
    EXPECT_EQ(list->selectedNames(), QStringList{u"3-Calm"_s});
}

TEST_F(SkySetsScreenTest, hasRoomForTheLongestDescription) {
    open();
    const auto& label = program.control<QLabel>(hostName, u"lblSkyTSDescription"_s);
    const QString longest = u"a grey sky with a warm strip above hills "_s.repeated(7).left(255);
    const QRect room(0, 0, label.width(), 1000);
    const QRect needed = QFontMetrics(label.font()).boundingRect(room, Qt::TextWordWrap, longest);
    EXPECT_LE(needed.height(), label.height());
}

TEST_F(SkySetsScreenTest, anEmptyListLeavesOnlyCreate) {
    for (const auto& set : loadedSkySets(program.install.session))
        clsSkyTextureSetData(program.install.session).deleteSkyTexture(set->StsID);
    open();
    EXPECT_EQ(list->rowCount(), 0);
    EXPECT_EQ(activate(), dead);
    EXPECT_EQ(stateOf(u"btn_SkyTextureDelete"_s), dead);
    EXPECT_EQ(stateOf(u"btn_SkytextureCreate"_s), alive);
    EXPECT_TRUE(picture(u"picSkyTextureSetSource"_s).isNull());
}

TEST_F(SkySetsScreenTest, createsSetsFromTheHomeScreenAndFromTheList) {
    program.whenShown(u"frm_SelectSkyTexture"_s, [](DialogForm& dialog) {
        dialog.findChild<QCheckBox*>(u"chkStsGroup1"_s)->click();
        QTest::keyClicks(dialog.findChild<QLineEdit*>(u"txtLightClouds"_s), u"2"_s);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    program.press(u"frm_Main"_s, u"btn_SkyInstall"_s);
    EXPECT_TRUE(program.shell.form(u"frm_Main"_s)->isVisible());
    open();
    EXPECT_EQ(column(3).mid(3), QStringList(2, u"Sunny"_s));
    EXPECT_EQ(column(2).mid(3), QStringList(2, u"Mostly Clear"_s));
    EXPECT_EQ(list->selectedNames(), QStringList{list->textOf(5, 0)}) << "the last one made";
    program.confirmNext(u"frm_SelectSkyTexture"_s); // what was entered stands
    program.press(hostName, u"btn_SkytextureCreate"_s);
    ASSERT_EQ(list->rowCount(), 7);
    EXPECT_EQ(list->selectedNames(), QStringList{list->textOf(7, 0)}) << "the last one";
}

// The colour page -------------------------------------------------------------------------------------------

struct SkyColourScreenTest : testing::Test {
    void open() {
        program.shell.showHost(hostName);
        program.press(hostName, u"btn_Ground"_s);
        palette = &program.control<PalettePicture>(pageName, u"picSkySource"_s);
    }
    void clickPalette(int x, int y) {
        QTest::mouseClick(palette, Qt::LeftButton, {}, palette->picturePlace().topLeft() + QPoint(x, y));
    }
    QString tipAt(double x, double y) {
        const QPointF place = palette->picturePlace().topLeft() + QPointF(x, y);
        QMouseEvent move(QEvent::MouseMove, place, palette->mapToGlobal(place), Qt::NoButton, {}, {});
        QApplication::sendEvent(palette, &move);
        return palette->toolTip();
    }
    ucSlider& slider(const QString& name) { return program.control<ucSlider>(pageName, name); }
    QString label(const QString& name) { return program.control<QLabel>(pageName, name).text(); }
    QStringList labels() {
        QStringList texts;
        for (const char16_t* name :
             {u"lblSkySat", u"lblSkyRed", u"lblSkyGreen", u"lblSkyBlue", u"lblSkyBright", u"lblSkyContrast"})
            texts << label(QString::fromUtf16(name));
        return texts;
    }
    SkyGroup& record(int group) {
        return skyRecord(program.session.state<SkyColourTables>().skyPaletteGroups, group);
    }
    QImage picture(const QString& name) { return program.control<PictureFrame>(pageName, name).picture(); }
    bool isChanged() { return picture(u"picSkySource"_s) != picture(u"picSkyResult"_s); }
    QRadioButton& cover(int index) {
        return program.control<QRadioButton>(pageName, u"optCloudCover"_s + QString::number(index));
    }

    test::WindowProgram program;
    const SkyTuningState& tuning = program.session.state<SkyTuningState>();
    PalettePicture* palette = nullptr;
};

TEST_F(SkyColourScreenTest, aClickOnThePaletteTakesItsGroupInHand) {
    open();
    EXPECT_EQ(label(u"lblSkyPixelSelected"_s), skyGroup(1).text);
    struct Case {
        int x, y, group;
    };
    const Case cases[] = {{100, 3, 6}, {239, 3, 7},   {3, 3, 1},   {10, 3, 2},     {20, 3, 3}, {25, 3, 4},
                          {35, 3, 5},  {239, 228, 8}, {1, 237, 9}, {120, 120, 10}, {0, 10, 10}};
    for (const auto& [x, y, group] : cases) {
        clickPalette(x, y);
        EXPECT_EQ(tuning.selectedGroup, group) << x << ' ' << y;
        EXPECT_EQ(label(u"lblSkyPixelSelected"_s), skyGroup(group).text);
    }
    clickPalette(3, 3);
    clickPalette(120, -3);
    EXPECT_EQ(tuning.selectedGroup, 1) << "the frame is not the picture";
}

TEST_F(SkyColourScreenTest, theArrowKeysGoFromGroupToGroup) {
    open();
    for (int group = 2; group <= 11; ++group) {
        QTest::keyClick(palette, group % 2 ? Qt::Key_Right : Qt::Key_Down);
        EXPECT_EQ(tuning.selectedGroup, std::min(group, 10));
    }
    QTest::keyClick(palette, Qt::Key_Left);
    EXPECT_EQ(palette->accessibleDescription(), skyGroup(9).text);
}

TEST_F(SkyColourScreenTest, theTabKeyComesToThePaletteBeforeTheSliders) {
    open();
    QApplication::setActiveWindow(program.shell.form(hostName));
    program.control<QPushButton>(pageName, u"cmdSkyResetAll"_s).setFocus();
    QStringList visited;
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(program.shell.form(hostName)->focusWidget(), Qt::Key_Tab);
        visited << program.shell.form(hostName)->focusWidget()->objectName();
    }
    EXPECT_EQ(visited.join(u' '), u"picSkySource vcSkySat cmdSkySatMinus"_s);
}

TEST_F(SkyColourScreenTest, theTipTellsWhatLiesUnderThePointer) {
    open();
    EXPECT_EQ(tipAt(2, 3), skyGroup(1).tip);
    EXPECT_EQ(tipAt(120, 120), skyGroup(10).tip);
    EXPECT_EQ(tipAt(120, 236), skyGroup(9).tip);
    EXPECT_EQ(tipAt(7.55, 3), skyGroup(9).tip) << "between two columns the last one stays";
    // Column 5 is the dark water, and its tip speaks of light water all the same.
    EXPECT_EQ(tipAt(35, 3), u"This pixel will adjust the water light shadowing colors"_s);
    EXPECT_EQ(tipAt(237, 3), tipAt(35, 3));
}

TEST_F(SkyColourScreenTest, slidersWriteTheGroupInHandAndNoOther) {
    open();
    slider(u"vcSkyRed"_s).setValue(30);
    EXPECT_EQ(record(1).red, 30);
    EXPECT_FALSE(isChanged()) << "no region applies before it was clicked";
    clickPalette(120, 120);
    EXPECT_EQ(labels(), QStringList(6, u"default"_s));
    slider(u"vcSkyRed"_s).setValue(-35);
    EXPECT_EQ(label(u"lblSkyRed"_s), u"-35%"_s);
    EXPECT_TRUE(isChanged());
    clickPalette(100, 3);
    QTest::mouseClick(&program.control<QPushButton>(pageName, u"cmdSkyBluePlus"_s), Qt::LeftButton);
    EXPECT_EQ(record(6).blue, 5);
    EXPECT_EQ(record(6).red, 0);
    clickPalette(120, 120);
    EXPECT_EQ(slider(u"vcSkyRed"_s).value(), -35);
    EXPECT_EQ(slider(u"vcSkyBlue"_s).value(), 0);
    EXPECT_EQ(record(10).blue, 0);
    QTest::mouseClick(&program.control<QPushButton>(pageName, u"cmdSkyResetAll"_s), Qt::LeftButton);
    EXPECT_EQ(record(10).red, 0);
    EXPECT_EQ(record(6).blue, 5);
}

TEST_F(SkyColourScreenTest, aDrawnZeroIsNoDefault) {
    open();
    clickPalette(35, 3); // dark water has no rule
    program.press(pageName, u"btn_SkyRandomize"_s);
    EXPECT_EQ(labels(), QStringList(6, u"0%"_s));
    QTest::mouseClick(&program.control<QPushButton>(pageName, u"cmdSkyRedReset"_s), Qt::LeftButton);
    EXPECT_EQ(label(u"lblSkyRed"_s), u"default"_s);
    clickPalette(100, 3);
    EXPECT_EQ(labels(), QStringList(6, u"default"_s));
    clickPalette(3, 3);
    program.press(pageName, u"btn_SkyRandomize"_s);
    EXPECT_EQ(label(u"lblSkyBright"_s), u"100%"_s) << "a clear sky";
    EXPECT_EQ(record(1).brightness, 100);
}

TEST_F(SkyColourScreenTest, theStateIsLoadedOnce) {
    test::writeFile(program.install.home() / u"LastSkySettings.cfg",
                    "[Cloud Cover]\n1=Mostly Cloudy\n[Texture Set Group]\n1=Sunny\n[Red]\n1=15\n10=40\n"
                    "[PixelXLow]\n10=1\n[PixelXHigh]\n10=32\n[PixelY]\n10=255\n");
    open();
    EXPECT_TRUE(cover(3).isChecked());
    EXPECT_EQ(label(u"lblSkyRed"_s), u"15%"_s);
    EXPECT_TRUE(isChanged()) << "all groups of the file apply at once";
    const QImage sunny = picture(u"picSkySource"_s);
    clickPalette(120, 120);
    slider(u"vcSkyRed"_s).setValue(-20);
    cover(0).click();
    program.press(hostName, u"btn_TextureSets"_s);
    program.press(hostName, u"btn_Ground"_s);
    EXPECT_EQ(label(u"lblSkyRed"_s), u"-20%"_s);
    EXPECT_EQ(label(u"lblSkyPixelSelected"_s), skyGroup(10).text);
    EXPECT_EQ(tuning.cloudIndex, 1);
    EXPECT_EQ(record(10).red, -20);
    EXPECT_EQ(picture(u"picSkySource"_s), sunny);
}

TEST_F(SkyColourScreenTest, aForeignCoverLeavesTheOptionsAsTheyAre) {
    test::writeFile(program.install.home() / u"LastSkySettings.cfg",
                    "[Cloud Cover]\n1=Foggy\n[Texture Set Group]\n1=Tropical\n");
    open();
    for (int index = 0; index < 5; ++index)
        EXPECT_FALSE(cover(index).isChecked()) << index;
    EXPECT_EQ(tuning.cloudCover, u"Foggy"_s);
}

/// A click on a base set is in force at once; its sample is loaded with OK, and after a cancel for some only.
TEST_F(SkyColourScreenTest, aBaseSetIsChosenByItsClick) {
    open();
    struct Case {
        int option;
        bool confirmed;
        QString baseSet;
        bool isLoaded;
    };
    const Case cases[] = {{1, false, u"Horizons"_s, false},
                          {1, true, u"Horizons"_s, true},
                          {2, false, u"Sunny"_s, true},
                          {6, false, u"Pro Sky"_s, false},
                          {5, true, u"Default Softer"_s, true}};
    for (const Case& example : cases) {
        const QImage before = picture(u"picSkySource"_s);
        const QString former = tuning.baseSet;
        program.whenShown(u"frm_SelectBaseSky"_s, [&](DialogForm& dialog) {
            for (auto* option : dialog.findChildren<QRadioButton*>())
                EXPECT_EQ(option->isChecked(),
                          option->text() == u"Use The "_s + former + u" Type Base texture Set"_s);
            dialog.findChild<QRadioButton*>(u"optBaseSky"_s + QString::number(example.option))->click();
            example.confirmed ? dialog.ok() : dialog.cancel();
        });
        program.press(pageName, u"btn_LoadSkyTexture"_s);
        EXPECT_EQ(tuning.baseSet, example.baseSet);
        EXPECT_EQ(picture(u"picSkySource"_s) != before, example.isLoaded) << example.baseSet.toStdString();
    }
}

TEST_F(SkyColourScreenTest, aFavouriteBecomesASetWithoutFiles) {
    open();
    clickPalette(120, 120);
    slider(u"vcSkyRed"_s).setValue(12);
    cover(2).click();
    program.whenShown(u"frm_AddFav"_s, [](DialogForm& dialog) {
        QTest::keyClicks(dialog.findChild<QWidget*>(u"txtFavName"_s), u"Golden"_s);
        QTest::keyClicks(dialog.findChild<QWidget*>(u"txtFavDesc"_s), u"low sun"_s);
        dialog.ok();
    });
    program.press(pageName, u"btn_SkyFavorites"_s);
    EXPECT_FALSE(program.shell.form(pageName)->isVisible()) << "the list takes the page's place";
    auto& list = program.control<SetTable>(hostName, u"lstSkyTextureSets"_s);
    ASSERT_EQ(list.rowCount(), 1);
    const auto set = findSkySet(program.session, list.textOf(1, 0));
    ASSERT_TRUE(set);
    EXPECT_TRUE(set->SkyTextureSet.endsWith(u"-Golden"_s));
    EXPECT_EQ(set->Description, u"low sun"_s);
    EXPECT_EQ(set->CloudCover, u"Partly Cloudy"_s);
    EXPECT_EQ(set->Activated, u"False"_s);
    EXPECT_EQ(skyRecord(program.session.state<SkyColourTables>().skyTextureGroups, 10).red, 12);
}

// The quantities --------------------------------------------------------------------------------------------

TEST(SkySetCounts, theBoxesOfTheBaseSetsEnableTheirCounts) {
    test::WindowProgram program;
    SkySetCounts& modal = program.session.state<SkySetCounts>();
    program.whenShown(u"frm_SelectSkyTexture"_s, [&](DialogForm& dialog) {
        const auto enabled = [&dialog](const QString& name) {
            return dialog.findChild<QLineEdit*>(name)->isEnabled();
        };
        const QStringList names{u"Default"_s,  u"Sunny"_s,          u"Tropical"_s, u"Overcast"_s,
                                u"Horizons"_s, u"Default Softer"_s, u"Pro Sky"_s};
        for (int index = 0; index < names.size(); ++index) {
            auto* box = dialog.findChild<QCheckBox*>(u"chkStsGroup"_s + QString::number(index));
            box->click();
            EXPECT_EQ(modal.skyBaseSets, QStringList{names[index]});
            EXPECT_EQ(enabled(u"txtOvercastClouds"_s), index == 3);
            for (const char16_t* name :
                 {u"txtNoClouds", u"txtLightClouds", u"txtMediumClouds", u"txtLightOvcClouds"})
                EXPECT_EQ(enabled(QString::fromUtf16(name)), index != 3);
            box->click();
        }
        dialog.findChild<QCheckBox*>(u"chkStsGroup3"_s)->click();
        dialog.findChild<QCheckBox*>(u"chkStsGroup6"_s)->click();
        dialog.findChild<QCheckBox*>(u"chkStsGroup6"_s)->setFocus();
        QStringList visited;
        for (int i = 0; i < 6; ++i) {
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
            visited << dialog.focusWidget()->objectName();
        }
        EXPECT_EQ(visited.join(u' '), u"txtNoClouds txtLightClouds txtMediumClouds txtLightOvcClouds "
                                      "txtOvercastClouds btn_Ok"_s);
        dialog.findChild<QCheckBox*>(u"chkStsGroup6"_s)->click();
        auto* overcast = dialog.findChild<QLineEdit*>(u"txtOvercastClouds"_s);
        overcast->setFocus();
        QTest::keyClicks(overcast, u"12a"_s);
        dialog.cancel();
    });
    program.user.showModal(Screen::frm_SelectSkyTexture);
    EXPECT_FALSE(modal.skySetsConfirmed);
    EXPECT_EQ(modal.skyBaseSets, QStringList{u"Overcast"_s}) << "a box counts at its click";
    EXPECT_EQ(modal.skySetCounts.back(), 12);
}

} // namespace
} // namespace morvane
