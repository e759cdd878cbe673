// Whole runs started by a click, on the real engine.

#include "support/window_program.h"

#include "core/store.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/texture_sets.h"
#include "ui/controls/set_table.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <gtest/gtest.h>

namespace morvane {
namespace {

const QString window = u"frm_MVTextures"_s;

struct CreateRun : testing::Test {
    test::WindowProgram program;

    CreateRun() { program.shell.showHost(window); }
    /// Wants so many overcast sets.
    void create(const QString& count) {
        program.whenShown(u"frm_TsRequired"_s, [this, count](DialogForm& dialog) {
            program.control<QLineEdit>(u"frm_TsRequired"_s, u"txtOvercastClouds"_s).setText(count);
            dialog.ok();
        });
        program.press(window, u"btn_textureCreate"_s);
    }
    QStringList setNames() {
        QStringList names;
        refreshGroundSets(program.session);
        for (const auto& set : *program.session.rows<clsTextureSets>())
            names << set->TextureSet;
        return names;
    }
    QStringList filesBelow(const char16_t* folder) {
        return test::contentsBelow(program.install.home() / folder).keys();
    }
    /// Runs `step` at each turn of the event loop until it says that it is done. A timer does not fire inside
    /// its own step, so steps that wait for each other have one each.
    void untilDone(const std::function<bool()>& step) {
        auto* timer = new QTimer(&program.shell);
        timer->callOnTimeout([timer, step] {
            if (step()) timer->deleteLater();
        });
        timer->start(0);
    }
    /// Presses cancel as soon as progress shows, and says yes to the box.
    void cancelAtOnce() {
        untilDone([] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box) box->button(QMessageBox::Ok)->click();
            return box != nullptr;
        });
        untilDone([this, isPressed = false]() mutable {
            if (isPressed || !program.user.isMessageVisible()) return isPressed;
            isPressed = true;
            QTest::mouseClick(&program.control<QPushButton>(u"frm_Msg"_s, u"cmdCancel"_s), Qt::LeftButton);
            return true;
        });
    }
};

TEST_F(CreateRun, makesTheSetAndShowsItInTheList) {
    program.toldDuring([this] { create(u"1"_s); });
    ASSERT_EQ(setNames().size(), 2);
    EXPECT_FALSE(filesBelow(u"Texture Sets").isEmpty());
    EXPECT_EQ(program.control<SetTable>(window, u"lstTextureSets"_s).selectedNames(), setNames().mid(1));
    EXPECT_EQ(program.session.state<GroundSelection>().SelectedGroundCover, u"Overcast"_s)
        << "as if it had been clicked";
    EXPECT_EQ(program.stateOf(window, u"btn_TextureActivate"_s), ButtonState::deactivate);
    program.user.refreshScreen(Screen::frm_MVTextures);
    EXPECT_EQ(program.stateOf(window, u"btn_TextureActivate"_s), ButtonState::disabled)
        << "and once only: from then on the page selected it";
}

TEST_F(CreateRun, asksBeforeMoreThanTwentySets) {
    QString question;
    program.whenShown(u"frm_Msg"_s, [&](DialogForm& message) {
        question = program.text(u"frm_Msg"_s, u"lbl_Message"_s);
        message.cancel();
    });
    create(u"21"_s);
    EXPECT_TRUE(question.startsWith(u"21 ground sets: less than a minute, 1 MB of "_s))
        << question.toStdString();
    EXPECT_EQ(setNames(), QStringList{u"Default"_s});
    EXPECT_EQ(program.toldDuring([this] { create(u"20"_s); }).size(), 1) << "a report, without a question";
    EXPECT_EQ(setNames().size(), 21);
}

TEST_F(CreateRun, refusesWhatTheFreeSpaceCannotHold) {
    for (const bool isLarge : {false, true}) {
        const auto ask = [&] {
            EXPECT_FALSE(
                program.user.allowsRun({u"105 ground sets"_s, 240, 5'200'000'000, 1'100'000'000, isLarge}));
        };
        EXPECT_EQ(program.toldDuring(ask, {}, u"lbl_Message"_s),
                  QStringList{u"105 ground sets: 5.2 GB needed, 1.1 GB free"_s});
    }
}

TEST_F(CreateRun, leavesNothingOfASetThatIsCancelled) {
    const QStringList filesBefore = filesBelow(u"Texture Sets");
    cancelAtOnce();
    create(u"1"_s);
    EXPECT_EQ(setNames(), QStringList{u"Default"_s});
    EXPECT_EQ(filesBelow(u"Texture Sets"), filesBefore);
    EXPECT_TRUE(filesBelow(u"TempBitmaps").isEmpty());
    EXPECT_TRUE(program.shell.form(window)->isVisible());
    EXPECT_FALSE(program.user.isMessageVisible()) << "a cancel is not reported";
    EXPECT_FALSE(program.user.answers().cancelRequested);
}

} // namespace
} // namespace morvane
