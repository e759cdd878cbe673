#include "core/job.h"
#include "simulator/configs.h"
#include "support/window_program.h"
#include "ui/controls/skinned_progress_bar.h"
#include "weather/weather_state.h"
#include "window/message_screen.h"

#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QMovie>
#include <QPushButton>
#include <gtest/gtest.h>

namespace morvane {
namespace {

using test::WindowProgram;

class MessageScreenTest : public testing::Test {
protected:
    WindowProgram program;

    frm_Msg& form() { return program.shell.screen<frm_Msg>(u"frm_Msg"_s); }
    template <class Control>
    Control& control(const QString& name) {
        return program.control<Control>(u"frm_Msg"_s, name);
    }
    SkinnedButton& key(const QString& name) { return control<SkinnedButton>(name); }
    /// Which of OK, Cancel, bar's cancel and the box show, as letters.
    QString shown() {
        QString letters;
        if (!key(u"btn_Ok"_s).isHidden()) letters += u'o';
        if (!key(u"btn_Cancel"_s).isHidden()) letters += u'c';
        if (!control<QPushButton>(u"cmdCancel"_s).isHidden()) letters += u'p';
        if (!control<QCheckBox>(u"chkFastExit"_s).isHidden()) letters += u'x';
        return letters;
    }
    /// Answers the system box that comes next, whose button has that text in any form.
    void answerBox(QMessageBox::StandardButton button) {
        auto* timer = new QTimer(&program.shell);
        QObject::connect(timer, &QTimer::timeout, timer, [timer, button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box) return;
            timer->deleteLater();
            EXPECT_EQ(box->text(), u"Do you wish cancel the current operation?"_s);
            box->button(button)->click();
        });
        timer->start(0);
    }
    Message progress{MessageKind::progress, u"Working"_s, u"Please wait"_s, false, true, true};
};

TEST_F(MessageScreenTest, laysOutItsKeysByTheMessage) {
    struct Case {
        Message message;
        QString shown;
        QPoint okPlace;
    };
    Message exitQuestion{MessageKind::question, u"t"_s, u"x"_s, true, true};
    exitQuestion.offersFastExit = true;
    const Case cases[] = {
        {{MessageKind::information, u"t"_s, u"x"_s}, u"o"_s, {335, 242}},
        {{MessageKind::error, u"t"_s, u"x"_s, true, true}, u"oc"_s, {280, 242}},
        {{MessageKind::exlamation, u"t"_s, u"x"_s, false, true}, u"c"_s, {280, 242}},
        {exitQuestion, u"ocx"_s, {280, 242}},
    };
    for (const Case& testCase : cases) {
        program.whenShown(u"frm_Msg"_s, [&](DialogForm& dialog) {
            EXPECT_EQ(shown(), testCase.shown);
            EXPECT_EQ(key(u"btn_Ok"_s).pos(), testCase.okPlace);
            EXPECT_EQ(dialog.windowModality(), Qt::ApplicationModal);
            dialog.cancel();
        });
        program.user.showMessage(testCase.message);
        EXPECT_FALSE(form().isVisible());
    }
}

TEST_F(MessageScreenTest, answersThroughTheFirstQuestionThatIsAsked) {
    UserAnswers& answers = program.user.answers();
    for (const bool ok : {true, false}) {
        program.whenShown(u"frm_Msg"_s, [&](DialogForm&) {
            QTest::mouseClick(&key(ok ? u"btn_Ok"_s : u"btn_Cancel"_s), Qt::LeftButton);
        });
        answers.mark(Question::backup);
        EXPECT_EQ(program.user.ask(Question::reset, u"t"_s, u"x"_s), ok);
        EXPECT_FALSE(answers.flag(Question::backup)) << "the reset question comes before it";
        answers.unmark(Question::backup);
    }
    answers.mark(Question::weatherChoice);
    program.confirmNext(u"frm_Msg"_s);
    program.user.showMessage({MessageKind::question, u"t"_s, u"x"_s, true, true});
    EXPECT_FALSE(answers.flag(Question::weatherChoice)) << "this flag says cancelled";
}

TEST_F(MessageScreenTest, takesEscapeAndEnterAsAnswers) {
    const std::pair<Qt::Key, bool> keys[] = {{Qt::Key_Escape, false}, {Qt::Key_Return, true}};
    for (const auto& [press, answer] : keys) {
        program.whenShown(u"frm_Msg"_s,
                          [pressed = press](DialogForm& dialog) { QTest::keyClick(&dialog, pressed); });
        EXPECT_EQ(program.user.ask(Question::launch, u"t"_s, u"x"_s), answer);
    }
    program.user.answers().mark(Question::launch);
    program.whenShown(u"frm_Msg"_s, [](DialogForm& dialog) { dialog.close(); });
    program.user.showMessage({MessageKind::information, u"t"_s, u"x"_s});
    EXPECT_TRUE(program.user.answers().flag(Question::launch)) << "closing says OK where only OK shows";
    program.user.answers().unmark(Question::launch);
}

TEST_F(MessageScreenTest, showsMarkUpAsItReads) {
    program.whenShown(u"frm_Msg"_s, [&](DialogForm& dialog) {
        EXPECT_EQ(control<QLabel>(u"lbl_Message"_s).textFormat(), Qt::PlainText);
        EXPECT_EQ(control<QLabel>(u"lbl_Title"_s).text(), u"<b>12-Storm</b>"_s);
        dialog.ok();
    });
    program.user.showMessage({MessageKind::error, u"<b>12-Storm</b>"_s, u"<i>x</i>"_s});
}

TEST_F(MessageScreenTest, endsAMessageThatANewOneMeets) {
    QStringList order;
    program.whenShown(u"frm_Msg"_s, [&](DialogForm&) {
        program.confirmNext(u"frm_Msg"_s);
        program.user.showMessage({MessageKind::information, u"second"_s, u"x"_s});
        order << u"second"_s;
    });
    program.user.showMessage({MessageKind::information, u"first"_s, u"x"_s});
    order << u"first"_s;
    EXPECT_EQ(order, (QStringList{u"second"_s, u"first"_s})) << "last in, first out";
}

TEST_F(MessageScreenTest, blocksEveryOtherWindowWhileProgressShows) {
    program.user.showMessage(progress);
    EXPECT_EQ(shown(), u"p"_s);
    QWindow* window = program.shell.form(u"frm_Main"_s)->windowHandle();
    QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(60, 240));
    EXPECT_EQ(program.shell.loadedForm(u"frm_MVTextures"_s), nullptr) << "the click went through";
    program.user.hideMessage();
    EXPECT_FALSE(program.user.isMessageVisible());
}

