#include "core/store.h"
#include "ground/ground_generation.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/screens/ground_sets_screen.h"
#include "sets/colour_settings.h"
#include "sets/favourite_name.h"
#include "sets/set_removal.h"
#include "support/window_program.h"
#include "ui/controls/set_table.h"
#include "ui/controls/slider.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>

namespace morvane::test {
namespace {

constexpr QRgb red = qRgb(255, 0, 0), blue = qRgb(0, 101, 161);
const QString hostName = u"frm_MVTextures"_s, pageName = u"frm_GroundColorize"_s;

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

struct GroundColourScreenTest : testing::Test {
    GroundColourScreenTest() {
        program.shell.showHost(hostName);
        program.press(hostName, u"btn_Ground"_s);
    }
    ucSlider& slider(const QString& name) { return program.control<ucSlider>(pageName, name); }
    QString label(const QString& name) { return program.text(pageName, name); }
    QString colours() { return colourSettingsText(program.session.state<GroundSelection>().colours); }
    QImage picture(const QString& name) { return program.picture(pageName, name); }

    WindowProgram program;
};

TEST_F(GroundColourScreenTest, aVisitPutsItsSlidersInHand) {
    EXPECT_EQ(colours(), u"0:0:0:0:0:0"_s) << "and no longer those of the list's set";
    EXPECT_EQ(picture(u"picImage"_s), picture(u"picDemo"_s));
    slider(u"vcRed"_s).setValue(-50);
    EXPECT_NE(picture(u"picImage"_s), picture(u"picDemo"_s));
    program.press(hostName, u"btn_TextureSets"_s);
    EXPECT_NE(colours(), u"0:-10:0:0:0:0"_s);
    program.press(hostName, u"btn_Ground"_s);
    EXPECT_EQ(colours(), u"0:-10:0:0:0:0"_s) << "the sliders keep their places";
}

TEST_F(GroundColourScreenTest, openTextureShowsTheChosenSample) {
    writeFile(program.install.home() / u"Resources\\GENERIC WORLD\\003b2wi3.bmp", smallBitmap(32, 90));
    const auto choose = [this](const QString& season, const QString& type) {
        program.whenShown(u"frm_SelectTexture"_s, [=](DialogForm& dialog) {
            EXPECT_TRUE(dialog.findChild<QRadioButton*>(u"optSeason_summer"_s)->isChecked());
            for (const QString& option : {u"optSeason_"_s + season, u"optTexture_"_s + type})
                dialog.findChild<QRadioButton*>(option)->click();
            dialog.ok();
        });
        program.press(pageName, u"btn_OpenTexture"_s);
    };
    EXPECT_EQ(label(u"lblSample"_s), u"Cities, Summer"_s);
    choose(u"spring"_s, u"desert"_s);
    EXPECT_EQ(picture(u"picImage"_s).width(), 32) << "the desert's spring is its winter";
    EXPECT_EQ(label(u"lblSample"_s), u"Deserts, Spring"_s);
    EXPECT_EQ(program.toldDuring([&] {
        program.whenShown(u"frm_SelectTexture"_s, [](DialogForm& dialog) { dialog.cancel(); });
        program.press(pageName, u"btn_OpenTexture"_s);
    }),
              QStringList())
        << "the OK of last time does not open it";
    program.confirmNext(u"frm_Msg"_s); // this install has no such file
    choose(u"fall"_s, u"rocks"_s);
    EXPECT_EQ(label(u"lblSample"_s), u"Deserts, Spring"_s) << "what still stands there";
}

struct GroundDialogsTest : testing::Test {
    WindowProgram program;
    GroundSetCounts& counts = program.session.state<GroundSetCounts>();
    FavouriteAnswer& favourite = program.session.state<FavouriteAnswer>();
    MultiChoice& names = program.session.state<MultiChoice>();
};

TEST_F(GroundDialogsTest, countsTakeDigitsAndAFullStopOnly) {
    const std::pair<QString, int> cases[] = {{u"1-2"_s, 12}, {u"x7 e"_s, 7}, {u"2.5"_s, 2},
                                             {u"3.5"_s, 4},  {u""_s, 0},     {u"12."_s, 12}};
    for (const auto& [typed, count] : cases) {
        counts.setCounts[2] = 6;
        program.show(Screen::frm_TsRequired, [&, keys = typed, count = count](DialogForm& dialog) {
            auto* box = dialog.findChild<QLineEdit*>(u"txtMediumClouds"_s);
            EXPECT_EQ(box->text(), u"6"_s);
            box->setFocus();
            box->selectAll();
            QTest::keyClick(box, Qt::Key_Backspace);
            EXPECT_EQ(counts.setCounts[2], 0) << "an empty box counts as none";
            QTest::keyClicks(box, keys);
            EXPECT_EQ(counts.setCounts[2], count) << keys.toStdString();
            if (count == 7) // by another way than the keys, or more than a count can be
                for (const QString& text : {u"40000"_s, u"1.2.3"_s}) {
                    EXPECT_EQ(program.toldDuring([&] { box->setText(text); }),
                              QStringList{u"Morvane Error"_s});
                    EXPECT_EQ(box->text(), u"7"_s);
                }
            dialog.cancel();
            EXPECT_FALSE(box->text().isEmpty()) << "it is not left empty";
        });
    }
}

TEST_F(GroundDialogsTest, aDescriptionEndsAfter255Letters) {
    const auto describe = [&](DialogForm& dialog) {
        auto* text = dialog.findChild<QPlainTextEdit*>(u"txtFavDesc"_s);
        EXPECT_TRUE(text->toPlainText().isEmpty()) << "not that of last time";
        text->setPlainText(QString(254, u'a'));
        text->moveCursor(QTextCursor::End);
        QTest::keyClicks(text, u"bc"_s);
        EXPECT_EQ(text->toPlainText(), QString(254, u'a') + u'b');
        EXPECT_EQ(program.text(u"frm_AddFav"_s, u"lblLength"_s), u"255"_s);
        QTest::keyClick(text, Qt::Key_Escape);
    };
    for (int round = 0; round < 2; ++round)
        program.show(Screen::frm_AddFav, describe);
    EXPECT_FALSE(favourite.favConfirmed);
}

TEST_F(GroundDialogsTest, theNamesThatStayCheckedAreConfirmed) {
    names.multiNames = QStringList{u"2-Storm"_s, u"3-Haze"_s, u"4-Late"_s};
    const auto choose = [&](void (DialogForm::*end)()) {
        program.show(Screen::frm_MultiDelete, [=](DialogForm& dialog) {
            clickRow(*dialog.findChild<SetTable*>(u"lstNames"_s), 2, {.x = 11});
            (dialog.*end)();
        });
        return names.multiConfirmed;
    };
    EXPECT_EQ(choose(&DialogForm::cancel), QStringList());
    EXPECT_EQ(choose(&DialogForm::ok), (QStringList{u"2-Storm"_s, u"4-Late"_s}));
}

} // namespace
} // namespace morvane::test
