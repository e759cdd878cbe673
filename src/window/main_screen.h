#pragma once

#include "ui/shaped_form.h"
#include "window/status_panel.h"

namespace morvane {

/// The main window: the navigation, and the status page on which it opens.
class frm_Main : public ShapedForm {
    Q_OBJECT
public:
    explicit frm_Main(Shell& shell);

    /// Marks the "home" key, fills the page, and sets its three large keys anew.
    void formatMainScreen();
    /// The page's numbers, and whether there is something to undo.
    void refreshMainStatus();
    QWidget* ownPage() const override { return status_; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    StatusPanel* status_;
};

} // namespace morvane
