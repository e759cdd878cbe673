#pragma once

#include "core/literals.h"
#include "ui/skinned_button.h"

#include <QPointer>
#include <QWidget>

namespace morvane {

class Session;
class Shell;

/// What a screen's key is: where it lies, what it is called and how it looks.
struct ButtonSetup {
    ButtonFamily family;
    QString name; ///< of the control: "btn_TextureDelete"
    QString key;  ///< "delete ts"
    QString picture;
    QString tip;
    QPoint place;
    QString caption = {};
    ButtonState state = ButtonState::enabled;
};

/// A screen of the program, known by its name everywhere. It is made at its first use and lives until exit.
class Form : public QWidget {
    Q_OBJECT
public:
    Form(Shell& shell, const QString& name, QWidget* parent = nullptr);

    QString formName() const { return objectName(); }
    /// The form that the widget lies on, itself included; nothing when it lies on none.
    static Form* of(QWidget* widget);

    Shell& shell() const { return shell_; }
    Session& session() const;
    Skin& skin() const;

    /// The key of that setup, lying on `parent` (the form itself when null); its click goes to the shell.
    SkinnedButton* addButton(const ButtonSetup& setup, QWidget* parent = nullptr);
    SkinnedButton* button(const QString& controlName) const;

    /// Shows anew what another program has changed of what is shown; true when there was something.
    virtual bool showForeignChanges() { return false; }

    /// Escape, and the window manager's close: a dialog cancels, a window leaves the program.
    virtual void cancel() {}

    /// Gives the keyboard to the control that was named for it, else to the first one in the order of Tab.
    /// False where none can have it.
    bool focusFirst();
    /// A window's own page, which goes while another one stands in its place; null for a screen without one.
    virtual QWidget* ownPage() const { return nullptr; }

protected:
    void setFirstFocus(QWidget* control) { firstFocus_ = control; }
    // Of a screen that accepts drops: one file that the shell opens, whatever else is dropped with it.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    bool canHaveFocus(const QWidget* control) const;
    void giveStopToChosenOptions();

    Shell& shell_;
    QWidget* firstFocus_ = nullptr;
};

} // namespace morvane
