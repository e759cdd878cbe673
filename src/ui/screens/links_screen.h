#pragma once

#include "ui/page_form.h"

namespace morvane {

/// Places on the web that a pilot may want. They open in the system's browser.
class frm_Links : public PageForm {
    Q_OBJECT
public:
    explicit frm_Links(Shell& shell);
    void format() override;
};

} // namespace morvane
