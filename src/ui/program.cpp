#include "ui/program.h"

#include "core/application.h"
#include "core/failure_report.h"
#include "core/file_helpers.h"
#include "core/options.h"
#include "core/session.h"
#include "core/store_records.h"
#include "simulator/flights.h"
#include "simulator/resource_folders.h"
#include "ui/screens/main_screen.h"
#include "ui/screens/splash_screen.h"
#include "ui/shell.h"
#include "ui/skin.h"
#include "weather/active_sky.h"
#include "weather/wx_finders.h"

#include <QApplication>

namespace morvane {

namespace {

void runUnattended(Session& session, const QString& commandLine) {
    session.CommandLineRun = true;
    getCustomSplashVal(session);
    runCommandLine(session, commandLine);
    exitProgram(session);
}

void showStep(frm_Splash& splash, const QString& text, double value) {
    splash.showStep(text, value);
    QCoreApplication::processEvents();
}

/// Between the splash and the main window long loads report on the splash.
void loadBehindSplash(Shell& shell) {
    Session& session = shell.session();
    auto& splash = shell.screen<frm_Splash>(u"frm_Splash"_s);
    session.files.makeFolder(session.AppPath / u"TempBitmaps\\Dutch");
    splash.show();
    session.StartingUp = true;
    showStep(splash, u"Loading the settings. Please Wait............."_s, 20);
    constexpr int documents = 5;
    session.MyDocumentsPath = GetSpecialFolder(documents);
    getCustomSplashVal(session);
    if (!session.IsWideClient) showStep(splash, flightsProgressText, 40);
    loadFlightFiles(session);
    if (hasStore(session)) {
        clsResourceFolders::reload(session);
        clsWxFinders::reload(session);
    }
    showStep(splash, u"Loading the texture sets. Please Wait............."_s, 60);
    shell.formatMainScreen();
    showStep(splash, {}, 100);
}

void showMainWindow(Shell& shell) {
    Session& session = shell.session();
    shell.form(u"frm_Splash"_s)->hide();
    // A window without a place of its own gets one only later, and a message now would miss its middle.
    auto& mainWindow = shell.screen<frm_Main>(u"frm_Main"_s);
    mainWindow.centreOver(nullptr);
    mainWindow.show();
    session.RefreshGroundList = session.RefreshSkyList = session.RefreshNightList = true;
    session.StartingUp = false;
    shell.reportMissingSkin();
}

} // namespace

int runProgram(Shell& shell, const QString& commandLine) {
    Session& session = shell.session();
    if (!startUp(session)) return 1;
    if (!commandLine.isEmpty()) {
        runUnattended(session, commandLine);
        return 0;
    }
    tellActiveSkyProblem(session);
    const FailureReport report{u"Morvane Error!"_s, MessageKind::exclamation, u"Sub Main\n"_s, true};
    const bool isStarted = reportFailures(session.user, report, [&] {
        loadBehindSplash(shell);
        showMainWindow(shell);
    });
    return isStarted ? QApplication::exec() : 1;
}

} // namespace morvane
