#include "night/night_selection.h"
#include "night/screens/night_sets_screen.h"
#include "sets/colour_settings.h"
#include "support/printing.h"
#include "support/window_program.h"
#include "ui/controls/picture_frame.h"
#include "ui/controls/slider.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <gtest/gtest.h>

namespace morvane {
namespace {

const QString hostName = u"frm_NightTextures"_s, pageName = u"frm_NightColorize"_s;

/// The window of the night over Default and an activated and a deactivated set.
struct NightScreensTest : testing::Test {
    NightScreensTest() {
        test::addNightSet(program.install, u"Default"_s, true);
        test::addNightSet(program.install, u"2-Red"_s, true, {u"Texture\\029b2lm1.bmp"_s});
        test::addNightSet(program.install, u"3-Blue"_s, false);
        program.press(u"frm_Main"_s, u"btn_NightTextures"_s);
        list = &program.control<SetTable>(hostName, u"lstTextureSets"_s);
    }
    void clickRow(int row, Qt::KeyboardModifiers modifiers = {}) {
        const QRect place = list->visualItemRect(list->topLevelItem(row - 1));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, place.center());
    }
    /// States of delete, activate and install.
    std::vector<ButtonState> keyStates() {
        std::vector<ButtonState> states;
        for (const QString& name :
             {u"btn_TextureDelete"_s, u"btn_TextureActivate"_s, u"btn_TextureInstall"_s})
            states.push_back(program.control<SkinnedButton>(hostName, name).state());
        return states;
    }
    void openPage() { program.press(hostName, u"btn_Ground"_s); }
    QString labels() {
        QStringList texts;
        for (const QString& name :
             {u"lblSat"_s, u"lblRed"_s, u"lblGreen"_s, u"lblBlue"_s, u"lblBright"_s, u"lblContrast"_s})
            texts << label(pageName, name);
        return texts.join(u' ');
    }
    QString label(const QString& form, const QString& name) {
        return program.control<QLabel>(form, name).text();
    }
    QRadioButton& option(int index) {
        return program.control<QRadioButton>(pageName, u"opt_LightsBias"_s + QString::number(index));
    }
    QString colours() { return colourSettingsText(program.session.state<NightSelection>().colours); }
    QImage picture(const QString& form, const QString& name) {
        return program.control<PictureFrame>(form, name).picture();
    }

    test::WindowProgram program;
    const NightSelection& selection = program.session.state<NightSelection>();
    SetTable* list = nullptr;

