#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "imaging/slider_steps.h"
#include "sets/colour_settings.h"
#include "support/printing.h"
#include "support/window_program.h"
#include "ui/controls/option_picture.h"
#include "ui/controls/picture_frame.h"
#include "ui/controls/set_table.h"
#include "ui/controls/slider.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <gtest/gtest.h>

namespace morvane {
namespace {

const QString pageName = u"frm_GroundColorize"_s;

struct SliderNames {
    QString slider, label, caption;
};
const SliderNames names[] = {
    {u"vcSaturation"_s, u"lblSat"_s, u"Saturation"_s}, {u"vcRed"_s, u"lblRed"_s, u"Red"_s},
    {u"vcGreen"_s, u"lblGreen"_s, u"Green"_s},         {u"vcBlue"_s, u"lblBlue"_s, u"Blue"_s},
    {u"vcBright"_s, u"lblBright"_s, u"Brightness"_s},  {u"vcContrast"_s, u"lblContrast"_s, u"Contrast"_s}};

struct GroundColourScreenTest : testing::Test {
    GroundColourScreenTest() {
        program.shell.showHost(u"frm_MVTextures"_s);
        program.press(u"frm_MVTextures"_s, u"btn_Ground"_s);
    }
    ucSlider& slider(const QString& name) { return program.control<ucSlider>(pageName, name); }
    QString label(const QString& name) { return program.control<QLabel>(pageName, name).text(); }
    void clickBeside(const QString& sliderCaption, const QString& tip) {
        for (auto* button : page.findChildren<QPushButton*>())
            if (button->accessibleName() == sliderCaption + u": "_s + tip)
                return QTest::mouseClick(button, Qt::LeftButton);
        FAIL() << tip.toStdString();
    }
    QStringList labels() {
        QStringList texts;
        for (const SliderNames& row : names)
            texts << label(row.label);
        return texts;
    }
    QStringList labelsOfSliders() {
        QStringList texts;
        for (const SliderNames& row : names)
            texts << sliderLabel(slider(row.slider).value());
        return texts;
    }
    QString colours() { return colourSettingsText(program.session.state<GroundSelection>().colours); }
    QImage picture(const QString& name) { return program.control<PictureFrame>(pageName, name).picture(); }

