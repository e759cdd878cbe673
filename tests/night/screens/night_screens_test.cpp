#include "night/night_selection.h"
#include "night/screens/night_sets_screen.h"
#include "sets/colour_settings.h"
#include "support/window_program.h"
#include "ui/controls/slider.h"

#include <QRadioButton>

namespace morvane::test {
namespace {

const QString hostName = u"frm_NightTextures"_s, pageName = u"frm_NightColorize"_s;

/// The window of the night over Default and an activated and a deactivated set.
struct NightScreensTest : testing::Test {
    NightScreensTest() {
        addNightSet(program.install, u"Default"_s, true);
        addNightSet(program.install, u"2-Red"_s, true, {u"Texture\\029b2lm1.bmp"_s});
        addNightSet(program.install, u"3-Blue"_s, false);
        program.press(u"frm_Main"_s, u"btn_NightTextures"_s);
    }
    void openPage() { program.press(hostName, u"btn_Ground"_s); }
    QString labels() {
        QStringList texts;
        for (const QString& name :
             {u"lblSat"_s, u"lblRed"_s, u"lblGreen"_s, u"lblBlue"_s, u"lblBright"_s, u"lblContrast"_s})
            texts << program.text(pageName, name);
        return texts.join(u' ');
    }
    QRadioButton& option(int index) {
        return program.control<QRadioButton>(pageName, u"opt_LightsBias%1"_s.arg(index));
    }
    QString colours() { return colourSettingsText(program.session.state<NightSelection>().colours); }

    WindowProgram program;
};

TEST_F(NightScreensTest, theListInstallsWhatIsSelected) {
    auto& table = program.control<SetTable>(hostName, u"lstTextureSets"_s);
    clickRow(table, 2);
    program.press(hostName, u"btn_TextureInstall"_s);
    EXPECT_EQ(table.storedColour(2), qRgb(255, 0, 0));
    EXPECT_EQ(table.storedColour(3), qRgb(0, 101, 161));
    EXPECT_EQ(program.text(hostName, u"lblFavDescription"_s), u"A night of a test"_s);
    EXPECT_NE(program.picture(hostName, u"picTextureSetSource"_s),
              program.picture(hostName, u"picTextureSetResult"_s));
    program.press(hostName, u"btn_Main"_s);
    EXPECT_EQ(program.text(u"frm_Main"_s, u"lblCurrentNightTSName"_s), u"2-Red"_s);
}

TEST_F(NightScreensTest, lightsSetTheSlidersWhichAHandMovesAndAnotherClickSetsAnew) {
    openPage();
    EXPECT_EQ(colours(), u"0:0:0:0:0:0"_s) << "and no longer those of the list's set";
    for (int index = 0; index < 4; ++index)
        EXPECT_FALSE(option(index).isChecked());
    const QString white = u"13% default 80% 91% -28% default"_s;
    option(0).click();
    EXPECT_EQ(labels(), white);
    EXPECT_EQ(colours(), u"13:0:16:18.2:-8.4:0"_s);
    EXPECT_NE(program.picture(pageName, u"picImage"_s), program.picture(pageName, u"picDemo"_s));
    program.control<ucSlider>(pageName, u"vcRed"_s).setValue(40);
    EXPECT_EQ(labels(), u"13% 40% 80% 91% -28% default"_s);
    option(0).click();
    EXPECT_EQ(labels(), white);
    QApplication::setActiveWindow(program.shell.form(hostName));
    option(0).setFocus();
    QTest::keyClick(&option(0), Qt::Key_Down);
    EXPECT_EQ(labels(), u"default 65% -26% default -22% default"_s) << "the arrow keys choose as clicks do";
    option(2).click();
    EXPECT_EQ(labels(), u"20% 50% default default -22% default"_s);
    option(3).click();
    EXPECT_EQ(labels(), u"default -30% -30% 80% default default"_s) << "\"Green Lights\" are blue";
    program.install.random.numbers = {0.9999};
    program.press(pageName, u"btn_Random"_s);
    EXPECT_EQ(labels(), u"69% 29% 44% 49% 64% 44%"_s) << "the highest of each range";
    program.install.random.numbers = {0};
    program.press(pageName, u"btn_Random"_s);
    EXPECT_EQ(labels(), u"-30% -10% default -5% -25% -35%"_s);
}

} // namespace
} // namespace morvane::test
