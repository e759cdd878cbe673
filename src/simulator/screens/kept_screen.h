#pragma once

#include "simulator/kept_room.h"
#include "ui/dialog_form.h"

class QLabel;

namespace morvane {

class SetTable;

/// What Morvane keeps, how much room it takes, and the way to remove what of it can go.
class frm_WhatIsKept : public DialogForm {
    Q_OBJECT
public:
    explicit frm_WhatIsKept(Shell& shell);

    /// Of the row that is picked.
    void removeChosen();

protected:
    void prepare() override;
    void confirm() override {}

private:
    void addRow(const KeptItem& item);
    void fill();
    void pick(int row);
    void showItem(const QString& name);
    const KeptItem* itemOf(const QString& name) const;

    KeptRoom room_;
    SetTable* lstKept_;
    QLabel *lblAbout_, *lblRoom_;
};

} // namespace morvane