    test::WindowProgram program;
    Form& page = *program.shell.form(pageName);
};

TEST_F(GroundColourScreenTest, aVisitPutsItsSlidersInHand) {
    EXPECT_EQ(labels(), QStringList(6, u"default"_s));
    EXPECT_EQ(colours(), u"0:0:0:0:0:0"_s) << "and no longer those of the list's set";
    EXPECT_EQ(label(u"lblSample"_s), u"Cities, Summer"_s);
    EXPECT_EQ(picture(u"picImage"_s), picture(u"picDemo"_s));
    EXPECT_EQ(program.control<SkinnedButton>(u"frm_MVTextures"_s, u"btn_Ground"_s).state(),
              ButtonState::disabled);

    slider(u"vcRed"_s).setValue(-50);
    program.press(u"frm_MVTextures"_s, u"btn_TextureSets"_s);
    EXPECT_FALSE(page.isVisible());
    EXPECT_NE(colours(), u"0:-10:0:0:0:0"_s);
    program.press(u"frm_MVTextures"_s, u"btn_Ground"_s);
    EXPECT_TRUE(page.isVisible());
    EXPECT_EQ(colours(), u"0:-10:0:0:0:0"_s) << "the sliders keep their places";
}

TEST_F(GroundColourScreenTest, everySliderSetsItsLabelAndItsColour) {
    const QString expected[] = {u"50:0:0:0:0:0"_s, u"0:10:0:0:0:0"_s, u"0:0:10:0:0:0"_s,
                                u"0:0:0:10:0:0"_s, u"0:0:0:0:15:0"_s, u"0:0:0:0:0:15"_s};
    for (std::size_t i = 0; i < std::size(names); ++i) {
        slider(names[i].slider).setValue(50);
        EXPECT_EQ(label(names[i].label), u"50%"_s);
        EXPECT_EQ(colours(), expected[i]);
        EXPECT_NE(picture(u"picImage"_s), picture(u"picDemo"_s)) << names[i].label.toStdString();
        clickBeside(names[i].caption, u"Reset to zero"_s);
        EXPECT_EQ(label(names[i].label), u"default"_s);
    }
    EXPECT_EQ(picture(u"picImage"_s), picture(u"picDemo"_s));
}

TEST_F(GroundColourScreenTest, buttonsStepByFiveWithinTheRange) {
    const std::tuple<int, QString, int> cases[] = {{98, u"Increment by 5%"_s, 100},
                                                   {100, u"Increment by 5%"_s, 100},
                                                   {0, u"Increment by 5%"_s, 5},
                                                   {-97, u"Decrement by 5%"_s, -100},
                                                   {0, u"Decrement by 5%"_s, -5}};
    for (const auto& [from, tip, to] : cases) {
        slider(u"vcBlue"_s).setValue(from);
        clickBeside(u"Blue"_s, tip);
        EXPECT_EQ(slider(u"vcBlue"_s).value(), to);
        EXPECT_EQ(label(u"lblBlue"_s), QString::number(to) + u'%');
    }
}

TEST_F(GroundColourScreenTest, randomSetsAllSlidersAndResetAllClearsThem) {
    slider(u"vcSaturation"_s).setValue(40);
    QTest::mouseClick(&program.control<QRadioButton>(pageName, u"optCloudCover4"_s), Qt::LeftButton, {},
                      {7, 16});
    EXPECT_EQ(label(u"lblSat"_s), u"40%"_s) << "a cover changes no slider";
    program.press(pageName, u"btn_Random"_s);
    EXPECT_EQ(label(u"lblSat"_s), u"default"_s) << "saturation is never drawn";
    EXPECT_LT(slider(u"vcRed"_s).value(), -9) << "an overcast sky takes red out";
    EXPECT_GE(slider(u"vcBlue"_s).value(), 20);
    EXPECT_EQ(labels(), labelsOfSliders());
    EXPECT_NE(colours(), u"0:0:0:0:0:0"_s);
    QTest::mouseClick(&program.control<QPushButton>(pageName, u"cmdResetAll"_s), Qt::LeftButton);
    EXPECT_EQ(labels(), QStringList(6, u"default"_s));
    EXPECT_EQ(colours(), u"0:0:0:0:0:0"_s);
}

TEST_F(GroundColourScreenTest, openTextureShowsTheChosenSample) {
    test::writeFile(program.install.home() / u"Resources\\GENERIC WORLD\\003b2wi3.bmp",
                    test::smallBitmap(32, 90));
    const auto choose = [this](const QString& season, const QString& type, void (DialogForm::*end)()) {
        program.whenShown(u"frm_SelectTexture"_s, [=](DialogForm& dialog) {
            EXPECT_TRUE(dialog.findChild<QRadioButton*>(u"optSeason_summer"_s)->isChecked());
            for (const QString& option : {u"optSeason_"_s + season, u"optTexture_"_s + type})
                dialog.findChild<QRadioButton*>(option)->click();
            (dialog.*end)();
        });
        program.press(pageName, u"btn_OpenTexture"_s);
    };
    choose(u"winter"_s, u"desert"_s, &DialogForm::cancel);
    EXPECT_EQ(picture(u"picImage"_s).width(), 16);
    choose(u"spring"_s, u"desert"_s, &DialogForm::ok);
    EXPECT_EQ(picture(u"picImage"_s).width(), 32) << "the desert's spring is its winter";
    EXPECT_EQ(label(u"lblSample"_s), u"Deserts, Spring"_s);
    program.confirmNext(u"frm_Msg"_s); // this install has no such file
    choose(u"fall"_s, u"rocks"_s, &DialogForm::ok);
    EXPECT_EQ(label(u"lblSample"_s), u"Deserts, Spring"_s) << "what still stands there";
}

TEST_F(GroundColourScreenTest, aFavouriteIsNamedByKeysAndListed) {
    slider(u"vcRed"_s).setValue(50);
    QTest::mouseClick(&program.control<QRadioButton>(pageName, u"optCloudCover1"_s), Qt::LeftButton, {},
                      {7, 16});
    program.whenShown(u"frm_AddFav"_s, [](DialogForm& dialog) {
        auto* name = dialog.findChild<QWidget*>(u"txtFavName"_s);
        auto* text = dialog.findChild<QWidget*>(u"txtFavDesc"_s);
        QTest::keyClicks(name, u" Golden: hour "_s);
        QTest::keyClicks(text, u"low sun "_s);
        EXPECT_EQ(dialog.findChild<QLabel*>(u"lblLength"_s)->text(), u"8"_s);
        QTest::keyClick(text, Qt::Key_Return);
    });
    program.press(pageName, u"btn_AddFavorite"_s);
    EXPECT_FALSE(page.isVisible()) << "the list takes the page's place";
    auto& list = program.control<SetTable>(u"frm_MVTextures"_s, u"lstTextureSets"_s);
    ASSERT_EQ(list.rowCount(), 2);
    const auto set = findGroundSet(program.session, list.textOf(2, 0));
    ASSERT_TRUE(set);
    EXPECT_TRUE(set->TextureSet.endsWith(u"-Golden_ hour"_s)) << set->TextureSet.toStdString();
    EXPECT_EQ(set->Description, u"low sun"_s);
    EXPECT_EQ(set->ColorSettings, u"0:10:0:0:0:0"_s);
    EXPECT_EQ(set->CloudCover, u"Mostly Clear"_s);
    EXPECT_EQ(set->Actvated, u"False"_s);
    const GroundSelection& selection = program.session.state<GroundSelection>();
    EXPECT_EQ(list.selectedNames(), QStringList{set->TextureSet}) << "as if it had been clicked";
    EXPECT_EQ(selection.SelectedGroundSet + u'|' + selection.SelectedGroundCover,
              set->TextureSet + u"|Mostly Clear"_s);
    EXPECT_EQ(program.control<SkinnedButton>(u"frm_MVTextures"_s, u"btn_TextureActivate"_s).state(),
              ButtonState::enabled);
}

TEST_F(GroundColourScreenTest, aClickOnItsDiscChoosesACover) {
    for (auto* disc : page.findChildren<OptionPicture*>())
        QTest::mouseClick(disc, Qt::LeftButton);
    EXPECT_TRUE(program.control<QRadioButton>(pageName, u"optCloudCover4"_s).isChecked());
    EXPECT_EQ(page.findChildren<OptionPicture*>().size(), 5);
}

} // namespace
} // namespace morvane
