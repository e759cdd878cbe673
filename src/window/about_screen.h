#pragma once

#include "ui/page_form.h"

namespace morvane {

/// What the program is, and what it is made of.
class frm_About : public PageForm {
    Q_OBJECT
public:
    explicit frm_About(Shell& shell);
    void format() override;
};

} // namespace morvane
