#pragma once

#include "ui/dialog_form.h"

namespace morvane {

class SetTable;

/// Which of the backups goes back into the simulator. It opens on the newest, but OK waits for a click or a
/// key in the list: an Enter too many must not replace a thousand files.
class frm_BackupList : public DialogForm {
    Q_OBJECT
public:
    explicit frm_BackupList(Shell& shell);

protected:
    void prepare() override { popBackupList(); }
    void confirm() override;
    /// Enter on the list only takes the backup that stands there, as long as none is taken.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void popBackupList();
    void choose(const QString& name);

    SetTable* lstBackupList_;
};

} // namespace morvane
