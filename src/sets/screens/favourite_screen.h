#pragma once

#include "ui/dialog_form.h"

class QLabel;
class QLineEdit;

namespace morvane {

class DescriptionEdit;

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
