#include "simulator/simulator_restore.h"

#include "core/failure_report.h"
#include "core/job.h"
#include "core/numbers.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/texture_sets.h"
#include "night/night_selection.h"
#include "night/night_sets.h"
#include "night/night_texture_sets.h"
#include "sets/options_in_force.h"
#include "sets/simulator_copy.h"
#include "simulator/base_install_rows.h"
#include "simulator/options.h"
#include "sky/sky_selection.h"
#include "sky/sky_sets.h"
#include "sky/sky_texture_sets.h"

namespace morvane {

namespace {

const QString title = u"Put My Own Files Back"_s;

bool forgetBodies(Session& session) {
    if (!clsConfigs::reload(session)) return false;
    for (const auto& body : *session.rows<clsConfigs>()) {
        if (!body->ConfigInstalled) continue;
        clsConfig changed = *body;
        changed.ConfigInstalled = false;
        if (!writeConfig(session, changed)) return false;
    }
    return clsConfigs::reload(session);
}

/// Each step shows its own failure and ends the row of them, so that a lost store is told once.
void forgetInstalled(Session& session) {
    session.state<OptionsInForce>().IsHalo = session.state<OptionsInForce>().IsDutch =
        session.state<OptionsInForce>().IsTropical = false;
    refreshGroundSets(session) && session.rows<clsTextureSets>()->markInstalled({}) &&
        refreshSkySets(session) && session.rows<clsSkyTextureSets>()->markInstalled({}) &&
        refreshNightSets(session) && session.rows<clsNightTextureSets>()->markInstalled({}) &&
        forgetBodies(session) && storeSwitch(session, &OptionsInForce::IsHalo, false) &&
        storeSwitch(session, &OptionsInForce::IsDutch, false) &&
        storeSwitch(session, &OptionsInForce::IsTropical, false);
    session.state<GroundSelection>().RefreshGroundList = session.state<SkySelection>().RefreshSkyList =
        session.state<NightSelection>().RefreshNightList = true;
    session.user.refreshScreen(Screen::frm_Main);
}

/// A message holds so many names; the rest is a number.
QString listed(const QStringList& paths) {
    constexpr qsizetype most = 10;
    QString text = paths.first(std::min(most, paths.size())).join(u"\n"_s);
    if (paths.size() > most) text += u"\nand "_s + countText(paths.size() - most) + u" more"_s;
    return text;
}

void tellLeft(Session& session, const OriginalsReport& report) {
    if (!report.damaged.isEmpty())
        session.user.showMessage(
            {MessageKind::exclamation, title,
             u"These files could not be put back, as the kept ones are damaged or gone:\n"_s +
                 listed(report.damaged)});
    if (!report.left.isEmpty())
        session.user.showMessage(
            {MessageKind::information, title,
             u"These files were left as they are, as another program has changed them since, or as it is not "
             u"known what stood there before:\n"_s +
                 listed(report.left)});
}

QString doneText(const OriginalsReport& report) {
    QString text = countText(report.putBack, u"file"_s) + u" put back"_s;
    if (report.takenAway > 0) text += u", "_s + countText(report.takenAway) + u" taken away"_s;
    const qsizetype left = report.left.size() + report.damaged.size();
    return left > 0 ? text + u", "_s + countText(left) + u" left as they are"_s : text;
}

} // namespace

std::optional<OriginalsReport> restoreOriginals(Session& session) {
    const Job job(session);
    if (!job) return std::nullopt;
    std::optional<OriginalsReport> report;
    reportFailures(session.user, morvaneError, [&] {
        session.user.showMessage({MessageKind::progress, title,
                                  u"Morvane is putting your own files back.  Please wait......."_s, false,
                                  false, true});
        report = originalsOf(session).restore([&](double part) {
            session.user.updateProgress({}, {}, 100 * part);
            endWithSession(session);
        });
        // The rows come last: a kill before them leaves what the next restore finishes.
        const bool isUntouched = report->failure && report->putBack + report->takenAway == 0;
        if (!isUntouched) forgetInstalled(session);
        session.user.hideMessage();
    });
    if (!report) return report;
    if (report->failure) showFailure(session.user, {}, report->failure->description());
    tellLeft(session, *report);
    session.user.tellDone({doneText(*report), {}, !report->left.isEmpty() || !report->damaged.isEmpty()});
    return report;
}

} // namespace morvane
