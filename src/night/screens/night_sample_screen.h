#pragma once

#include "ui/dialog_form.h"

class QButtonGroup;

namespace morvane {

/// Which landscape the colour page of the night shows.
class frm_SelectNightTexture : public DialogForm {
    Q_OBJECT
public:
    explicit frm_SelectNightTexture(Shell& shell);

protected:
    void prepare() override;
    void confirm() override;

private:
    QButtonGroup* samples_;
};

} // namespace morvane
