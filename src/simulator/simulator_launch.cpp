#include "simulator/simulator_launch.h"

#include "core/registry.h"
#include "simulator/flights.h"
#include "simulator/program_start.h"

namespace morvane {

namespace {

/// The program stays alive, minimised. An unattended run does not: it ends by itself behind the road that led
/// here.
void leaveTheScreenToTheSimulator(Session& session) {
    if (session.CommandLineRun) return;
    session.MinimiseForLaunch = true;
    session.user.minimiseProgram();
    session.MinimiseForLaunch = false;
}

void tellNotStarted(Session& session, const QString& why) {
    session.user.showMessage({MessageKind::exclamation, u"Flight Simulator Not Started"_s, why});
}

bool startSimulator(Session& session, const FilePath& flight) {
    const QString runner =
        session.registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"SimulatorRunner"_s);
    const FilePath simulator = session.FSPath / u"fs9.exe";
    const bool isPossible = !lacksRunner(simulator, runner);
    const bool isStarted = isPossible && startProgram(simulator, flight, runner);
    if (!isPossible)
        tellNotStarted(session,
                       u"Flight Simulator is a Windows program and needs a runner on this system. "
                       u"Set the value \"SimulatorRunner\" of Morvane's registry.ini to its command, "
                       u"such as wine."_s);
    else if (!isStarted)
        tellNotStarted(session, u"Flight Simulator could not be started: "_s + simulator.text() +
                                    (runner.isEmpty() ? QString() : u"\nThe runner is "_s + runner));
    else
        leaveTheScreenToTheSimulator(session);
    return isStarted;
}

} // namespace

bool startSavedFlight(Session& session) {
    ModalState& modal = session.modal;
    modal.FlightSelected = false; // of an earlier flight
    if (session.IsWideClient) return false;
    if (!session.user.ask(Question::savedFlight, u"Start Predefined Flight"_s,
                          u"Do you wish Morvane to start one of your previously saved flights?"_s))
        return false;
    session.user.showModal(Screen::frm_flight);
    // OK without a name starts nothing, here or later on the road: wanted.
    if (!modal.FlightSelected || modal.SelectedFlightName.isEmpty()) return false;
    return startSimulator(session, savedFlightFile(session, modal.SelectedFlightName));
}

bool launchFlightSimulator(Session& session) {
    if (session.IsWideClient) {
        session.user.showMessage(
            {MessageKind::information, u"Processing Complete"_s,
             u"Processing complete. You can now start Flight Simulator on the server."_s});
        return false;
    }
    if (session.user.ask(Question::launch, u"Launch Flight Simulator?"_s,
                         u"Would you like Morvane to start Flight Simulator now?"_s))
        return startSimulator(session, {});
    if (!session.CommandLineRun) session.user.refreshScreen(Screen::frm_Main); // the sets just installed show
    return false;
}

} // namespace morvane
