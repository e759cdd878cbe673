#include "support/window_program.h"

#include "core/job.h"
#include "core/store.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/screens/ground_sets_screen.h"
#include "ground/texture_sets.h"
#include "sets/options_in_force.h"
#include "simulator/options.h"
#include "ui/controls/foot_line.h"
#include "ui/controls/skinned_progress_bar.h"
#include "weather/weather_state.h"
#include "window/form_table.h"
#include "window/message_screen.h"
#include "window/report_saving.h"
#include "window/single_window.h"
#include "window/typed_texts.h"

#include <QCheckBox>
#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>

namespace morvane::test {
namespace {

struct ShellTest : testing::Test {
    WindowProgram program;
    WindowShell& shell = program.shell;
};

TEST_F(ShellTest, findsHomeFromAPageThatAListWindowHasComeBackTo) {
    program.press(u"frm_Main"_s, u"btn_FlightConfig"_s);
    program.press(u"frm_Main"_s, u"btn_MVTextures"_s);
    EXPECT_EQ(shell.form(u"frm_MVTextures"_s)->focusWidget(),
              &program.control<SetTable>(u"frm_MVTextures"_s, u"lstTextureSets"_s))
        << "the keyboard is on the page";
    program.press(u"frm_MVTextures"_s, u"btn_Main"_s);
    const Form* weather = shell.loadedForm(u"frm_WxControl"_s);
    EXPECT_TRUE(weather->isVisible());
    program.press(u"frm_Main"_s, u"btn_Home"_s);
    EXPECT_FALSE(weather->isVisible());
    EXPECT_EQ(program.stateOf(u"frm_Main"_s, u"btn_Home"_s), ButtonState::disabled);
}

/// Dropped, or handed over by a second start while a dialog waits.
TEST_F(ShellTest, opensFilesOnceNothingElseIsOpen) {
    const auto drop = [&](const QString& form, const QString& file) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile((program.install.folder / u"notes.txt").native()),
                      QUrl::fromLocalFile((program.install.folder / file).native())});
        QDragEnterEvent enter({300, 300}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(shell.form(form), &enter);
        if (!enter.isAccepted()) return false;
        QDropEvent event({300, 300}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(shell.form(form), &event);
        return event.isAccepted();
    };
    writeFile(program.install.folder / u"Rückweg.PLN", "departure_name=Hamburg\nwaypoint.0=EDDH,A,,\n");
    writeFile(program.install.folder / u"look.morvaneset",
              R"({"morvaneset":1,"kind":"sky","name":"x","colours":["damaged"]})");
    program.press(u"frm_Main"_s, u"btn_FlightConfig"_s);
    EXPECT_FALSE(drop(u"frm_WxControl"_s, u"other.txt"_s));
    QStringList opened;
    bool isClosed = false;
    const auto look = [&](DialogForm& dialog) {
        opened << dialog.findChild<QLabel*>(u"lblDepVal"_s)->text()
               << QString::number(dialog.findChild<SetTable*>(u"lvwFPList"_s)->rowCount());
        dialog.cancel();
        isClosed = true;
    };
    program.whenShown(u"frm_FlightPlan"_s, look);
    program.show(Screen::frm_metar_request, [&](DialogForm& waiting) {
        EXPECT_TRUE(drop(u"frm_WxControl"_s, u"Rückweg.PLN"_s));
        QTest::qWait(300);
        EXPECT_TRUE(opened.isEmpty()) << "the dialog's answer comes first";
        waiting.cancel();
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return isClosed; }));
    EXPECT_EQ(opened, (QStringList{u"Hamburg"_s, u"1"_s}));
    program.press(u"frm_Main"_s, u"btn_MVTextures"_s);
    const QStringList told = program.toldDuring(
        [&] {
            EXPECT_TRUE(drop(u"frm_MVTextures"_s, u"look.morvaneset"_s));
            QTest::qWait(300);
        },
        {}, u"lbl_Message"_s);
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told[0].contains(u"look.morvaneset"_s)) << told[0].toStdString();
}

TEST_F(ShellTest, takesTheFileOfASecondStart) {
    SingleWindow window(program.install.home());
    ASSERT_TRUE(window.take());
    window.serve(shell);
    const FilePath plan = program.install.folder / u"Rückweg.lnmpln";
    writeFile(plan, "<LittleNavmap><Flightplan/></LittleNavmap>");
    bool isOpened = false;
    program.whenShown(u"frm_FlightPlan"_s, [&](DialogForm& dialog) {
        isOpened = true;
        dialog.cancel();
    });
    QProcess second;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    second.setProcessEnvironment(environment);
    second.start(QStringLiteral(MORVANE_BIN_DIR "/morvane"),
                 {u"--home"_s, program.install.home().native(), plan.native()});
    const auto isDone = [&] { return isOpened && second.state() == QProcess::NotRunning; };
    EXPECT_TRUE(QTest::qWaitFor(isDone, 60000));
    EXPECT_EQ(second.exitCode(), 0);
}

