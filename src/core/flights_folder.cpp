#include "core/flights_folder.h"

#include "core/failure_report.h"
#include "core/file_helpers.h"
#include "core/numbers.h"
#include "core/registry.h"
#include "core/session.h"

#include <QDir>

namespace morvane {

namespace {

const QString flightsValue = u"NonEnglishPath"_s;

void inform(Session& session, const QString& title, const QString& text) {
    session.user.showMessage({MessageKind::information, title, text, true, false, false});
}

/// Without separators at the end, "." and ".." in it, in one case.
QString plainSpelling(QString path) {
    return QDir::cleanPath(path.replace(u'\\', u'/')).toCaseFolded();
}

void refuseFolder(Session& session) {
    session.user.showMessage({MessageKind::exclamation, u"Invalid Path"_s,
                              u"The path supplied was invalid please try again"_s, true, false, false});
}

/// Cancelling the browser leaves saved flights alone: nobody is asked again and again.
QString chooseFlightsFolder(Session& session) {
    while (true) {
        const QString path = session.user.browseForFolder({});
        if (path.isEmpty()) return {};
        storeOwnValue(session.registry, flightsValue, path);
        if (!isOwnFlightsFolder(session, path)) return path;
        refuseFolder(session);
    }
}

} // namespace

bool isOwnFlightsFolder(const Session& session, const QString& path) {
    const FilePath own = session.AppPath / u"Flights";
    const QString spelling = plainSpelling(path);
    return spelling == plainSpelling(own.text()) || spelling == plainSpelling(own.native()) ||
           isSameFolder(FilePath(path), own);
}

QString storedFlightsFolder(const Session& session) {
    return trimmedBlanks(ownValue(session.registry, flightsValue));
}

QString getNonEnglishPath(Session& session) {
    const QString path = storedFlightsFolder(session);
    if (path.isEmpty() || isOwnFlightsFolder(session, path)) {
        inform(session, u"Saved Flights/Flight Plans Location required"_s,
               u"Please supply the path to your My Documents\\Flight Simulator Files folder. Please ensure "
               u"that you "
               "are not pointing to your Morvane Flights folder"_s);
        return chooseFlightsFolder(session);
    }
    if (session.files.isFolder(FilePath(path))) return path;
    session.user.showMessage({MessageKind::exclamation, u"Saved Flights Invalid Path"_s,
                              u"The path for your FS9 saved flights was invalid please enter a new path"_s,
                              true, false, false});
    return chooseFlightsFolder(session);
}

QString usersFlightsFolder(Session& session) {
    const QString& documents = session.MyDocumentsPath;
    const QString usual = documents + u"Flight Simulator Files"_s;
    if (!documents.isEmpty() && session.files.isFolder(FilePath(usual))) return usual;
    return ownValue(session.registry, flightsValue);
}

void setNonEnglishRegVal(Session& session) {
    reportFailures(
        session.user,
        FailureReport{u"Morvane Error!"_s, MessageKind::exclamation, u"Sub setNonEnglishRegVal\n"_s, false},
        [&] {
            const QString path = session.user.browseForFolder(usersFlightsFolder(session));
            if (path.isEmpty()) return;
            if (isOwnFlightsFolder(session, path)) return refuseFolder(session);
            storeOwnValue(session.registry, flightsValue, path);
            inform(session, u"FS9 Flight Simulator Files Path"_s,
                   u"FS9 My Documents Flight Simulator Files path has been updated to: "_s + path);
            session.user.refreshScreen(Screen::frm_Switcher);
        });
}

FilePath userFlightsFolder(Session& session) {
    if (!session.MyDocumentsPath.isEmpty()) {
        const FilePath usual = FilePath(session.MyDocumentsPath) / u"Flight Simulator Files";
        if (session.files.isFolder(usual)) return usual;
    }
    return FilePath(getNonEnglishPath(session));
}

} // namespace morvane
