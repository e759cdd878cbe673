#include "app/start_up.h"

#include "app/first_run.h"
#include "app/joined_rooms.h"
#include "core/failure_report.h"
#include "core/file_helpers.h"
#include "core/install_folder.h"
#include "core/numbers.h"
#include "core/registry.h"
#include "core/session.h"
#include "core/store.h"
#include "core/store_connection.h"
#include "core/store_records.h"
#include "core/wine_prefixes.h"
#include "core/writing.h"
#include "simulator/options.h"
#include "simulator/upgrade.h"
#include "weather/active_sky.h"

namespace morvane {

namespace {

/// Asks until a folder with the simulator is chosen; empty when the user gives up.
QString askForSimulator(Session& session) {
    session.user.systemBox(
        u"Your registry does not contain the proper path to FS9.EXE. Please browse to your main "
        "Flight Simulator 2004 folder (it needs to contain FS9.EXE)."_s,
        {}, SystemBoxButtons::ok);
    while (true) {
        const QString path = session.user.browseForFolder({});
        if (holdsSimulator(session.files, path)) return path;
        const bool again = session.user.systemBox(u"The folder path you selected does not contain FS9.EXE. "
                                                  u"Please verify your FS2004 path and try again. "
                                                  "You can do this by right-clicking your shortcut to Flight "
                                                  "Simulator, and select Properties. You will "
                                                  "see the folder listed. Would you like to try to locate "
                                                  "the folder again? If you select no, we will "
                                                  "exit."_s,
                                                  {}, SystemBoxButtons::yesNo);
        if (!again) return {};
    }
}

/// Of those that Wine prefixes have the one that the user takes. Nobody is asked where there is only one, and
/// the registry has named no other.
QString foundInPrefixes(Session& session, const QString& named) {
    const std::vector<PrefixSimulator> found = simulatorsInPrefixes(session.files);
    const bool isAsked = found.size() > 1 || !named.isEmpty();
    for (const auto& [folder, prefix] : found) {
        const QString keeper = prefix.keeper.isEmpty() ? QString() : u" ("_s + prefix.keeper + u')';
        const QString question =
            u"Flight Simulator 2004 was found in %1. Would you like to use this one?\n%2%3"_s.arg(
                countText(std::ssize(found), u"place"_s), folder.text(), keeper);
        if (isAsked && !session.user.systemBox(question, {}, SystemBoxButtons::yesNo)) continue;
        session.user.tellDone({u"Flight Simulator 2004 was found in "_s + folder.text()});
        return folder.text();
    }
    return {};
}

bool findSimulator(Session& session) {
    QString path =
        StripBackslash(session.registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, simulatorKey, u"EXE Path"_s));
    if (!holdsSimulator(session.files, path)) {
        path = foundInPrefixes(session, path);
        if (path.isEmpty()) path = askForSimulator(session);
        if (path.isEmpty()) return false;
        session.registry.CreateRegKey(HKEY_LOCAL_MACHINE_ROOT, simulatorKey);
        session.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, simulatorKey, u"EXE Path"_s, path);
    }
    session.FSPath = FilePath(path);
    return true;
}

/// The files of a new version, laid over an old install, ask for its upgrade. False when another program is
/// at it and does not come to its end.
bool openStore(Session& session, StoreAccess access) {
    if (access == StoreAccess::writing && session.files.exists(airportFile(session))) {
        const Writing writing(session);
        if (!writing) return false;
        if (session.files.exists(airportFile(session))) { // nobody has done it meanwhile
            updateToV21(session);
            return true;
        }
    }
    connectDatabase(session, access);
    session.DecimalSep = getDecimalSeparator();
    return true;
}

void prepareToWrite(Session& session) {
    session.files.makeFolder(session.BackupPath);
    // One that could not be opened was told; a first run then waits for the next start.
    if (hasStore(session)) doFirstRun(session);
}

} // namespace

Reported startUp(Session& session, InstallUse use, const std::function<void()>& simulatorIsFound) {
    joinRooms(session);
    if (const QString problem = installFolderProblem(session.files, session.AppPath, use);
        !problem.isEmpty()) {
        session.user.systemBox(problem, {}, SystemBoxButtons::ok);
        return false;
    }
    const bool isOnlyRead = use == InstallUse::trial ||
                            (use == InstallUse::reading && !canWriteInto(session.files, session.AppPath));
    bool isReady = false;
    const FailureReport report{u"Morvane Error!"_s, MessageKind::exclamation, u"Sub Main\n"_s, true};
    const bool done = reportFailures(session.user, report, [&] {
        if (!findSimulator(session)) return;
        simulatorIsFound();
        isReady = openStore(session, isOnlyRead ? StoreAccess::reading : StoreAccess::writing);
        if (!isReady) return;
        session.BackupPath = session.AppPath / u"Backup";
        if (!isOnlyRead) updateDatabase(session);
        getSideFSVal(session);
        if (!isOnlyRead) prepareToWrite(session);
        if (hasStore(session)) readSwitches(session);
        findActiveSky(session);
    });
    return done && isReady;
}

} // namespace morvane
