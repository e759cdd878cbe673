#include "simulator/options.h"

#include "core/failure_report.h"
#include "core/flag_text.h"
#include "core/job.h"
#include "core/numbers.h"
#include "core/registry.h"
#include "core/store_records.h"
#include "sets/simulator_copy.h"
#include "sets/simulator_note.h"
#include "sets/undo_step.h"
#include "simulator/option_table.h"

namespace morvane {

namespace {

const QString switchRow = u"SELECT * FROM TEXTURE_SWITCH WHERE ID = 1"_s;

FailureReport optionFailure(const QString& routine) {
    return {u"Morvane Error!"_s, MessageKind::exclamation, routine + u'\n', false};
}

} // namespace

void readSwitches(Session& session) {
    for (const SimulatorOption& option : simulatorOptions())
        if (option.column) session.state<OptionsInForce>().*option.flag = storedSwitch(session, option.flag);
}

bool storedSwitch(Session& session, bool OptionsInForce::*flag) {
    bool value = false;
    reportFailures(session.user, morvaneError,
                   [&] { value = RowSet(connectedStore(session), switchRow).flag(optionOf(flag).column); });
    return value;
}

Reported storeSwitch(Session& session, bool OptionsInForce::*flag, bool value) {
    return reportFailures(session.user, morvaneError, [&] {
        RowSet row(connectedStore(session), switchRow);
        row.setFlag(optionOf(flag).column, value);
        row.update();
    });
}

bool isCustomSplashInhibited(const Session& session) {
    return ownValue(session.registry, u"InhibitCustomSplash"_s) == u"True";
}

void getCustomSplashVal(Session& session) {
    reportFailures(session.user, optionFailure(u"Sub getCustomSplashVal"_s), [&] {
        const QString value = ownValue(session.registry, u"InhibitCustomSplash"_s);
        session.state<OptionsInForce>().InhibitCustomSplash = value == u"True";
        if (value != u"True" && value != u"False")
            storeOwnValue(session.registry, u"InhibitCustomSplash"_s, u"False"_s);
    });
}

void storeSplashInhibition(Session& session, bool value) {
    storeOwnValue(session.registry, u"InhibitCustomSplash"_s, flagText(value));
    session.state<OptionsInForce>().InhibitCustomSplash = value;
}

void setCustomSplashVal(Session& session, bool value) {
    reportFailures(session.user, optionFailure(u"Sub setCustomSplashVal"_s), [&] {
        Job job(session, u"option for the splash"_s);
        if (!job || (value && !claimSimulator(session))) return;
        UndoStep step(session);
        if (value) step.add(optionPart(&OptionsInForce::InhibitCustomSplash, value));
        storeSplashInhibition(session, value);
        if (value)
            copyIntoSimulator(session, session.AppPath / u"Media\\dlgsplash.bmp", splashTarget(session));
        job.end();
        const QString copied = u"The default FS splash screen has been copied to Flight Similator. "_s;
        session.user.showMessage(
            {MessageKind::information, u"FS9 Splash Screen Status"_s,
             value
                 ? copied +
                       u"The Morvane FS9 splash screen will not be shown when Flight Simulator is started."_s
                 : u"The Morvane FS9 splash screen will be shown when Flight Simulator is started."_s});
    });
}

bool isWideClientStored(const Session& session) {
    return trimmedBlanks(ownValue(session.registry, u"IsWideClient"_s)) == u"True";
}

void getSideFSVal(Session& session) {
    reportFailures(session.user, optionFailure(u"Function getSideFSVal"_s), [&] {
        const QString value = trimmedBlanks(ownValue(session.registry, u"IsWideClient"_s));
        session.state<OptionsInForce>().IsWideClient = value == u"True";
        if (value == u"True" || value == u"False") return;
        session.state<OptionsInForce>().IsWideClient = session.user.ask(
            Question::wideClient, u"For WideFS Users Only!"_s,
            u"Please indicate if you are using Morvane on a WideClient PC.  Click the checkmark for 'Yes' or "
            u"the "
            "crossmark for 'No'  If you are not using WideFS please select the crossmark to continue."_s);
        // The end of the program is no answer either.
        if (session.user.answers().isAnswered(Question::wideClient) && !session.ExitInProgress.isSilent())
            storeOwnValue(session.registry, u"IsWideClient"_s,
                          flagText(session.state<OptionsInForce>().IsWideClient));
    });
}

void setSideFSVal(Session& session, bool value) {
    // It reports under the name of the splash routine: wanted, users know the text.
    reportFailures(session.user, optionFailure(u"Sub setCustomSplashVal"_s), [&] {
        storeOwnValue(session.registry, u"IsWideClient"_s, flagText(value));
        session.state<OptionsInForce>().IsWideClient = value;
        session.user.showMessage(
            {MessageKind::information, u"FS9 WideFS Status"_s,
             value ? u"This setting states that this PC is a WideClient PC and therefore Morvane will not "
                     "attempt to start Flight Simulator."_s
                   : u"This setting states that this PC is a WideServer/Stand Alone PC and therefore "
                     "Morvane will attempt to start Flight Simulator as required by you the user."_s});
        session.user.refreshScreen(Screen::frm_Switcher);
    });
}

} // namespace morvane
