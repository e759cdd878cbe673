#include "ui/accessible_controls.h"

#include "core/literals.h"
#include "ui/controls/skinned_progress_bar.h"
#include "ui/controls/slider.h"
#include "ui/skinned_button.h"

#include <QAccessibleWidget>
#include <algorithm>

namespace morvane {

namespace {

class AccessibleKey : public QAccessibleWidget {
public:
    explicit AccessibleKey(QWidget* key) : QAccessibleWidget(key, QAccessible::Button) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.disabled = key().state() == ButtonState::disabled;
        state.pressed = key().state() == ButtonState::down || key().isLatched();
        state.hotTracked = key().state() == ButtonState::highlight;
        return state;
    }
    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (key().state() != ButtonState::disabled) names.prepend(pressAction());
        return names;
    }
    /// Later: the caller must not wait for a dialog that the key opens.
    void doAction(const QString& name) override {
        if (name != pressAction()) return QAccessibleWidget::doAction(name);
        QMetaObject::invokeMethod(&key(), &SkinnedButton::click, Qt::QueuedConnection);
    }

private:
    SkinnedButton& key() const { return static_cast<SkinnedButton&>(*widget()); }
};

/// What a control with a value has, whether it can be set or not.
template <class Control, QAccessible::Role controlRole>
class AccessibleValue : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit AccessibleValue(QWidget* control) : QAccessibleWidget(control, controlRole) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QVariant currentValue() const override { return control().value(); }
    QString text(QAccessible::Text what) const override {
        return what == QAccessible::Value ? currentValue().toString() : QAccessibleWidget::text(what);
    }

protected:
    Control& control() const { return static_cast<Control&>(*widget()); }
};

class AccessibleSlider : public AccessibleValue<ucSlider, QAccessible::Slider> {
public:
    using AccessibleValue::AccessibleValue;

    void setCurrentValue(const QVariant& value) override { moveTo(value.toInt()); }
    QVariant minimumValue() const override { return control().min(); }
    QVariant maximumValue() const override { return control().max(); }
    QVariant minimumStepSize() const override { return 1; }
    QStringList actionNames() const override {
        return QStringList{increaseAction(), decreaseAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (name == increaseAction()) return moveTo(control().value() + 1);
        if (name == decreaseAction()) return moveTo(control().value() - 1);
        QAccessibleWidget::doAction(name);
    }

private:
    void moveTo(int value) { control().setValue(std::clamp(value, control().min(), control().max())); }
};

class AccessibleProgress : public AccessibleValue<SkinnedProgressBar, QAccessible::ProgressBar> {
public:
    using AccessibleValue::AccessibleValue;

    void setCurrentValue(const QVariant&) override {}
    QVariant minimumValue() const override { return 0.0; }
    QVariant maximumValue() const override { return 100.0; }
    QVariant minimumStepSize() const override { return 1.0; }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        return state;
    }
};

class AccessibleDialog : public QAccessibleWidget {
public:
    explicit AccessibleDialog(QWidget* dialog) : QAccessibleWidget(dialog, QAccessible::Dialog) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.modal = true;
        return state;
    }
};

template <class Interface>
QAccessibleInterface* make(QWidget* widget) {
    return new Interface(widget);
}

template <QAccessible::Role role>
QAccessibleInterface* makeOfRole(QWidget* widget) {
    return new QAccessibleWidget(widget, role);
}

/// By the class that an object is of or comes from; the nearest counts.
struct Entry {
    QLatin1StringView className;
    QAccessibleInterface* (*make)(QWidget*);
};

constexpr Entry entries[] = {
    {QLatin1StringView("morvane::SkinnedButton"), make<AccessibleKey>},
    {QLatin1StringView("morvane::ucSlider"), make<AccessibleSlider>},
    {QLatin1StringView("morvane::SkinnedProgressBar"), make<AccessibleProgress>},
    {QLatin1StringView("morvane::PictureFrame"), makeOfRole<QAccessible::Graphic>},
    {QLatin1StringView("morvane::DialogForm"), make<AccessibleDialog>},
    {QLatin1StringView("morvane::ShapedForm"), makeOfRole<QAccessible::Window>},
    {QLatin1StringView("morvane::frm_Splash"), makeOfRole<QAccessible::Window>},
    {QLatin1StringView("morvane::PageForm"), makeOfRole<QAccessible::Pane>},
};

QAccessibleInterface* interfaceOf(const QString& className, QObject* object) {
    if (!object || !object->isWidgetType()) return nullptr;
    const Entry* entry = std::ranges::find(entries, className, &Entry::className);
    return entry == std::end(entries) ? nullptr : entry->make(static_cast<QWidget*>(object));
}

} // namespace

void installAccessibleControls() {
    QAccessible::installFactory(interfaceOf);
}

} // namespace morvane
