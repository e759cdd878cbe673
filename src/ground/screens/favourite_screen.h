#pragma once

#include "ui/dialog_form.h"

#include <QPlainTextEdit>

class QLabel;
class QLineEdit;

namespace morvane {

/// A wrapped text in one paragraph: Enter and Escape are the dialog's, Tab goes on to the next control.
class DescriptionEdit : public QPlainTextEdit {
    Q_OBJECT
public:
    explicit DescriptionEdit(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

/// Name and description of a new favourite of the ground, the sky or the night.
class frm_AddFav : public DialogForm {
    Q_OBJECT
public:
    explicit frm_AddFav(Shell& shell);

protected:
    void prepare() override;
    void confirm() override;

private:
    void storeDescription();

    QLineEdit* txtFavName_;
    DescriptionEdit* txtFavDesc_;
    QLabel* lblLength_;
};

} // namespace morvane
