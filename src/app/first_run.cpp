#include "app/first_run.h"

#include "core/failure_report.h"
#include "core/registry.h"
#include "core/writing.h"
#include "sets/options_in_force.h"
#include "sets/simulator_copy.h"
#include "sets/simulator_note.h"
#include "simulator/backup_files.h"
#include "simulator/flights.h"
#include "simulator/kept_splash.h"

namespace morvane {

void doFirstRun(Session& session) {
    const QString firstTime = u"FirstTime"_s;
    const auto isFirstTime = [&] {
        return session.registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, firstTime) == u"True";
    };
    if (!isFirstTime()) return;
    // Two programs that are started at once make one first backup. Who comes second need not wait for it.
    const Writing writing(session, Writing::Waiting::none);
    if (!writing || !isFirstTime()) return;
    const bool isClaimed =
        claimSimulator(session); // else another's textures would be backed up as the pilot's
    // Each is told for itself, costs none of the others, and is no reason not to start.
    reportFailures(session.user, morvaneError, [&] {
        if (session.files.exists(splashTarget(session))) keepPilotsSplash(session);
    });
    if (isClaimed && !session.state<OptionsInForce>().IsWideClient)
        reportFailures(session.user, morvaneError, [&] { copyDeliveredFlights(session); });
    const std::optional<BackupReport> backup = createBackup(session, true);
    session.user.hideMessage();
    if (!backup || !backup->isWritten) return;
    session.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, firstTime, u"False"_s);
    session.state<FirstRun>().isDone = true;
}

} // namespace morvane
