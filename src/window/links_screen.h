#pragma once

#include "ui/page_form.h"

class QPushButton;

namespace morvane {

/// Places on the web that a pilot may want. They open in the system's browser.
class frm_Links : public PageForm {
    Q_OBJECT
public:
    explicit frm_Links(Shell& shell);
    void format() override;

private:
    struct Link;
    static const Link links[];
    QString addressOf(const Link& link) const;

    QList<QPushButton*> buttons_; ///< in the order of the links
};

} // namespace morvane
