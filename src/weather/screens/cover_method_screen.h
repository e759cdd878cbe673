#pragma once

#include "ui/dialog_form.h"

class QButtonGroup;

namespace morvane {

/// In which way the cloud cover of a flight is found. The option in force stands in the session from the
/// opening on.
class frm_Select_CC_Method : public DialogForm {
    Q_OBJECT
public:
    explicit frm_Select_CC_Method(Shell& shell);

    void cancel() override;

protected:
    void prepare() override;
    void confirm() override {}

private:
    QButtonGroup* methods_; ///< ids are the numbers of CoverMethod
};

} // namespace morvane
