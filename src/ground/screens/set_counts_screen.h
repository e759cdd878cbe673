#pragma once

#include "ui/count_edit.h"
#include "ui/dialog_form.h"

namespace morvane {

/// How many sets a create run makes for each cloud cover.
class frm_TsRequired : public DialogForm {
    Q_OBJECT
public:
    explicit frm_TsRequired(Shell& shell);

protected:
    void prepare() override;
    void confirm() override;

private:
    std::array<CountEdit*, 5> boxes_; ///< of the cloud covers 1 to 5
};

} // namespace morvane
