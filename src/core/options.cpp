#include "core/options.h"

#include "core/failure_report.h"
#include "core/file_helpers.h"
#include "core/job.h"
#include "core/numbers.h"
#include "core/registry.h"
#include "simulator/configs.h"
#include "simulator/simulator_copy.h"

#include <QDir>

namespace morvane {

namespace {

QString ownValue(const Session& session, const char16_t* name) {
    return session.registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, QStringView(name).toString());
}

void storeOwnValue(Session& session, const char16_t* name, const QString& text) {
    session.registry.CreateRegKey(HKEY_LOCAL_MACHINE_ROOT, morvaneKey);
    session.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, QStringView(name).toString(), text);
}

void inform(Session& session, const QString& title, const QString& text) {
    session.user.showMessage({MessageKind::information, title, text, true, false, false});
}

FailureReport optionFailure(const QString& routine) {
    return {u"Morvane Error!"_s, MessageKind::exclamation, routine + u'\n', false};
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
        storeOwnValue(session, u"NonEnglishPath", path);
        if (!isOwnFlightsFolder(session, path)) return path;
        refuseFolder(session);
    }
}

} // namespace

QString flagText(bool value) {
    return value ? u"True"_s : u"False"_s;
}

void readSwitches(Session& session) {
    clsConfigs switches(session);
    session.IsDutch = switches.GetDutchVal();
    session.IsTropical = switches.GetTropicalVal();
    session.IsHalo = switches.GetHaloVal();
    session.IsFastExit = switches.GetFastExitVal();
}

bool isCustomSplashInhibited(const Session& session) {
    return ownValue(session, u"InhibitCustomSplash") == u"True";
}

void getCustomSplashVal(Session& session) {
    reportFailures(session.user, optionFailure(u"Sub getCustomSplashVal"_s), [&] {
        const QString value = ownValue(session, u"InhibitCustomSplash");
        session.InhibitCustomSplash = value == u"True";
        if (value != u"True" && value != u"False") storeOwnValue(session, u"InhibitCustomSplash", u"False"_s);
    });
}

void setCustomSplashVal(Session& session, bool value) {
    reportFailures(session.user, optionFailure(u"Sub setCustomSplashVal"_s), [&] {
        Job job(session);
        if (!job) return;
        storeOwnValue(session, u"InhibitCustomSplash", flagText(value));
        session.InhibitCustomSplash = value;
        if (value)
            copyIntoSimulator(session, session.AppPath / u"Media\\dlgsplash.bmp", splashTarget(session));
        job.end();
        const QString copied = u"The default FS splash screen has been copied to Flight Similator. "_s;
        inform(
            session, u"FS9 Splash Screen Status"_s,
            value ? copied +
                        u"The Morvane FS9 splash screen will not be shown when Flight Simulator is started."_s
                  : u"The Morvane FS9 splash screen will be shown when Flight Simulator is started."_s);
    });
}

void getSideFSVal(Session& session) {
    reportFailures(session.user, optionFailure(u"Function getSideFSVal"_s), [&] {
        const QString value = trimmedBlanks(ownValue(session, u"IsWideClient"));
        session.IsWideClient = value == u"True";
        if (value == u"True" || value == u"False") return;
        session.IsWideClient = session.user.ask(
            Question::wideClient, u"For WideFS Users Only!"_s,
            u"Please indicate if you are using Morvane on a WideClient PC.  Click the checkmark for 'Yes' or "
            u"the "
            "crossmark for 'No'  If you are not using WideFS please select the crossmark to continue."_s);
        // The end of the program is no answer either.
        if (session.user.answers().isAnswered(Question::wideClient) && !session.ExitInProgress.isSilent())
            storeOwnValue(session, u"IsWideClient", flagText(session.IsWideClient));
    });
}

void setSideFSVal(Session& session, bool value) {
    // It reports under the name of the splash routine: wanted, users know the text.
    reportFailures(session.user, optionFailure(u"Sub setCustomSplashVal"_s), [&] {
        storeOwnValue(session, u"IsWideClient", flagText(value));
        session.IsWideClient = value;
        inform(session, u"FS9 WideFS Status"_s,
               value ? u"This setting states that this PC is a WideClient PC and therefore Morvane will not "
                       u"attempt "
                       "to start Flight Simulator."_s
                     : u"This setting states that this PC is a WideServer/Stand Alone PC and therefore "
                       u"Morvane will "
                       "attempt to start Flight Simulator as required by you the user."_s);
        session.user.refreshScreen(Screen::frm_Switcher);
    });
}

bool isOwnFlightsFolder(const Session& session, const QString& path) {
    const FilePath own = session.AppPath / u"Flights";
    const QString spelling = plainSpelling(path);
    return spelling == plainSpelling(own.text()) || spelling == plainSpelling(own.native()) ||
           isSameFolder(FilePath(path), own);
}

QString storedFlightsFolder(const Session& session) {
    return trimmedBlanks(ownValue(session, u"NonEnglishPath"));
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
    return ownValue(session, u"NonEnglishPath");
}

void setNonEnglishRegVal(Session& session) {
    reportFailures(session.user, optionFailure(u"Sub setNonEnglishRegVal"_s), [&] {
        const QString path = session.user.browseForFolder(usersFlightsFolder(session));
        if (path.isEmpty()) return;
        if (isOwnFlightsFolder(session, path)) return refuseFolder(session);
        storeOwnValue(session, u"NonEnglishPath", path);
        inform(session, u"FS9 Flight Simulator Files Path"_s,
               u"FS9 My Documents Flight Simulator Files path has been updated to: "_s + path);
        session.user.refreshScreen(Screen::frm_Switcher);
    });
}

} // namespace morvane
