#include "ui/form.h"

#include "ui/shell.h"

namespace morvane {

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
    QWidget* control = firstFocus_;
    if (!canHaveFocus(control)) control = nextInFocusChain();
    while (control != this && !canHaveFocus(control))
        control = control->nextInFocusChain();
    if (control == this) return false;
    control->setFocus();
    return true;
}

SkinnedButton* Form::button(const QString& controlName) const {
    return findChild<SkinnedButton*>(controlName);
}

} // namespace morvane
