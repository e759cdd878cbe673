#include "ui/form.h"

#include "core/opened_file.h"
#include "ui/shell.h"

#include <QDropEvent>
#include <QMimeData>
#include <QRadioButton>
#include <QUrl>

namespace morvane {

namespace {

/// The first that the shell opens; empty where there is none.
QString droppedFile(const QMimeData& data) {
    for (const QUrl& url : data.urls())
        if (const QString file = url.toLocalFile(); openedFile(file) != OpenedFile::none) return file;
    return {};
}

} // namespace

Form::Form(Shell& shell, const QString& name, QWidget* parent) : QWidget(parent), shell_(shell) {
    setObjectName(name);
}

Form* Form::of(QWidget* widget) {
    for (; widget; widget = widget->parentWidget())
        if (auto* form = qobject_cast<Form*>(widget)) return form;
    return nullptr;
}

Session& Form::session() const {
    return shell_.session();
}

Skin& Form::skin() const {
    return shell_.skin();
}

SkinnedButton* Form::addButton(const ButtonSetup& setup, QWidget* parent) {
    auto* button = new SkinnedButton(setup.family, skin(), parent ? parent : this);
    button->setObjectName(setup.name);
    button->setFormName(formName());
    button->setButtonType(setup.key);
    button->setPicture(setup.picture);
    button->setToolTip(setup.tip);
    button->setButtonText(setup.caption);
    button->setState(setup.state);
    button->move(setup.place);
    connect(button, &SkinnedButton::dispatched, &shell_, &Shell::dispatch);
    return button;
}

bool Form::canHaveFocus(const QWidget* control) const {
    return control && isAncestorOf(control) && control->isVisibleTo(this) && control->isEnabled() &&
           control->focusPolicy() & Qt::TabFocus;
}

bool Form::focusFirst() {
    giveStopToChosenOptions();
    QWidget* control = firstFocus_;
    if (!canHaveFocus(control)) control = nextInFocusChain();
    while (control != this && !canHaveFocus(control))
        control = control->nextInFocusChain();
    if (control == this) return false;
    control->setFocus();
    return true;
}

void Form::dragEnterEvent(QDragEnterEvent* event) {
    if (!droppedFile(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

/// The file stays where it is, whatever the other program would have liked.
void Form::dropEvent(QDropEvent* event) {
    const QString file = droppedFile(*event->mimeData());
    if (file.isEmpty()) return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    shell_.openFile(file);
}

/// A group of options has one stop of Tab. Left to itself it is the option that had the focus last, even
/// where another one was chosen since.
void Form::giveStopToChosenOptions() {
    const auto options = findChildren<QRadioButton*>();
    for (const QRadioButton* chosen : options) {
        if (!chosen->isChecked()) continue;
        for (QRadioButton* option : options)
            if (option->group() == chosen->group() && option->parentWidget() == chosen->parentWidget())
                option->setFocusPolicy(option == chosen ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

SkinnedButton* Form::button(const QString& controlName) const {
    return findChild<SkinnedButton*>(controlName);
}

} // namespace morvane
