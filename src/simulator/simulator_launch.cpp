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

void startSimulator(Session& session, const FilePath& flight) {
    const QString runner =
        session.registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"SimulatorRunner"_s);
    const FilePath simulator = session.FSPath / u"fs9.exe";
    if (lacksRunner(simulator, runner)) {
        session.user.showMessage(
            {MessageKind::information, u"Flight Simulator Not Started"_s,
             u"Flight Simulator is a Windows program and needs a runner on this system. Set the value "
             u"\"SimulatorRunner\" of Morvane's registry.ini to its command, such as wine."_s});
        return;
    }
    startProgram(simulator, flight, runner);
    leaveTheScreenToTheSimulator(session);
}

} // namespace

void startSavedFlight(Session& session) {
    ModalState& modal = session.modal;
    modal.FlightSelected = false; // of an earlier flight
    if (session.IsWideClient) return;
    if (!session.user.ask(Question::savedFlight, u"Start Predefined Flight"_s,
                          u"Do you wish Morvane to start one of your previously saved flights?"_s))
        return;
    session.user.showModal(Screen::frm_flight);
    // OK without a name starts nothing, here or later on the road: wanted.
    if (modal.FlightSelected && !modal.SelectedFlightName.isEmpty())
        startSimulator(session, savedFlightFile(session, modal.SelectedFlightName));
}

void launchFlightSimulator(Session& session) {
    if (session.IsWideClient) {
        session.user.showMessage(
            {MessageKind::information, u"Processing Complete"_s,
             u"Processing complete. You can now start Flight Simulator on the server."_s});
        return;
    }
    if (session.user.ask(Question::launch, u"Launch Flight Simulator?"_s,
                         u"Would you like Morvane to start Flight Simulator now?"_s))
        startSimulator(session, {});
    else if (!session.CommandLineRun)
        session.user.refreshScreen(Screen::frm_Main); // the sets just installed show
}

} // namespace morvane
