#pragma once

#include "ui/dialog_form.h"

#include <QLineEdit>
#include <array>

namespace morvane {

/// A box for a count of sets: digits and a full stop are all that can be typed. It selects all when it gets
/// the focus, and is never left empty.
class CountEdit : public QLineEdit {
    Q_OBJECT
public:
    using QLineEdit::QLineEdit;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

/// How many sets a create run makes for each cloud cover.
class frm_TsRequired : public DialogForm {
    Q_OBJECT
public:
    explicit frm_TsRequired(Shell& shell);

protected:
    void prepare() override;
    void confirm() override;

private:
    void storeCount(std::size_t index);

    std::array<CountEdit*, 5> boxes_{}; ///< of the cloud covers 1 to 5
};

} // namespace morvane
