#include "ground/ground_generation.h"
#include "ground/ground_selection.h"
#include "sets/colour_settings.h"
#include "sets/favourite_name.h"
#include "sets/set_removal.h"
#include "support/printing.h"
#include "support/window_program.h"
#include "ui/controls/set_table.h"
#include "ui/controls/slider.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <gtest/gtest.h>

namespace morvane::test {
namespace {

const QString hostName = u"frm_MVTextures"_s, pageName = u"frm_GroundColorize"_s;

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
