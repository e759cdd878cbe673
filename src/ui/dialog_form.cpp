#include "ui/dialog_form.h"

#include "core/literals.h"
#include "core/session.h"
#include "ui/controls/labels.h"
#include "ui/shell.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QWindow>
#include <algorithm>
#include <functional>

namespace morvane {

namespace {

constexpr int longestComing = 500, longestGoing = 100, handover = 20; ///< milliseconds

bool isOnX() {
    return QGuiApplication::platformName() == u"xcb";
}

void runEventsWhile(const std::function<bool()>& condition, qint64 longest) {
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < longest && condition())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

DialogForm::DialogForm(Shell& shell, const QString& name, const WindowLook& look, const QString& title)
    : ShapedForm(shell, name, look) {
    setWindowModality(Qt::ApplicationModal);
    setWindowTitle(title);
    QLabel* label = makeLabel(this, title, {26, 56, look.size.width() - 52, 20}, TextRole::pageTitle);
    label->setObjectName(u"lblTitle"_s);
}

void DialogForm::addAnswerKeys(const QString& okTip, const QString& cancelTip) {
    const int top = height() - 58;
    addButton(
        {ButtonFamily::StandardButton, u"btn_Ok"_s, u"ok"_s, u"btn_CheckAll"_s, okTip, {width() - 120, top}});
    addCancelKey(cancelTip);
}

void DialogForm::addCancelKey(const QString& tip) {
    addButton({ButtonFamily::StandardButton,
               u"btn_Cancel"_s,
               u"cancel"_s,
               u"btn_Cancel"_s,
               tip,
               {width() - 65, height() - 58}});
}

void DialogForm::run() {
    prepare();
    const ExitProgress& exit = session().ExitInProgress;
    if (exit.isSilent()) return cancel();
    focusFirst();
    centreOver(shell().messageAnchor());
    QEventLoop loop;
    connect(this, &DialogForm::closed, &loop, &QEventLoop::quit);
    show();
    loop.exec();
    if (exit.isSilent() && isVisible()) cancel();
}

void DialogForm::setVisible(bool isWanted) {
    if (isWanted)
        shown_.start();
    else if (isVisible())
        waitForKeyboard();
    ShapedForm::setVisible(isWanted);
    if (!isWanted && isOnX())
        runEventsWhile([this] { return windowHandle() && windowHandle()->isActive(); }, longestGoing);
}

/// On X a window is told that it has the keyboard before it has. One that goes in between, as the progress of
/// a short job, takes the keyboard along: the program is deaf until another window was in front. And one that
/// comes again before it was told that it has lost the keyboard is never told that it has it.
void DialogForm::waitForKeyboard() {
    if (!isOnX() || QGuiApplication::applicationState() != Qt::ApplicationActive) return;
    const qint64 longest = longestComing - shown_.elapsed();
    runEventsWhile([this] { return !windowHandle()->isActive(); }, longest);
    runEventsWhile([] { return true; }, std::min<qint64>(longest, handover));
}

void DialogForm::allowOk(bool isAllowed) {
    button(u"btn_Ok"_s)->setState(isAllowed ? ButtonState::enabled : ButtonState::disabled);
}

bool DialogForm::isOkAllowed() const {
    const SkinnedButton* key = button(u"btn_Ok"_s);
    return key && key->state() != ButtonState::disabled;
}

void DialogForm::ok() {
    if (!isOkAllowed()) return;
    confirm();
    hide();
}

void DialogForm::cancel() {
    hide();
}

/// Enter that no control took says OK, where there is an OK.
void DialogForm::keyPressEvent(QKeyEvent* event) {
    const SkinnedButton* okKey = button(u"btn_Ok"_s);
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && okKey && okKey->isVisible())
        ok();
    else
        ShapedForm::keyPressEvent(event);
}

void DialogForm::hideEvent(QHideEvent* event) {
    Form::hideEvent(event);
    Q_EMIT closed();
}

} // namespace morvane
