#include "ui/host_form.h"

#include "core/literals.h"
#include "ui/controls/foot_line.h"
#include "ui/shell.h"

#include <QCloseEvent>

namespace morvane {

HostForm::HostForm(Shell& shell, const QString& name, const WindowLook& look, const HostKeys& keys,
                   const QString& colourPage)
    : ShapedForm(shell, name, look), setsKey_(keys.setsKey), colourPage_(colourPage),
      paper_(new Paper(*this, u"page_plain.bmp"_s)) {
    paper_->move(pagePlace.topLeft());
    for (const ButtonSetup& key : hostWindowKeys(keys))
        addButton(key);
    new FootLine(this);
}

void HostForm::closeEvent(QCloseEvent* event) {
    event->ignore();
    shell().exitProgram();
}

} // namespace morvane
