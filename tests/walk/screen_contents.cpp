#include "walk/screen_contents.h"

#include "core/literals.h"
#include "ui/controls/slider.h"
#include "ui/form.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTreeView>

namespace morvane::test {

namespace {

/// Parts of a control count with it.
bool isPart(const QWidget& widget) {
    for (const QWidget* above = widget.parentWidget(); above; above = above->parentWidget())
        if (qobject_cast<const QComboBox*>(above) || qobject_cast<const QAbstractItemView*>(above) ||
            qobject_cast<const QAbstractScrollArea*>(above))
            return true;
    return false;
}

bool isControl(const QWidget& widget) {
    const bool isUsed = qobject_cast<const SkinnedButton*>(&widget) ||
                        qobject_cast<const QAbstractButton*>(&widget) || widget.focusPolicy() != Qt::NoFocus;
    return isUsed && !qobject_cast<const Form*>(&widget) && !qobject_cast<const QLabel*>(&widget) &&
           !isPart(widget);
}

bool isAlive(const QWidget& control) {
    const auto* key = qobject_cast<const SkinnedButton*>(&control);
    return control.isEnabled() && !(key && key->state() == ButtonState::disabled);
}

QString rowText(const QTreeView& list, int row) {
    const QModelIndex index = list.model()->index(row, 0);
    return index.data().toString() + index.data(Qt::CheckStateRole).toString();
}

void addParts(const QTreeView& list, QStringList& names) {
    if (!list.isHeaderHidden() && list.header()->sectionsClickable()) names << list.objectName() + u"|head"_s;
    if (list.model()->index(0, 0).data(Qt::CheckStateRole).isValid()) names << list.objectName() + u"|tick"_s;
}

} // namespace

QString nameOf(const QWidget& control) {
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    return button && control.objectName().isEmpty() ? button->text().remove(u'&') : control.objectName();
}

QStringList liveControls(const QWidget& window) {
    QStringList names;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->window() != &window || !widget->isVisible() || !isControl(*widget) || !isAlive(*widget))
            continue;
        names << nameOf(*widget);
        if (const auto* list = qobject_cast<const QTreeView*>(widget)) addParts(*list, names);
    }
    return names;
}

QPoint livePoint(const QWidget& control) {
    const bool isBox =
        qobject_cast<const QCheckBox*>(&control) || qobject_cast<const QRadioButton*>(&control);
    return isBox ? QPoint(8, control.height() / 2) : control.rect().center();
}

QString stateOf(const QWidget& control) {
    if (const auto* edit = qobject_cast<const QLineEdit*>(&control)) return edit->text();
    if (const auto* edit = qobject_cast<const QPlainTextEdit*>(&control)) return edit->toPlainText();
    if (const auto* choice = qobject_cast<const QComboBox*>(&control)) return choice->currentText();
    if (const auto* slider = qobject_cast<const ucSlider*>(&control)) return QString::number(slider->value());
    if (const auto* list = qobject_cast<const QTreeView*>(&control)) {
        QString state = QString::number(list->currentIndex().row());
        for (int row = 0; row < list->model()->rowCount(); ++row)
            state += u'|' + rowText(*list, row);
        return state;
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control); button && button->isCheckable())
        return button->isChecked() ? u"on"_s : u"off"_s;
    return control.accessibleDescription();
}

} // namespace morvane::test
