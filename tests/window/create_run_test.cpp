// Whole runs started by a click, on the real engine.

#include "ground/ground_selection.h"
#include "ground/texture_sets.h"
#include "support/window_program.h"

#include "core/store.h"
#include "ground/ground_sets.h"
#include "ui/controls/set_table.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::WindowProgram;

class CreateRun : public testing::Test {
protected:
    WindowProgram program;

    /// Opens the list and wants one overcast set.
    void startFromList() {
        program.press(u"frm_Main"_s, u"btn_MVTextures"_s);
        program.whenShown(u"frm_TsRequired"_s, [&](DialogForm& dialog) {
            program.control<QLineEdit>(u"frm_TsRequired"_s, u"txtOvercastClouds"_s).setText(u"1"_s);
            dialog.ok();
        });
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
        QObject::connect(timer, &QTimer::timeout, timer, [timer, step] {
            if (step()) timer->deleteLater();
        });
        timer->start(0);
    }
    /// Says OK to the first message that can take it: the report behind the progress.
    void confirmReport() {
        untilDone([this] {
            Form* message = program.shell.loadedForm(u"frm_Msg"_s);
            const bool isReport = message->button(u"btn_Ok"_s)->isVisible();
            if (isReport) QTest::keyClick(message, Qt::Key_Return);
            return isReport;
        });
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
    const QStringList before = setNames();
    startFromList();
    confirmReport();
    program.press(u"frm_MVTextures"_s, u"btn_textureCreate"_s);
    EXPECT_EQ(setNames().size(), before.size() + 1);
    EXPECT_TRUE(program.shell.form(u"frm_MVTextures"_s)->isVisible());
    EXPECT_FALSE(program.user.isMessageVisible());
    EXPECT_FALSE(filesBelow(u"Texture Sets").isEmpty());
    const QStringList made{setNames().last()};
    EXPECT_EQ(program.control<SetTable>(u"frm_MVTextures"_s, u"lstTextureSets"_s).selectedNames(), made);
    EXPECT_EQ(program.session.state<GroundSelection>().SelectedGroundCover, u"Overcast"_s)
        << "as if it had been clicked";
    EXPECT_EQ(program.control<SkinnedButton>(u"frm_MVTextures"_s, u"btn_TextureActivate"_s).state(),
              ButtonState::deactivate);
    program.user.refreshScreen(Screen::frm_MVTextures);
    EXPECT_EQ(program.control<SkinnedButton>(u"frm_MVTextures"_s, u"btn_TextureActivate"_s).state(),
              ButtonState::disabled)
        << "and once only: from then on the page selected it";
}

TEST_F(CreateRun, asksBeforeMoreThanTwentySets) {
    const auto create = [this](const QString& count) {
        program.whenShown(u"frm_TsRequired"_s, [this, count](DialogForm& dialog) {
            program.control<QLineEdit>(u"frm_TsRequired"_s, u"txtOvercastClouds"_s).setText(count);
            dialog.ok();
        });
        program.press(u"frm_Main"_s, u"btn_GroundInstall"_s);
    };
    QString question;
    program.whenShown(u"frm_Msg"_s, [&](DialogForm& message) {
        question = program.control<QLabel>(u"frm_Msg"_s, u"lbl_Message"_s).text();
        message.cancel();
    });
    create(u"21"_s);
    EXPECT_TRUE(question.startsWith(u"21 ground sets: less than a minute, 1 MB of "_s))
        << question.toStdString();
    EXPECT_TRUE(question.endsWith(u" free"_s));
    EXPECT_EQ(setNames(), QStringList{u"Default"_s});
    confirmReport();
    create(u"20"_s);
    EXPECT_EQ(setNames().size(), 21) << "without a question";
}

TEST_F(CreateRun, refusesWhatTheFreeSpaceCannotHold) {
    QStringList told;
    for (const bool isLarge : {false, true}) {
        program.whenShown(u"frm_Msg"_s, [&](DialogForm& message) {
            told << program.control<QLabel>(u"frm_Msg"_s, u"lbl_Message"_s).text();
            message.ok();
        });
        EXPECT_FALSE(
            program.user.allowsRun({u"105 ground sets"_s, 240, 5'200'000'000, 1'100'000'000, isLarge}));
    }
    EXPECT_EQ(told, QStringList(2, u"105 ground sets: 5.2 GB needed, 1.1 GB free"_s));
}

TEST_F(CreateRun, leavesNothingOfASetThatIsCancelled) {
    const QStringList before = setNames();
    const QStringList filesBefore = filesBelow(u"Texture Sets");
    startFromList();
    cancelAtOnce();
    program.press(u"frm_MVTextures"_s, u"btn_textureCreate"_s);
    EXPECT_EQ(setNames(), before);
    EXPECT_EQ(filesBelow(u"Texture Sets"), filesBefore);
    EXPECT_TRUE(filesBelow(u"TempBitmaps").isEmpty());
    EXPECT_TRUE(program.shell.form(u"frm_MVTextures"_s)->isVisible());
    EXPECT_FALSE(program.user.isMessageVisible()) << "a cancel is not reported";
    EXPECT_FALSE(program.user.answers().cancelRequested);
}

TEST_F(CreateRun, doesNothingWhenTheCountsAreCancelled) {
    const QStringList before = setNames();
    program.whenShown(u"frm_TsRequired"_s,
                      [](DialogForm& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    program.press(u"frm_Main"_s, u"btn_GroundInstall"_s);
    EXPECT_EQ(setNames(), before);
    EXPECT_TRUE(program.shell.form(u"frm_Main"_s)->isVisible());
}

} // namespace
} // namespace morvane
