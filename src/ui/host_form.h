#pragma once

#include "ui/page_form.h"
#include "ui/shaped_form.h"
#include "ui/window_keys.h"

namespace morvane {

/// A window that takes the main window's place: a list page of its own, and a colour page as its child.
class HostForm : public ShapedForm {
    Q_OBJECT
public:
    HostForm(Shell& shell, const QString& name, const WindowLook& look, const HostKeys& keys,
             const QString& colourPage);

    /// Name of the colour page.
    const QString& colourPage() const { return colourPage_; }
    /// Marks "Manage Sets" and fills the list page.
    virtual void formatList() = 0;
    QWidget* ownPage() const override { return paper_; }

protected:
    Paper* paper() const { return paper_; }
    void markListKey() { markWindowKey(*this, setsKey_); }
    void closeEvent(QCloseEvent* event) override;

private:
    QString setsKey_, colourPage_;
    Paper* paper_;
};

} // namespace morvane
