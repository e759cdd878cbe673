#include "simulator/simulator_launch.h"

#include "core/failure_report.h"
#include "core/program_log.h"
#include "core/program_runner.h"
#include "sets/options_in_force.h"
#include "simulator/flights.h"

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

bool startSimulator(Session& session, const FilePath& flight) {
    if (!startWithRunner(session, u"Flight Simulator"_s, session.FSPath / u"fs9.exe", flight)) return false;
    session.state<ProgramLog>().note(
        u"Start"_s, flight.isEmpty() ? u"of the simulator"_s : u"of the simulator with a saved flight"_s);
    leaveTheScreenToTheSimulator(session);
    return true;
}

/// On a WideFS client, after the notice.
bool isLeftToServer(Session& session) {
    if (!session.state<OptionsInForce>().IsWideClient) return false;
    session.user.showMessage({MessageKind::information, u"Processing Complete"_s,
                              u"Processing complete. You can now start Flight Simulator on the server."_s});
    return true;
}

} // namespace

bool startSavedFlight(Session& session) {
    FlightChoice& choice = session.state<FlightChoice>();
    choice.FlightSelected = false; // of an earlier flight
    if (session.state<OptionsInForce>().IsWideClient) return false;
    if (!session.user.ask(Question::savedFlight, u"Start Predefined Flight"_s,
                          u"Do you wish Morvane to start one of your previously saved flights?"_s))
        return false;
    session.user.showModal(Screen::frm_flight);
    // OK without a name starts nothing, here or later on the road: wanted.
    if (!choice.FlightSelected || choice.SelectedFlightName.isEmpty()) return false;
    return startSimulator(session, savedFlightFile(session, choice.SelectedFlightName));
}

bool startUnasked(Session& session, const QString& flightName) {
    if (isLeftToServer(session)) return false;
    return startSimulator(session, flightName.isEmpty() ? FilePath() : savedFlightFile(session, flightName));
}

bool launchFlightSimulator(Session& session) {
    if (isLeftToServer(session)) return false;
    if (session.user.ask(Question::launch, u"Launch Flight Simulator?"_s,
                         u"Would you like Morvane to start Flight Simulator now?"_s))
        return startSimulator(session, {});
    if (!session.CommandLineRun) session.user.refreshScreen(Screen::frm_Main); // the sets just installed show
    return false;
}

void offerSimulatorStart(Session& session) {
    reportFailures(session.user, morvaneError, [&session] { launchFlightSimulator(session); });
}

} // namespace morvane
