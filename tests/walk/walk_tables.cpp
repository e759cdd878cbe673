#include "walk/walk_tables.h"

#include "ground/ground_generation.h"
#include "ground/sample_textures.h"
#include "night/night_samples.h"
#include "sets/favourite_name.h"
#include "sets/set_removal.h"
#include "simulator/backup_restore.h"
#include "simulator/simulator_launch.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_generation.h"
#include "weather/cover_choice.h"
#include "weather/decoded_lines.h"
#include "weather/weather_refresh.h"

namespace morvane::test {

namespace {

/// The one that is shown, out of the taskbar.
Form& visibleWindow(WindowShell& shell) {
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
    WindowShell& shell = walk.program().shell;
    const QString window = visibleWindow(shell).formName();
    if (window != u"frm_Main") shell.leaveHost(window);
    shell.goHome();
}

/// From the window itself where it stands already: one that went and came again at once would confuse the
/// window system.
void openHost(Walk& walk, const QString& name) {
    WindowShell& shell = walk.program().shell;
    if (visibleWindow(shell).formName() == name)
        shell.showList(name);
    else
        shell.showHost(name);
}

/// What dialogs of before were given and gave back.
template <class... Dialogs>
void forget(Session& session) {
    ((session.state<Dialogs>() = {}), ...);
}

std::function<void(Walk&)> dialog(Screen screen, const std::function<void(Session&)>& prepare) {
    return [=](Walk& walk) {
        openHome(walk);
        forget<GroundSetCounts, SkySetCounts, BaseSkyAnswer, GroundSampleChoice, NightSampleChoice,
               FavouriteAnswer, MultiChoice, BackupChoice, FlightChoice, DecodedReportLines, MetarRequest,
               CoverChoice>(walk.session());
        prepare(walk.session());
        walk.program().user.showModal(screen);
    };
}

WalkRows answerRows(const std::function<bool(Session&)>& isConfirmed) {
    return {{u"btn_Ok"_s, closes(isConfirmed, true)},
            {u"btn_Cancel"_s, closes(isConfirmed, false)},
            {u"(Enter)"_s, closes(isConfirmed, true)},
            {u"(Escape)"_s, closes(isConfirmed, false)},
            {u"(close)"_s, closes(isConfirmed, false)}};
}

} // namespace morvane::test
