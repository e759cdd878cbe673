#include "simulator/first_run.h"

#include "core/failure_report.h"
#include "core/registry.h"
#include "core/safe_copy.h"
#include "core/writing.h"
#include "simulator/backup_files.h"
#include "simulator/flights.h"
#include "simulator/simulator_copy.h"

namespace morvane {

namespace {

void keepSimulatorSplash(Session& session) {
    const FilePath splash = splashTarget(session);
    if (session.files.exists(splash))
        replaceFile(session.files, splash, session.AppPath / u"Media\\dlgsplash.bmp");
}

} // namespace

void doFirstRun(Session& session) {
    const QString firstTime = u"FirstTime"_s;
    const auto isFirstTime = [&] {
        return session.registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, firstTime) == u"True";
    };
    if (!isFirstTime()) return;
    // Two programs that are started at once make one first backup. Who comes second need not wait for it.
    const Writing writing(session, Writing::Waiting::none);
    if (!writing || !isFirstTime()) return;
    // Told, and no reason not to start: the next start would meet it again.
    reportFailures(session.user, {}, [&] {
        if (!session.IsWideClient) copyDeliveredFlights(session);
        keepSimulatorSplash(session);
    });
    createBackup(session, true);
    session.user.hideMessage();
    session.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, firstTime, u"False"_s);
}

} // namespace morvane
