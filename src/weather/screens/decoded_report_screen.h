#pragma once

#include "ui/dialog_form.h"
#include "weather/decoded_lines.h"

#include <QLabel>

namespace morvane {

/// A report in plain words, as the session's `decodedMetarLines` have it.
class frm_metar : public DialogForm {
    Q_OBJECT
public:
    explicit frm_metar(Shell& shell);

protected:
    void prepare() override;
    void confirm() override {}

private:
    std::array<QLabel*, reportLineCount> lblDecodedMetar_;
};

} // namespace morvane
