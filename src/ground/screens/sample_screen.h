#pragma once

#include "ui/dialog_form.h"

class QButtonGroup;

namespace morvane {

/// Which landscape in which season the colour page shows.
class frm_SelectTexture : public DialogForm {
    Q_OBJECT
public:
    explicit frm_SelectTexture(Shell& shell);

protected:
    void prepare() override;
    void confirm() override;

private:
    QButtonGroup *seasons_, *types_; ///< ids are positions in the lists of choices
};

} // namespace morvane
