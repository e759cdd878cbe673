#pragma once

#include "ui/page_form.h"

namespace morvane {

/// What the program is, what it is made of and what is new, and the way to a report.
class frm_About : public PageForm {
    Q_OBJECT
public:
    explicit frm_About(Shell& shell);
    void format() override;

private:
    void makeNews();
    void makeReportKey();
};

} // namespace morvane
