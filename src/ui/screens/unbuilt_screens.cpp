#include "ui/screens/unbuilt_screens.h"

#include "ui/controls/labels.h"

#include <QLabel>

namespace morvane {

UnbuiltPage::UnbuiltPage(Shell& shell, const Setup& setup)
    : PageForm(shell, setup.name, u"page_open.bmp"_s), setup_(setup) {
    makeLabel(paper(), u"This page comes with the next version of Morvane."_s, {14, 56, 568, 32},
              TextRole::body);
}

void UnbuiltPage::format() {
    markKey(setup_.key);
    paper()->setTitle(setup_.icon, setup_.title);
}

} // namespace morvane
