#pragma once

#include "ui/dialog_form.h"

namespace morvane {

class SetTable;

/// Which of the selected sets an action takes, when several were selected. All begin checked: the user chose
/// them already, and takes out what was chosen by mistake.
class frm_MultiDelete : public DialogForm {
    Q_OBJECT
public:
    explicit frm_MultiDelete(Shell& shell);

protected:
    void prepare() override { popMultiDeleteList(); }
    void confirm() override;

private:
    void popMultiDeleteList();

    SetTable* list_;
};

} // namespace morvane
