#include "ui/screens/unbuilt_screens.h"

#include "ui/controls/labels.h"

#include <QLabel>

namespace morvane {

namespace {

void addNotice(Paper* paper) {
    makeLabel(paper, u"This page comes with the next version of Morvane."_s, {14, 56, 568, 32},
              TextRole::body);
}

} // namespace

UnbuiltPage::UnbuiltPage(Shell& shell, const Setup& setup)
    : PageForm(shell, setup.name, u"page_open.bmp"_s), setup_(setup) {
    addNotice(paper());
}

void UnbuiltPage::format() {
    markKey(setup_.key);
    paper()->setTitle(setup_.icon, setup_.title);
}

UnbuiltHost::UnbuiltHost(Shell& shell, const QString& name, const WindowLook& look, const HostKeys& keys,
                         const QString& colourPage)
    : HostForm(shell, name, look, keys, colourPage) {
    addNotice(paper());
}

void UnbuiltHost::formatList() {
    markListKey();
    paper()->setTitle(u"icon_MVOpen.bmp"_s, u"Manage Texture Sets Screen"_s);
}

} // namespace morvane