    static constexpr auto alive = ButtonState::enabled, dead = ButtonState::disabled;
};

TEST_F(NightScreensTest, listsEveryNightAndShowsTheOneInHandOnItsSample) {
    EXPECT_EQ(list->columnCount(), 2);
    EXPECT_EQ(list->headerItem()->text(1), u"Activated"_s);
    EXPECT_EQ(list->textOf(2, 0) + list->textOf(2, 1), u"2-RedTrue"_s);
    EXPECT_EQ(list->topLevelItem(1)->toolTip(1), u"Activated?"_s);
    EXPECT_EQ(label(hostName, u"lblFavDescription"_s), u"A night of a test"_s);
    EXPECT_FALSE(program.shell.form(hostName)->button(u"btn_textureCreate"_s));
    EXPECT_EQ(keyStates(), (std::vector{alive, dead, alive})) << "selected by the page";
    const QImage source = picture(hostName, u"picTextureSetSource"_s);
    EXPECT_EQ(source.size(), QSize(16, 16));
    EXPECT_NE(source, picture(hostName, u"picTextureSetResult"_s));
    EXPECT_FALSE(program.session.state<NightSelection>().RefreshNightList);

    clickRow(2);
    EXPECT_EQ(keyStates(), (std::vector{alive, ButtonState::deactivate, alive}));
    clickRow(3);
    EXPECT_EQ(keyStates(), (std::vector{alive, alive, dead}));
    EXPECT_EQ(selection.SelectedNightSet, u"3-Blue"_s);
    clickRow(1, Qt::ControlModifier);
    EXPECT_EQ(selection.selectedRows, (QStringList{u"Default"_s, u"3-Blue"_s}));
}

TEST_F(NightScreensTest, keysActivateInstallDeactivateAndDelete) {
    const FilePath set = program.install.home() / u"Night Texture Sets\\3-Blue";
    clickRow(3);
    program.press(hostName, u"btn_TextureActivate"_s);
    EXPECT_TRUE(program.shell.form(hostName)->isVisible());
    EXPECT_EQ(test::contentsBelow(set).size(), 5);
    EXPECT_EQ(list->textOf(3, 1), u"True"_s);
    program.press(hostName, u"btn_TextureInstall"_s);
    EXPECT_EQ(list->storedColour(3), qRgb(255, 0, 0));
    EXPECT_EQ(list->storedColour(2), qRgb(0, 101, 161));
    EXPECT_EQ(test::readFile(program.install.simulator() / u"Scenery\\World\\texture\\029B2LM1.BMP"),
              test::readFile(set / u"Texture\\029b2lm1.bmp"));
    program.press(hostName, u"btn_Main"_s);
    EXPECT_EQ(label(u"frm_Main"_s, u"lblCurrentNightTSName"_s), u"3-Blue"_s) << "so says the status page";

    program.press(u"frm_Main"_s, u"btn_NightTextures"_s);
    clickRow(3);
    program.confirmNext(u"frm_Msg"_s);
    program.press(hostName, u"btn_TextureActivate"_s);
    EXPECT_TRUE(test::contentsBelow(set).isEmpty());
    clickRow(3);
    program.confirmNext(u"frm_Msg"_s);
    program.press(hostName, u"btn_TextureDelete"_s);
    EXPECT_EQ(list->rowCount(), 2) << "the installed set, too";
}

TEST_F(NightScreensTest, lightsSetTheSlidersWhichAHandMovesAndAnotherClickSetsAnew) {
    openPage();
    EXPECT_EQ(label(pageName, u"lblSample"_s), u"Large City"_s);
    EXPECT_EQ(colours(), u"0:0:0:0:0:0"_s) << "and no longer those of the list's set";
    for (int index = 0; index < 4; ++index)
        EXPECT_FALSE(option(index).isChecked());
    const QString white = u"13% default 80% 91% -28% default"_s;
    option(0).click();
    EXPECT_EQ(labels(), white);
    EXPECT_EQ(colours(), u"13:0:16:18.2:-8.4:0"_s);
    EXPECT_NE(picture(pageName, u"picImage"_s), picture(pageName, u"picDemo"_s));
    program.control<ucSlider>(pageName, u"vcRed"_s).setValue(40);
    EXPECT_EQ(labels(), u"13% 40% 80% 91% -28% default"_s);
    option(0).click();
    EXPECT_EQ(labels(), white);
    QApplication::setActiveWindow(program.shell.form(hostName));
    option(0).setFocus();
    QTest::keyClick(&option(0), Qt::Key_Down);
    EXPECT_EQ(labels(), u"default 65% -26% default -22% default"_s) << "the arrow keys choose as clicks do";
    QTest::mouseClick(&program.control<QPushButton>(pageName, u"cmdResetAll"_s), Qt::LeftButton);
    EXPECT_EQ(colours(), u"0:0:0:0:0:0"_s);
    program.press(pageName, u"btn_Random"_s);
    EXPECT_FALSE(labels().contains(u"default"_s)) << "all six are drawn";
}

TEST_F(NightScreensTest, openTextureOffersFiveSamples) {
    openPage();
    const QImage city = picture(pageName, u"picImage"_s);
    const auto choose = [this](const QString& key, void (DialogForm::*end)()) {
        program.whenShown(u"frm_SelectNightTexture"_s, [=](DialogForm& dialog) {
            EXPECT_EQ(dialog.findChildren<QRadioButton*>().size(), 5);
            EXPECT_TRUE(dialog.findChild<QRadioButton*>(u"optNightTexture_large city"_s)->isChecked());
            dialog.findChild<QRadioButton*>(u"optNightTexture_"_s + key)->click();
            (dialog.*end)();
        });
        program.press(pageName, u"btn_OpenTexture"_s);
    };
    choose(u"rural"_s, &DialogForm::cancel);
    EXPECT_EQ(picture(pageName, u"picImage"_s), city);
    choose(u"rural"_s, &DialogForm::ok);
    EXPECT_NE(picture(pageName, u"picImage"_s), city);
    EXPECT_EQ(label(pageName, u"lblSample"_s), u"Rural"_s);
}

TEST_F(NightScreensTest, aFavouriteIsNamedAndListed) {
    openPage();
    option(3).click();
    program.whenShown(u"frm_AddFav"_s, [](DialogForm& dialog) {
        QTest::keyClicks(dialog.findChild<QLineEdit*>(u"txtFavName"_s), u"Cold"_s);
        dialog.ok();
    });
    program.press(pageName, u"btn_AddFavorite"_s);
    EXPECT_FALSE(program.shell.form(pageName)->isVisible()) << "the list takes the page's place";
    ASSERT_EQ(list->rowCount(), 4);
    EXPECT_EQ(list->textOf(4, 0) + list->textOf(4, 1), u"4-ColdFalse"_s);
    EXPECT_EQ(findNightSet(program.session, u"4-Cold"_s)->ColorSettings, u"0:-6:-6:16:0:0"_s);
    EXPECT_EQ(list->selectedNames(), QStringList{u"4-Cold"_s}) << "as if it had been clicked";
    EXPECT_EQ(program.session.state<NightSelection>().SelectedNightSet, u"4-Cold"_s);
    EXPECT_EQ(program.session.state<NightSelection>().selectedRows, QStringList{u"4-Cold"_s});
}

} // namespace
} // namespace morvane
