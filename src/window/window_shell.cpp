#include "window/window_shell.h"

#include "core/changed_rows.h"
#include "core/failure_report.h"
#include "core/opened_file.h"
#include "core/registry.h"
#include "core/session.h"
#include "core/writing.h"
#include "sets/set_kind.h"
#include "sets/set_sharing.h"
#include "simulator/set_matching.h"
#include "ui/accessible_controls.h"
#include "ui/dialog_form.h"
#include "ui/host_form.h"
#include "ui/page_form.h"
#include "ui/shaped_form.h"
#include "ui/skin.h"
#include "window/dispatch_table.h"
#include "window/form_table.h"
#include "window/main_screen.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QUrl>
#include <QUrlQuery>
#include <algorithm>

namespace morvane {

const QStringList windowNames{u"frm_Main"_s, u"frm_MVTextures"_s, u"frm_KMTextures"_s,
                              u"frm_NightTextures"_s};

bool isWebAddress(const QString& text) {
    const QUrl address(text, QUrl::StrictMode);
    return address.isValid() && (address.scheme() == u"http" || address.scheme() == u"https");
}

namespace {

/// For the end of whatever keeps a file from being opened.
constexpr int lookAgainMilliseconds = 100;

} // namespace

WindowShell::WindowShell(Session& session, Skin& skin) : Shell(session, skin) {
    installAccessibleControls();
    fileTimer_.setInterval(lookAgainMilliseconds);
    connect(&fileTimer_, &QTimer::timeout, this, &WindowShell::openWaitingFile);
}

WindowShell::~WindowShell() {
    // A page that stands in a window goes with it.
    for (Form* form : std::as_const(forms_))
        if (!form->parentWidget()) form->deleteLater();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Form* WindowShell::loadedForm(const QString& name) const {
    return forms_.value(name.toLower());
}

Form* WindowShell::form(const QString& name) {
    if (Form* loaded = loadedForm(name)) return loaded;
    Form* made = makeForm(*this, name);
    if (made) forms_.insert(name.toLower(), made);
    return made;
}

void WindowShell::showChildScreen(const QString& formName) {
    for (const ChildPage& page : childPages())
        if (const Form* loaded = loadedForm(page.form); loaded && loaded->isVisible())
            hideChildScreen(page.form);
    const ChildPage* page = childPage(formName);
    if (!page) return;
    Form* child = form(formName);
    formerParents_[formName.toLower()] = child->parentWidget();
    Form* host = form(page->host);
    child->setParent(host);
    child->move(pagePlace.topLeft());
    child->show();
    child->raise();
    // Not only covered: nobody may tab into it or hear it read out.
    host->ownPage()->hide();
}

void WindowShell::hideChildScreen(const QString& formName) {
    Form* child = childPage(formName) ? loadedForm(formName) : nullptr;
    if (!child || !child->parentWidget()) return;
    child->hide();
    if (const Form* host = Form::of(child->parentWidget())) host->ownPage()->show();
    child->setParent(formerParents_.take(formName.toLower()));
}

void WindowShell::goToPage(const QString& formName) {
    showChildScreen(formName);
    screen<PageForm>(formName).format();
    CurrentChildScreen = formName;
    CurrentMainScreen = formName;
    giveFocus(*form(formName));
}

/// A page without a control leaves the keyboard to its window's keys.
void WindowShell::giveFocus(Form& page) {
    if (page.focusFirst()) return;
    if (Form* host = Form::of(page.parentWidget())) host->focusFirst();
}

/// By the pages and not by `CurrentChildScreen`: after a visit to a list window that names none, and yet the
/// page that stood in the main window before still stands there.
void WindowShell::goHome() {
    const QString window = u"frm_Main"_s;
    for (const ChildPage& page : childPages())
        if (page.host == window) hideChildScreen(page.form);
    CurrentChildScreen.clear();
    formatMainScreen();
    giveFocus(*form(window));
}

void WindowShell::formatMainScreen() {
    screen<frm_Main>(u"frm_Main"_s).formatMainScreen();
}

void WindowShell::refreshMainStatus() {
    screen<frm_Main>(u"frm_Main"_s).refreshMainStatus();
}

void WindowShell::showHost(const QString& formName) {
    auto& host = screen<HostForm>(formName);
    host.move(form(u"frm_Main"_s)->pos());
    host.formatList();
    host.show();
    giveFocus(host);
    form(u"frm_Main"_s)->hide();
}

void WindowShell::leaveHost(const QString& formName) {
    auto& host = screen<HostForm>(formName);
    hideChildScreen(host.colourPage());
    CurrentChildScreen.clear();
    refreshMainStatus();
    form(u"frm_Main"_s)->move(host.pos());
    form(u"frm_Main"_s)->show();
    host.hide();
}

void WindowShell::showList(const QString& formName) {
    auto& host = screen<HostForm>(formName);
    hideChildScreen(host.colourPage());
    CurrentChildScreen.clear();
    host.formatList();
    giveFocus(host);
}

void WindowShell::openOutside(const QUrl& address) {
    if (!QDesktopServices::openUrl(address))
        showFailure(session().user, {u"Morvane Error"_s, MessageKind::exclamation},
                    u"There is no program here that opens "_s +
                        address.toDisplayString(QUrl::PreferLocalFile));
}

/// From the event loop alone: a drop waits for its answer, and a start has no windows yet.
void WindowShell::openFile(const QString& file) {
    if (openedFile(file) == OpenedFile::none) return;
    waitingFile_ = file;
    fileTimer_.start();
}

bool WindowShell::isIdle() const {
    const auto isShown = [this](const QString& name) {
        const Form* window = loadedForm(name);
        return window && window->isVisible();
    };
    return !session().StartingUp && !session().jobRunning && session().writing->holders == 0 &&
           !session().user.isMessageVisible() && !QApplication::activeModalWidget() &&
           std::ranges::any_of(windowNames, isShown);
}

/// From whichever windows stand there: a set may be of another kind than the list that it was dropped on.
void WindowShell::showOnlyList(const QString& formName) {
    for (const QString& name : windowNames)
        if (const Form* window = loadedForm(name);
            window && window->isVisible() && name != formName && name != u"frm_Main")
            leaveHost(name);
    if (form(u"frm_Main"_s)->isVisible())
        showHost(formName);
    else
        showList(formName);
}

void WindowShell::openWaitingFile() {
    if (session().ExitInProgress.stage() == ExitStage::running && !isIdle()) return;
    fileTimer_.stop();
    const FilePath file(std::exchange(waitingFile_, {}));
    if (file.isEmpty() || session().ExitInProgress.stage() != ExitStage::running) return;
    bringToFront();
    reportFailures(session().user, {}, [&] {
        reloadChangedRows(session());
        if (openedFile(file.fileName()) == OpenedFile::flightPlan)
            flyAlongPlan(session(), file);
        else if (const SetKind* kind = openLook(session(), file))
            showOnlyList(screenName(kind->facts.listScreen));
    });
    reportMissingSkin();
}

void WindowShell::openHelp() {
    const FilePath folder = session().AppPath / u"MV Help";
    const bool hasCompiled = session().files.exists(folder / u"Morvane.chm");
    const FilePath page = folder / (hasCompiled ? u"Morvane.chm" : u"index.html");
    if (session().files.exists(page))
        openOutside(QUrl::fromLocalFile(page.native()));
    else
        showFailure(session().user, {u"Morvane Error"_s, MessageKind::exclamation},
                    u"There is no help file in "_s + folder.text());
}

void WindowShell::openWebPage(const QString& address, const QString& registryValue) {
    if (isWebAddress(address))
        openOutside(QUrl(address));
    else
        session().user.showMessage({MessageKind::information, u"Morvane Information"_s,
                                    u"There is no address yet. It would stand in the registry value \""_s +
                                        registryValue + u"\" of Morvane."_s});
}

void WindowShell::openUpdatePage() {
    const QString value = u"UpdateServer"_s;
    const QString server = session().registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, value);
    QUrlQuery query;
    query.addQueryItem(u"product"_s, u"Morvane"_s);
    query.addQueryItem(u"version"_s, QCoreApplication::applicationVersion());
    openWebPage(server + (server.endsWith(u'/') ? u"updates.asp?"_s : u"/updates.asp?"_s) + query.toString(),
                value);
}

void WindowShell::minimiseProgram() const {
    for (const QString& name : windowNames)
        if (Form* window = loadedForm(name); window && window->isVisible()) return window->showMinimized();
}

void WindowShell::bringToFront() const {
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* front = modal ? modal->window() : messageAnchor();
    if (!front || !front->isVisible()) return; // the program is just starting
    if (front->isMinimized()) front->showNormal();
    front->raise();
    front->activateWindow();
}

void WindowShell::exitProgram() {
    // A close may also come from outside, through whatever covers the window.
    if (session().writing->holders > 0)
        exitAfterQuestion(u"Morvane is still working. Do you wish to end its work and exit Morvane?"_s);
    else if (session().ExitInProgress.stage() == ExitStage::running)
        leave(ExitStage::leaving);
}

void WindowShell::exitAfterQuestion(const QString& question) {
    ExitProgress& exit = session().ExitInProgress;
    if (exit.stage() != ExitStage::running) return;
    exit.moveTo(ExitStage::asking);
    const bool isWanted = session().user.systemBox(question, u"Exit Morvane?"_s, SystemBoxButtons::okCancel);
    exit.moveTo(ExitStage::running);
    if (isWanted) leave(ExitStage::leaving);
}

void WindowShell::endWithSession() {
    leave(ExitStage::sessionEnd);
}

void WindowShell::leave(ExitStage stage) {
    session().ExitInProgress.moveTo(stage);
    // The system's own dialog waits in a loop of the system's, which our exit does not end.
    if (auto* box = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) box->reject();
    // `quit` would be given up, as no window takes its close.
    QCoreApplication::exit(0);
}

QWidget* WindowShell::messageAnchor() const {
    for (const QString& name : windowNames)
        if (Form* window = loadedForm(name); window && window->isVisible()) return window;
    return loadedForm(u"frm_Main"_s);
}

void WindowShell::dispatch(SkinnedButton* button) {
    const Form* form = Form::of(button);
    const ButtonAction action =
        actionOf(button->family(), form ? form->formName() : QString(), button->button_type());
    if (!action) return;
    // An exception must not cross the toolkit's event loop.
    reportFailures(session().user, {}, [&] {
        if (isAsShown(*button)) action(*this, *button);
    });
    reportMissingSkin();
}

/// Another program may have written since the page was filled. A key that acts on what the page shows then
/// waits for a click on what is really there; new sets are made whatever it shows. The keys of a dialog
/// answer what was asked.
bool WindowShell::isAsShown(const SkinnedButton& button) {
    Form* form = Form::of(button.parentWidget());
    if (!form || qobject_cast<DialogForm*>(form)) return true;
    reloadChangedRows(session());
    const bool isForSelection =
        button.family() == ButtonFamily::LargeButton && !button.button_type().startsWith(u"create ");
    if (!form->showForeignChanges() || !isForSelection) return true;
    session().user.showMessage({MessageKind::information, u"Sets Have Changed"_s,
                                u"Another program has changed the texture sets.  The list shows them as they "
                                u"are now.  Please look at it and "
                                "choose again."_s});
    return false;
}

void WindowShell::reportMissingSkin() {
    if (hasReportedSkin_ || skin().missing().isEmpty() || session().ExitInProgress.isSilent()) return;
    hasReportedSkin_ = true;
    constexpr int namesShown = 5;
    const QStringList& missing = skin().missing();
    QString names = missing.mid(0, namesShown).join(u", "_s);
    if (missing.size() > namesShown)
        names += u" and "_s + QString::number(missing.size() - namesShown) + u" more"_s;
    session().user.showMessage(
        {MessageKind::exclamation, u"Morvane Information"_s,
         u"These files of the skin are missing or broken; plain windows and keys take their "
         "place: "_s +
             names + u". They belong into "_s + (session().AppPath / u"Media").text()});
}

} // namespace morvane
