#include "support/window_program.h"

#include "core/job.h"
#include "simulator/options.h"
#include "ui/controls/skinned_progress_bar.h"
#include "weather/weather_state.h"
#include "window/message_screen.h"

#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>

namespace morvane::test {
namespace {

const QString name = u"frm_Msg"_s;

struct MessageScreenTest : testing::Test {
    frm_Msg& form() { return program.shell.screen<frm_Msg>(name); }
    template <class Control>
    Control& control(const QString& part) {
        return program.control<Control>(name, part);
    }
    /// Answers the system box that comes next.
    void answerBox(QMessageBox::StandardButton button) {
        auto* timer = new QTimer(&program.shell);
        timer->callOnTimeout([timer, button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box) return;
            timer->deleteLater();
            EXPECT_EQ(box->text(), u"Do you wish cancel the current operation?"_s);
            box->button(button)->click();
        });
        timer->start(0);
    }

    WindowProgram program;
    UserAnswers& answers = program.user.answers();
    const Message plain{MessageKind::information, u"t"_s, u"x"_s};
    Message question{MessageKind::question, u"t"_s, u"x"_s, true, true};
    Message progress{MessageKind::progress, u"Working"_s, u"Please wait"_s, false, true, true};
};

TEST_F(MessageScreenTest, asksBeforeItCancelsAndOnlyWhereThatIsOffered) {
    Job job(program.session);
    program.user.showMessage(progress);
    answerBox(QMessageBox::Cancel);
    control<QPushButton>(u"cmdCancel"_s).click();
    EXPECT_FALSE(job.isCancelled());
    answerBox(QMessageBox::Ok);
    QTest::keyClick(&form(), Qt::Key_Escape);
    EXPECT_TRUE(job.isCancelled());
    EXPECT_TRUE(form().isVisible()) << "the job ends it, not the click";
    answers.cancelRequested = false;
    progress.withCancel = false;
    program.user.showMessage(progress);
    QTest::keyClick(&form(), Qt::Key_Escape);
    EXPECT_TRUE(form().isVisible());
    EXPECT_FALSE(answers.cancelRequested);
    program.user.hideMessage();
}

TEST_F(MessageScreenTest, hasNoBarWhileActiveSkyWorksAndIsCancelledWithoutAQuestion) {
    for (const bool isBusy : {false, true}) {
        program.session.state<WeatherState>().ASv6Busy = isBusy;
        program.user.showMessage(progress);
        EXPECT_EQ(control<SkinnedProgressBar>({}).isHidden(), isBusy);
    }
    EXPECT_EQ(control<QPushButton>(u"cmdCancel"_s).text(), u"Cancel"_s);
    QTest::keyClick(&form(), Qt::Key_Escape);
    EXPECT_TRUE(answers.cancelRequested);
    program.user.hideMessage();
}

TEST_F(MessageScreenTest, anUnattendedRunTellsItsMessagesOnStandardError) {
    program.session.writing->isUnattended = true;
    testing::internal::CaptureStderr();
    program.confirmNext(name);
    program.user.showMessage(plain);
    program.user.showMessage(progress);
    program.user.hideMessage();
    const QString told = QString::fromStdString(testing::internal::GetCapturedStderr());
    EXPECT_TRUE(told.contains(u"t: x\n"_s)) << told.toStdString();
    EXPECT_FALSE(told.contains(u"Working"_s)) << "nobody is there to watch it";
}

TEST_F(MessageScreenTest, storesTheWishForAFastExitAtOnce) {
    question.offersFastExit = true;
    program.whenShown(name, [&](DialogForm& dialog) {
        auto& box = control<QCheckBox>(u"chkFastExit"_s);
        EXPECT_FALSE(box.isChecked()) << "it comes up clear";
        box.setChecked(true);
        box.setChecked(false);
        dialog.cancel();
    });
    program.user.showMessage(question);
    EXPECT_TRUE(storedSwitch(program.session, &OptionsInForce::IsFastExit)) << "clearing it writes nothing";
}

} // namespace
} // namespace morvane::test
