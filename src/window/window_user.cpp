#include "window/window_user.h"

#include "core/progress_taker.h"
#include "core/session.h"
#include "core/writing.h"
#include "ui/controls/foot_line.h"
#include "ui/dialog_form.h"
#include "ui/host_form.h"
#include "window/message_screen.h"
#include "window/splash_screen.h"
#include "window/window_shell.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>

#include <cstdio>

namespace morvane {

namespace {

QMessageBox::StandardButtons boxButtons(SystemBoxButtons buttons) {
    switch (buttons) {
    case SystemBoxButtons::okCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case SystemBoxButtons::yesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case SystemBoxButtons::ok:
        break;
    }
    return QMessageBox::Ok;
}

/// Who starts an unattended run may read there how it went.
void writeOnStandardError(const Message& message) {
    if (message.kind == MessageKind::progress || message.kind == MessageKind::question) return;
    std::fprintf(stderr, "%s: %s\n", qUtf8Printable(message.title), qUtf8Printable(message.text));
}

} // namespace

frm_Msg& WindowUser::messageForm() const {
    return shell_->screen<frm_Msg>(u"frm_Msg"_s);
}

ProgressTaker* WindowUser::taker() const {
    return shell_ ? shell_->session().state<TakenProgress>().taker : nullptr;
}

QWidget* WindowUser::boxParent() const {
    if (!shell_) return nullptr;
    return isMessageFormVisible() ? shell_->loadedForm(u"frm_Msg"_s) : shell_->messageAnchor();
}

bool WindowUser::isSilent() const {
    return shell_ && shell_->session().ExitInProgress.isSilent();
}

void WindowUser::showMessage(const Message& message) {
    noteShown(message);
    if (shell_->session().writing->isUnattended) writeOnStandardError(message);
    if (taker() && !answers().isPending()) {
        if (!message.isProgress) taker()->takeMessage(message);
    } else if (!isSilent())
        messageForm().showMessage(message);
    else if (!message.isProgress)
        answers().answer(false);
}

/// While the program starts the splash has the bar.
void WindowUser::updateProgress(const QString& title, const QString& text, double value) {
    if (shell_->session().StartingUp)
        shell_->screen<frm_Splash>(u"frm_Splash"_s).showStep(text, value);
    else if (taker())
        taker()->takeProgress(value);
    else
        messageForm().updateProgress(title, text, value);
    pumpMessages();
}

void WindowUser::setProgressFile(const QString& line) {
    if (!taker()) messageForm().setProgressFile(line);
}

void WindowUser::hideMessage() {
    if (isMessageFormVisible()) messageForm().hide();
}

/// Which window will be shown once the job has ended is the job's to know, and the next click or key takes
/// the line from all of them.
void WindowUser::tellDone(const DoneLine& line) {
    noteShown(line);
    for (const QString& name : windowNames)
        if (const Form* window = shell_->loadedForm(name)) window->findChild<FootLine*>()->tellDone(line);
}

bool WindowUser::allowsRun(const RunSize& run) {
    const QString title = u"Morvane Information"_s;
    if (!run.fits())
        showMessage({MessageKind::exclamation, title,
                     run.refusal() +
                         u".\n\nOn the configuration page \"More settings\" leads to what Morvane "
                         "keeps, and to what of it can go."_s});
    else if (run.isQuestionWanted)
        return ask(Question::largeRun, title, run.summary());
    return run.fits();
}

bool WindowUser::isMessageVisible() const {
    return taker() || isMessageFormVisible();
}

bool WindowUser::isMessageFormVisible() const {
    const Form* form = shell_ ? shell_->loadedForm(u"frm_Msg"_s) : nullptr;
    return form && form->isVisible();
}

bool WindowUser::systemBox(const QString& text, const QString& title, SystemBoxButtons buttons) {
    noteShown(u"Box"_s, title, text);
    if (isSilent()) return false;
    QMessageBox box(QMessageBox::NoIcon, title.isEmpty() ? u"Morvane"_s : title, text, boxButtons(buttons),
                    boxParent());
    const int answer = box.exec();
    const bool isYes = answer == QMessageBox::Ok || answer == QMessageBox::Yes;
    noteShown(u"Answer"_s, title, isYes ? u"yes"_s : u"no"_s);
    return isYes;
}

QString WindowUser::browseForFolder(const QString& startFolder) {
    if (isSilent()) return {};
    const QString title = u"Please select a folder..."_s;
    return QDir::toNativeSeparators(QFileDialog::getExistingDirectory(boxParent(), title, startFolder));
}

void WindowUser::showModal(Screen screen) {
    if (auto* dialog = qobject_cast<DialogForm*>(shell_->form(screenName(screen)))) dialog->run();
}

/// A list window shows its list: a colour page that stands before it goes.
void WindowUser::showScreen(Screen screen) {
    Form* form = taker() ? nullptr : shell_->form(screenName(screen));
    if (!form) return;
    if (const auto* host = qobject_cast<HostForm*>(form)) {
        shell_->hideChildScreen(host->colourPage());
        shell_->CurrentChildScreen.clear();
    }
    form->show();
}

void WindowUser::hideScreen(Screen screen) {
    if (taker()) return; // the windows stay where they are behind it
    if (Form* form = shell_->loadedForm(screenName(screen))) form->hide();
}

/// A screen that nobody has opened has nothing to refresh; it is filled when it is opened.
void WindowUser::refreshScreen(Screen screen) {
    Form* form = shell_->loadedForm(screenName(screen));
    if (screen == Screen::frm_Main && form)
        shell_->refreshMainStatus();
    else if (auto* host = qobject_cast<HostForm*>(form))
        host->formatList();
    else if (auto* page = qobject_cast<PageForm*>(form))
        page->refresh();
}

void WindowUser::minimiseProgram() {
    shell_->minimiseProgram();
}

void WindowUser::pumpMessages() {
    QCoreApplication::processEvents();
}

} // namespace morvane
