#pragma once

#include "ui/shaped_form.h"

#include <QElapsedTimer>

namespace morvane {

/// A screen above the windows that waits for its answer. Its keys "ok" and "cancel" end it.
class DialogForm : public ShapedForm {
    Q_OBJECT
public:
    DialogForm(Shell& shell, const QString& name, const WindowLook& look, const QString& title);

    /// Prepares, shows, waits; the answer stands in the session. On the way out of the program it is that of
    /// a cancel.
    void run();

    /// Nothing while its key is dead, however it was asked for.
    virtual void ok();
    void cancel() override;
    void setVisible(bool isWanted) override;

Q_SIGNALS:
    void closed();

protected:
    /// Fills the dialog from the session, each time before it is shown.
    virtual void prepare() = 0;
    /// Writes what was chosen into the session.
    virtual void confirm() = 0;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    void allowOk(bool isAllowed);
    bool isOkAllowed() const;
    /// The two keys, with the tips of this dialog; and the second alone, where there is nothing to answer.
    void addAnswerKeys(const QString& okTip, const QString& cancelTip);
    void addCancelKey(const QString& tip);

private:
    void waitForKeyboard();

    QElapsedTimer shown_;
};

} // namespace morvane
