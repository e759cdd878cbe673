#include "app/first_run.h"

#include "core/failure_report.h"
#include "core/registry.h"
#include "core/safe_copy.h"
#include "core/writing.h"
#include "sets/cloud_cover.h"
#include "sets/options_in_force.h"
#include "sets/simulator_copy.h"
#include "sets/simulator_note.h"
#include "simulator/backup_files.h"
#include "simulator/flights.h"

#include <algorithm>

namespace morvane {

namespace {

/// One of the splashes that an install puts there for its cloud cover; no list knows of one that an earlier
/// installation of the program left there.
bool isCoverSplash(Session& session, const FilePath& splash) {
    const QByteArray contents = session.files.read(splash);
    return std::any_of(cloudCovers(), cloudCovers() + cloudCoverCount, [&](const CloudCover& cover) {
        const FilePath ours = session.AppPath / u"Media" / cover.splash;
        return session.files.exists(ours) && session.files.read(ours) == contents;
    });
}

/// For the option that brings it back. Where one of ours stands the pilot's is among the originals; if it is
/// not, what was kept before is left alone.
void keepSimulatorSplash(Session& session) {
    const FilePath splash = splashTarget(session);
    if (!session.files.exists(splash)) return;
    Originals originals = originalsOf(session);
    const bool isOurs = originals.isOurs(splash) || isCoverSplash(session, splash);
    const std::optional<FilePath> own = isOurs ? originals.keptFile(splash) : splash;
    if (own) replaceFile(session.files, *own, session.AppPath / u"Media\\dlgsplash.bmp");
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
    const bool isClaimed =
        claimSimulator(session); // else another's textures would be backed up as the pilot's
    // Each is told for itself, costs none of the others, and is no reason not to start.
    reportFailures(session.user, morvaneError, [&] { keepSimulatorSplash(session); });
    if (isClaimed && !session.state<OptionsInForce>().IsWideClient)
        reportFailures(session.user, morvaneError, [&] { copyDeliveredFlights(session); });
    const std::optional<BackupReport> backup = createBackup(session, true);
    session.user.hideMessage();
    if (!backup || !backup->isWritten) return;
    session.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, firstTime, u"False"_s);
    session.state<FirstRun>().isDone = true;
}

} // namespace morvane
