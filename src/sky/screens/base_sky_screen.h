#pragma once

#include "sky/sky_base_sets.h"
#include "ui/dialog_form.h"

#include <array>

class QRadioButton;

namespace morvane {

/// The base set that the colour page of the sky works from. A click on it is in force at once: "cancel" does
/// not take it back.
class frm_SelectBaseSky : public DialogForm {
    Q_OBJECT
public:
    explicit frm_SelectBaseSky(Shell& shell);

protected:
    void prepare() override;
    void confirm() override;

private:
    std::array<QRadioButton*, skyBaseSetCount> optBaseSky_{};
};

} // namespace morvane
