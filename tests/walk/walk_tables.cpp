#include "walk/walk_tables.h"

#include "ui/host_form.h"

namespace morvane::test {

namespace {

/// The one that is shown, out of the taskbar.
Form& visibleWindow(Shell& shell) {
    for (const QString& name : windowNames) {
        Form* window = shell.loadedForm(name);
        if (!window || !window->isVisible()) continue;
        if (window->isMinimized()) window->showNormal();
        return *window;
    }
    throw std::runtime_error("no window is shown");
}

} // namespace

void openHome(Walk& walk) {
    Shell& shell = walk.program().shell;
    const QString window = visibleWindow(shell).formName();
    if (window != u"frm_Main") shell.leaveHost(window);
    shell.goHome();
}

/// From the window itself where it stands already: one that went and came again at once would confuse the
/// window system.
void openHost(Walk& walk, const QString& name) {
    Shell& shell = walk.program().shell;
    if (visibleWindow(shell).formName() == name)
        shell.showList(name);
    else
        shell.showHost(name);
}

std::function<void(Walk&)> dialog(Screen screen, const std::function<void(Session&)>& prepare) {
    return [=](Walk& walk) {
        openHome(walk);
        walk.session().modal = {};
        prepare(walk.session());
        walk.program().user.showModal(screen);
    };
}

std::vector<WalkRow> answerRows(const std::function<bool(Session&)>& isConfirmed) {
    return {{u"btn_Ok"_s, closes(isConfirmed, true)},
            {u"btn_Cancel"_s, closes(isConfirmed, false)},
            {u"(Enter)"_s, closes(isConfirmed, true)},
            {u"(Escape)"_s, closes(isConfirmed, false)},
            {u"(close)"_s, closes(isConfirmed, false)}};
}

} // namespace morvane::test
