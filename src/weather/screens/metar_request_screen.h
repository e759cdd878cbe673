#pragma once

#include "ui/dialog_form.h"

class QLabel;

namespace morvane {

/// Whether a new cycle is fetched, where the table holds one already.
class frm_metar_request : public DialogForm {
    Q_OBJECT
public:
    explicit frm_metar_request(Shell& shell);

    void cancel() override;

protected:
    void prepare() override;
    void confirm() override;

private:
    QLabel* lblRequest_;
};

} // namespace morvane
