#include "window/program.h"

#include "app/command_line_run.h"
#include "app/exit_flow.h"
#include "app/first_run.h"
#include "app/start_up.h"
#include "core/attempts.h"
#include "core/failure_report.h"
#include "core/file_helpers.h"
#include "core/session.h"
#include "core/store_records.h"
#include "core/writing.h"
#include "ground/ground_selection.h"
#include "night/night_selection.h"
#include "sets/options_in_force.h"
#include "sets/resource_folders.h"
#include "simulator/flights.h"
#include "simulator/options.h"
#include "sky/sky_selection.h"
#include "ui/skin.h"
#include "weather/active_sky.h"
#include "weather/reports.h"
#include "window/main_screen.h"
#include "window/report_saving.h"
#include "window/splash_screen.h"
#include "window/window_shell.h"

#include <QApplication>
#include <QTimer>

namespace morvane {

namespace {

int runUnattended(Session& session, const QString& commandLine) {
    session.CommandLineRun = true;
    getCustomSplashVal(session);
    runCommandLine(session, commandLine);
    exitProgram(session);
    return session.writing->wasRefused ? 1 : 0;
}

void showStep(frm_Splash& splash, const QString& text, double value) {
    splash.showStep(text, value);
    QCoreApplication::processEvents();
}

/// Where another program writes, those of the last time serve as well: a start waits for nobody.
void gatherFlights(Session& session, frm_Splash& splash) {
    const Writing writing(session, Writing::Waiting::none);
    if (!writing) return;
    if (!session.state<OptionsInForce>().IsWideClient) showStep(splash, flightsProgressText, 40);
    loadFlightFiles(session);
}

/// As early as it can be: questions and messages of the start stand over it.
void showSplash(WindowShell& shell) {
    shell.screen<frm_Splash>(u"frm_Splash"_s).show();
    QCoreApplication::processEvents();
}

/// Between the splash and the main window long loads report on the splash.
void loadBehindSplash(WindowShell& shell) {
    Session& session = shell.session();
    auto& splash = shell.screen<frm_Splash>(u"frm_Splash"_s);
    session.files.makeFolder(session.AppPath / u"TempBitmaps\\Dutch");
    session.StartingUp = true;
    showStep(splash, u"Loading the settings. Please Wait............."_s, 20);
    constexpr int documents = 5;
    session.MyDocumentsPath = GetSpecialFolder(documents);
    getCustomSplashVal(session);
    gatherFlights(session, splash);
    if (hasStore(session)) {
        attempt([&] { resourceFolders(session); });
        clsWxFinders::reload(session);
    }
    showStep(splash, u"Loading the texture sets. Please Wait............."_s, 60);
    shell.formatMainScreen();
    showStep(splash, {}, 100);
}

void showMainWindow(WindowShell& shell) {
    Session& session = shell.session();
    shell.form(u"frm_Splash"_s)->hide();
    // A window without a place of its own gets one only later, and a message now would miss its middle.
    auto& mainWindow = shell.screen<frm_Main>(u"frm_Main"_s);
    mainWindow.centreOver(nullptr);
    mainWindow.show();
    session.state<GroundSelection>().RefreshGroundList = session.state<SkySelection>().RefreshSkyList =
        session.state<NightSelection>().RefreshNightList = true;
    session.StartingUp = false;
    shell.reportMissingSkin();
}

/// From the loop, as any dialog. Behind the first run the program has a backup and no set yet.
void offerNextSteps(WindowShell& shell) {
    QTimer::singleShot(0, &shell, [&shell] {
        Session& session = shell.session();
        if (session.state<FirstRun>().isDone) session.user.showModal(Screen::frm_Ready);
        offerReport(session, shell.messageAnchor());
    });
}

} // namespace

int runProgram(WindowShell& shell, const QString& commandLine) {
    Session& session = shell.session();
    const ExitProgress& exit = session.ExitInProgress;
    const FailureReport report{u"Morvane Error!"_s, MessageKind::exclamation, u"Sub Main\n"_s, true};
    const auto openWindows = [&] {
        tellActiveSkyProblem(session);
        loadBehindSplash(shell);
        showMainWindow(shell);
        offerNextSteps(shell);
    };
    if (!commandLine.isEmpty()) session.writing->beUnattended();
    const bool isReady = startUp(session, InstallUse::writing, [&] {
        if (commandLine.isEmpty()) showSplash(shell);
    });
    if (isReady && !commandLine.isEmpty()) return runUnattended(session, commandLine);
    const bool isStarted = isReady && (exit.endsWork() || reportFailures(session.user, report, openWindows));
    if (!isStarted && !exit.endsWork()) return 1;
    if (!exit.endsWork()) QApplication::exec();
    // Every road out leads here, where no job, wait or dialog is left on the stack.
    exitProgram(session);
    return 0;
}

} // namespace morvane
