#include "ui/dialog_form.h"

#include "core/literals.h"
#include "core/session.h"
#include "ui/controls/labels.h"
#include "ui/shell.h"

#include <QEventLoop>
#include <QKeyEvent>
#include <QLabel>

namespace morvane {

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
    addButton({ButtonFamily::StandardButton,
               u"btn_Cancel"_s,
               u"cancel"_s,
               u"btn_Cancel"_s,
               cancelTip,
               {width() - 65, top}});
}

void DialogForm::run() {
    prepare();
    const ExitProgress& exit = session().ExitInProgress;
    if (exit.isSilent()) return cancel();
    centreOver(shell().messageAnchor());
    QEventLoop loop;
    connect(this, &DialogForm::closed, &loop, &QEventLoop::quit);
    show();
    loop.exec();
    if (exit.isSilent() && isVisible()) cancel();
}

void DialogForm::ok() {
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