TEST_F(ShellTest, aRunThatWasCutIsAskedAboutOnceAndWhatIsTypedIsNoBusinessOfTheLog) {
    LastRun& last = program.session.state<LastRun>();
    QStringList told = program.toldDuring([&] { offerReport(program.session, shell.messageAnchor()); });
    EXPECT_TRUE(told.isEmpty());
    last.wasCut = true;
    const auto offer = [&] { offerReport(program.session, shell.messageAnchor()); };
    told = program.toldDuring([&] { offer(), offer(); }, {u"Save a Report?"_s});
    EXPECT_EQ(told, QStringList{u"Save a Report?"_s});
    program.control<QLineEdit>(u"frm_AddFav"_s, u"txtFavName"_s).setText(u"Geheim storm"_s);
    program.control<QPlainTextEdit>(u"frm_CC_From_Metar_String"_s, u"txtMetarString"_s)
        .setPlainText(u"EHAM 9X"_s);
    EXPECT_EQ(withoutPrivate(u"'GEHEIM STORM' of EHAM 9X, Morvane.log"_s, typedInWindows()),
              u"'<typed>' of <typed>, Morvane.log"_s);
}

TEST_F(ShellTest, theStatusPageCountsSetsAndTellsOfAWideClient) {
    program.install.addGroundSet(u"7-Fair"_s, u"Sky Clear"_s, true);
    program.install.addGroundSet(u"8-Fair"_s, u"Sky Clear"_s, false);
    program.install.addGroundSet(u"9-Grey"_s, u"Overcast"_s, true);
    refreshGroundSets(program.session);
    program.session.rows<clsTextureSets>()->markInstalled(u"9-Grey"_s);
    for (const bool isClient : {false, true}) {
        program.session.state<OptionsInForce>().IsWideClient = isClient;
        shell.refreshMainStatus();
        EXPECT_EQ(program.control<QLabel>(u"frm_Main"_s, u"lblWideFS"_s).isVisible(), isClient);
    }
    const std::pair<QString, QString> labels[] = {
        {u"lblGroundSkcValue"_s, u"2"_s},
        {u"lblGroundSkcActivatedValue"_s, u"1"_s},
        {u"lblCurrentTSName"_s, u"9-Grey"_s},
        {u"lblGroundCloudValue"_s, u"Overcast"_s},
        {u"lblBackupValue"_s, u"No backups created yet"_s},
        {u"lblGroundTextureSets"_s,
         u"Currently you have 3 sets active and the more sets you create for each cloud type (weather "
         "condition) the more variety you will enjoy in game"_s}};
    for (const auto& [label, text] : labels)
        EXPECT_EQ(program.text(u"frm_Main"_s, label), text);
    program.session.adoConn->execute(
        u"INSERT INTO MV_BACKUP(BACKUP_NAME, BACKUP_DATE_TIME) VALUES ('1-Backup', 'yesterday')"_s);
    shell.refreshMainStatus();
    EXPECT_EQ(program.text(u"frm_Main"_s, u"lblBackupValue"_s), u"unknown date"_s);
}

/// A page's own text goes and comes with the page; what a job said is on whichever window is shown next.
TEST_F(ShellTest, hasOneLineBelowThePageInEveryWindow) {
    const auto lineOf = [this](const QString& window) {
        return shell.form(window)->findChild<FootLine*>()->shown().text;
    };
    shell.goToPage(u"frm_About"_s);
    shell.screen<PageForm>(u"frm_About"_s).setFootText({u"a text of its own"_s});
    EXPECT_EQ(lineOf(u"frm_Main"_s), u"a text of its own"_s);
    shell.goToPage(u"frm_Links"_s);
    EXPECT_EQ(lineOf(u"frm_Main"_s), QString());
    shell.goToPage(u"frm_About"_s);
    EXPECT_EQ(lineOf(u"frm_Main"_s), u"a text of its own"_s);

    for (const QString& window : windowNames)
        shell.form(window);
    program.user.tellDone({u"2 texture sets deleted"_s});
    for (const QString& window : windowNames)
        EXPECT_EQ(lineOf(window), u"2 texture sets deleted"_s);
    QTest::mouseClick(shell.form(u"frm_Main"_s), Qt::RightButton);
    EXPECT_EQ(lineOf(u"frm_MVTextures"_s), QString());
    EXPECT_EQ(lineOf(u"frm_Main"_s), u"a text of its own"_s);
}

