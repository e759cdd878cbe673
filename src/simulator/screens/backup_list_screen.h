#pragma once

#include "ui/dialog_form.h"

namespace morvane {

class SetTable;

/// Which of the backups goes back into the simulator.
class frm_BackupList : public DialogForm {
    Q_OBJECT
public:
    explicit frm_BackupList(Shell& shell);

protected:
    void prepare() override { popBackupList(); }
    void confirm() override;

private:
    void popBackupList();

    SetTable* lstBackupList_;
};

} // namespace morvane
