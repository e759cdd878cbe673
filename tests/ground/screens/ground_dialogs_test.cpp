#include "ground/ground_generation.h"
#include "sets/favourite_name.h"
#include "sets/set_removal.h"
#include "support/printing.h"
#include "support/window_program.h"
#include "ui/controls/set_table.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <gtest/gtest.h>

namespace morvane {
namespace {

struct GroundDialogsTest : testing::Test {
    test::WindowProgram program;
    GroundSetCounts& counts = program.session.state<GroundSetCounts>();
    FavouriteAnswer& favourite = program.session.state<FavouriteAnswer>();
    MultiChoice& names = program.session.state<MultiChoice>();
};

TEST_F(GroundDialogsTest, countsTakeDigitsAndAFullStopOnly) {
    const std::pair<QString, int> cases[] = {{u"1-2"_s, 12}, {u"x7 e"_s, 7}, {u"2.5"_s, 2},
                                             {u"3.5"_s, 4},  {u""_s, 0},     {u"12."_s, 12}};
    for (const auto& [typed, count] : cases)
        program.show(Screen::frm_TsRequired, [&, keys = typed, count = count](DialogForm& dialog) {
            auto* box = dialog.findChild<QLineEdit*>(u"txtMediumClouds"_s);
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

TEST_F(GroundDialogsTest, aDescriptionEndsAfter255Letters) {
    program.show(Screen::frm_AddFav, [&](DialogForm& dialog) {
        auto* text = dialog.findChild<QPlainTextEdit*>(u"txtFavDesc"_s);
        text->setPlainText(QString(254, u'a'));
        text->moveCursor(QTextCursor::End);
        QTest::keyClicks(text, u"bc"_s);
        EXPECT_EQ(text->toPlainText(), QString(254, u'a') + u'b');
        EXPECT_EQ(program.text(u"frm_AddFav"_s, u"lblLength"_s), u"255"_s);
        QTest::keyClick(text, Qt::Key_Escape);
    });
    EXPECT_FALSE(favourite.favConfirmed);
}

TEST_F(GroundDialogsTest, theNamesThatStayCheckedAreConfirmed) {
    names.multiNames = QStringList{u"2-Storm"_s, u"3-Haze"_s, u"4-Late"_s};
    const auto choose = [&](void (DialogForm::*end)()) {
        program.show(Screen::frm_MultiDelete, [=](DialogForm& dialog) {
            test::clickRow(*dialog.findChild<SetTable*>(u"lstNames"_s), 2, {.x = 11});
            (dialog.*end)();
        });
        return names.multiConfirmed;
    };
    EXPECT_EQ(choose(&DialogForm::cancel), QStringList());
    EXPECT_EQ(choose(&DialogForm::ok), (QStringList{u"2-Storm"_s, u"4-Late"_s}));
}

} // namespace
} // namespace morvane
