#pragma once

#include "ui/dialog_form.h"

namespace morvane {

class SetTable;

/// Which of the saved flights the simulator starts with.
class frm_flight : public DialogForm {
    Q_OBJECT
public:
    explicit frm_flight(Shell& shell);

    void cancel() override;

protected:
    void prepare() override;
    void confirm() override;

private:
    SetTable* lstFlights_;
};

} // namespace morvane
