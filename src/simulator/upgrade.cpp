#include "simulator/upgrade.h"

#include "core/failure_report.h"
#include "core/safe_copy.h"
#include "core/store_backup.h"
#include "core/store_connection.h"
#include "sets/simulator_copy.h"
#include "simulator/kept_splash.h"
#include "simulator/upgrade_dutch.h"
#include "simulator/upgrade_tables.h"

namespace morvane {

namespace {

void endProgressWith(Session& session, const QString& title, const QString& text) {
    session.user.hideMessage();
    session.user.showMessage({MessageKind::information, title, text});
}

/// The folder gets its name when the copy in it is whole. One that is there is left alone: the copy in it was
/// made before the first upgrade began, and a later one would not be of version 2 any more.
void backupDatabaseV2(Session& session) {
    FileSystem& files = session.files;
    const QString name = u"V2 Backup"_s, store = u"Morvane.mdb"_s;
    if (files.isFolder(session.AppPath / name)) return;
    const FilePath part = session.AppPath / (name + partialCopySuffix);
    files.makeFolder(part);
    for (const QString& left : files.list(part, u"*.*"_s))
        files.remove(part.child(left));
    copyStore(session.AppPath / store, part / store);
    files.rename(part, session.AppPath / name);
}

void backupSplashV2(Session& session) {
    // The kind is misspelt here and nowhere else: it names an icon of its own.
    const FailureReport report{u"Morvane Error"_s, MessageKind::exclamtion, u"Sub backUserFSSplash "_s};
    reportFailures(session.user, report, [&] {
        if (session.files.isFolder(splashTarget(session).parent())) keepPilotsSplash(session);
    });
}

void makeTempDutchFolder(Session& session) {
    session.files.makeFolder(session.AppPath / u"TempBitmaps\\Dutch");
}

/// The file that asks for the upgrade goes first: what is left then is a stray file, never a second upgrade
/// without its rows.
void finishUpdate(Session& session) {
    session.files.remove(airportFile(session));
    if (const FilePath reports = decodedMetarFile(session); session.files.exists(reports))
        session.files.remove(reports);
    endProgressWith(session, u"Updating to V2.1"_s, u"MV Update to V2.1 Complete"_s);
}

} // namespace

FilePath airportFile(const Session& session) {
    return session.AppPath / u"AIRPORTDATA.txt";
}

FilePath decodedMetarFile(const Session& session) {
    return session.AppPath / u"DECODED_METAR.txt";
}

void updateToV21(Session& session) {
    endProgressWith(session, u"MV 2.1 Update"_s,
                    u"Morvane will now update to Version 2.1.  Thank you for your continued support!"_s);
    backupDatabaseV2(session);
    backupSplashV2(session);
    session.DecimalSep = getDecimalSeparator();
    makeTempDutchFolder(session);
    connectDatabase(session);
    importAirportData(session);
    importDecodedMetars(session);
    Store& store = *session.adoConn;
    dropCountries(store);
    createTextureSwitch(store);
    addDutchResource(store);
    seedNightSets(store);
    // Only in the run that adds the column: when it dies later, the sets that were still to come stay without
    // Dutch textures until they are activated anew. Wanted.
    if (addDutchColumn(store)) createDutchForAllSets(session);
    finishUpdate(session);
}

} // namespace morvane