TEST_F(ShellTest, asksBeforeMoreThanTwentySets) {
    const auto create = [this](const QString& count) {
        program.whenShown(u"frm_TsRequired"_s, [this, count](DialogForm& dialog) {
            program.control<QLineEdit>(u"frm_TsRequired"_s, u"txtOvercastClouds"_s).setText(count);
            dialog.ok();
        });
        program.press(u"frm_MVTextures"_s, u"btn_textureCreate"_s);
        refreshGroundSets(program.session);
        return program.session.rows<clsTextureSets>()->Count();
    };
    shell.showHost(u"frm_MVTextures"_s);
    QString question;
    program.whenShown(u"frm_Msg"_s, [&](DialogForm& message) {
        question = program.text(u"frm_Msg"_s, u"lbl_Message"_s);
        message.cancel();
    });
    EXPECT_EQ(create(u"21"_s), 1);
    EXPECT_TRUE(question.startsWith(u"21 ground sets: less than a minute, 1 MB of "_s))
        << question.toStdString();
    EXPECT_EQ(program.toldDuring([&] { EXPECT_EQ(create(u"20"_s), 21); }).size(), 1) << "a report alone";
    const auto askForMore = [this] {
        EXPECT_FALSE(
            program.user.allowsRun({u"105 ground sets"_s, 240, 5'200'000'000, 1'100'000'000, false}));
    };
    EXPECT_TRUE(program.toldDuring(askForMore, {}, u"lbl_Message"_s)
                    .value(0)
                    .startsWith(u"105 ground sets: 5.2 GB needed, 1.1 GB free.\n"_s));
}

/// Two programs, as two sessions on one store: the other one is the install's own.
TEST_F(ShellTest, aKeyWaitsForASecondClickWhenItsListHasChanged) {
    const int storm = program.install.addGroundSet("2-Storm", "Overcast", true);
    program.press(u"frm_Main"_s, u"btn_MVTextures"_s);
    program.shell.screen<frm_MVTextures>(u"frm_MVTextures"_s).selectSetRow(2);
    EXPECT_EQ(program.session.state<GroundSelection>().SelectedGroundSet, u"2-Storm"_s);
    program.install.session.adoConn->execute(u"DELETE FROM TEXTURE_SETS WHERE ID = "_s +
                                             QString::number(storm));
    program.confirmNext(u"frm_Msg"_s);
    program.press(u"frm_MVTextures"_s, u"btn_TextureInstall"_s);
    EXPECT_EQ(program.session.state<GroundSelection>().SelectedGroundSet, u"Default"_s);
    EXPECT_TRUE(program.install.installedSets().isEmpty());
    program.install.addGroundSet("3-Calm", "Mostly Clear", true);
    bool isAsked = false;
    program.whenShown(u"frm_TsRequired"_s, [&](DialogForm& dialog) {
        isAsked = true;
        dialog.cancel();
    });
    program.press(u"frm_MVTextures"_s, u"btn_textureCreate"_s);
    EXPECT_TRUE(isAsked) << "new sets are made whatever the list shows";
}

TEST_F(ShellTest, whatCannotBeOpenedIsTold) {
    const QString help = (program.install.home() / u"MV Help\\index.html").native();
    writeFile(program.install.home() / u"MV Help\\index.html", "help");
    program.install.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"UpdateServer"_s,
                                          u"http://updates.example.org"_s);
    const QString none = u"There is no program here that opens "_s;
    const std::pair<std::function<void()>, QString> cases[] = {
        {[&] { shell.openHelp(); }, none + help},
        {[&] { shell.openWebPage(u"https://example.org/"_s); }, none + u"https://example.org/"_s},
        {[&] { shell.openUpdatePage(); },
         none + u"http://updates.example.org/updates.asp?product=Morvane&version=2.1.0"_s},
        {[&] { shell.openWebPage(u"file:///etc/passwd"_s, u"HomePage"_s); },
         u"There is no address yet. It would stand in the registry value \"HomePage\" of Morvane."_s},
    };
    for (const auto& [open, said] : cases)
        EXPECT_EQ(program.toldDuring(open, {}, u"lbl_Message"_s), QStringList{said});
}

TEST_F(ShellTest, aFolderIsNamedAsTheSystemNamesIt) {
    const QString home = program.install.home().native();
    QTimer answer;
    answer.callOnTimeout([] {
        if (auto* box = qobject_cast<QFileDialog*>(QApplication::activeModalWidget()))
            QTest::keyClick(box, Qt::Key_Return);
    });
    answer.start(0);
    EXPECT_EQ(program.user.browseForFolder(home), QDir::toNativeSeparators(home));
}

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
    Job job(program.session, u"work"_s);
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