TEST_F(MessageScreenTest, asksBeforeItCancels) {
    Job job(program.session);
    program.user.showMessage(progress);
    answerBox(QMessageBox::Cancel);
    QTest::mouseClick(&control<QPushButton>(u"cmdCancel"_s), Qt::LeftButton);
    EXPECT_FALSE(job.isCancelled());
    answerBox(QMessageBox::Ok);
    QTest::keyClick(&form(), Qt::Key_Escape);
    EXPECT_TRUE(job.isCancelled());
    EXPECT_TRUE(form().isVisible()) << "the job ends it, not the click";
    program.user.hideMessage();
}

TEST_F(MessageScreenTest, cannotBeCancelledWhereNothingSaysSo) {
    progress.withCancel = false;
    program.user.showMessage(progress);
    QTest::keyClick(&form(), Qt::Key_Escape);
    EXPECT_TRUE(form().isVisible());
    EXPECT_FALSE(program.user.answers().cancelRequested);
    program.user.hideMessage();
}

TEST_F(MessageScreenTest, showsAPictureOrAnAnimationBelowTheIcon) {
    const FilePath media = program.install.home() / u"Media";
    test::writeFile(media / u"server.bmp", test::smallBitmap(27, 90));
    test::writeFile(media / u"wait.gif",
                    QByteArray::fromBase64("R0lGODlhAQABAIAAAAAAAP///ywAAAAAAQABAAACAUwAOw=="));
    auto& picture = control<QLabel>(u"picASv6"_s);
    const auto shownFor = [&](const QString& name) {
        progress.picture = name;
        program.user.showMessage(progress);
        if (picture.isHidden()) return u"nothing"_s;
        if (picture.movie()) return picture.movie()->isValid() ? u"animation"_s : u"broken"_s;
        return picture.pixmap().isNull() ? u"empty"_s : u"picture"_s;
    };
    EXPECT_EQ(shownFor(u"server.bmp"_s), u"picture"_s);
    EXPECT_EQ(shownFor(u"wait.gif"_s), u"animation"_s);
    EXPECT_EQ(shownFor({}), u"nothing"_s);
    EXPECT_EQ(shownFor(u"missing.gif"_s), u"broken"_s) << "and no harm done";
    program.user.hideMessage();
}

TEST_F(MessageScreenTest, hasNoBarWhileActiveSkyWorksAndIsCancelledWithoutAQuestion) {
    const auto& bar = control<SkinnedProgressBar>({});
    for (const bool isBusy : {false, true}) {
        program.session.state<WeatherState>().ASv6Busy = isBusy;
        program.user.showMessage(progress);
        EXPECT_EQ(bar.isHidden(), isBusy);
        EXPECT_EQ(control<QPushButton>(u"cmdCancel"_s).text(),
                  isBusy ? u"Cancel"_s : u"Cancel the process"_s);
    }
    QTest::keyClick(&form(), Qt::Key_Escape);
    EXPECT_TRUE(program.user.answers().cancelRequested);
    program.user.hideMessage();
}

TEST_F(MessageScreenTest, updatesTitleTextAndFileLine) {
    program.user.showMessage(progress);
    program.user.setProgressFile(u"Processing file 3 of 9 files"_s);
    program.user.updateProgress(u" New "_s, {}, 40);
    EXPECT_EQ(control<QLabel>(u"lbl_Title"_s).text(), u"New"_s);
    EXPECT_EQ(control<QLabel>(u"lbl_Message"_s).text(), u"Please wait"_s);
    EXPECT_EQ(control<QLabel>(u"lblProcessFile"_s).text(), u"Processing file 3 of 9 files"_s);
    program.user.hideMessage();
}

TEST_F(MessageScreenTest, storesTheWishForAFastExitAtOnce) {
    Message question{MessageKind::question, u"t"_s, u"x"_s, true, true};
    question.offersFastExit = true;
    program.whenShown(u"frm_Msg"_s, [&](DialogForm& dialog) {
        auto& box = control<QCheckBox>(u"chkFastExit"_s);
        EXPECT_FALSE(box.isChecked()) << "it comes up clear";
        box.setChecked(true);
        box.setChecked(false);
        dialog.cancel();
    });
    program.user.showMessage(question);
    EXPECT_TRUE(clsConfigs(program.session).GetFastExitVal()) << "clearing it writes nothing";
}

} // namespace
} // namespace morvane
