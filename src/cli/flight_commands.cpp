#include "cli/command_helpers.h"
#include "cli/command_tables.h"
#include "cli/json_output.h"
#include "cli/ordered_flight.h"
#include "core/attempts.h"
#include "core/file_helpers.h"
#include "sets/cloud_cover.h"
#include "sets/options_in_force.h"
#include "simulator/flights.h"
#include "simulator/set_matching.h"
#include "simulator/simulator_launch.h"

#include <QJsonArray>

namespace morvane {

namespace {

void listFlights(CommandContext& context) {
    printJson(QJsonDocument(QJsonArray::fromStringList(savedFlights(context.session))));
}

void loadFlights(CommandContext& context) {
    constexpr int documents = 5;
    context.session.MyDocumentsPath = GetSpecialFolder(documents);
    loadFlightFiles(context.session);
}

QString startOf(const Session& session, const FlyReport& report) {
    if (session.state<OptionsInForce>().IsWideClient) return u"on the server"_s;
    if (!report.isSimulatorStarted) return u"none"_s;
    return session.state<FlightChoice>().FlightSelected ? u"saved flight"_s : u"simulator"_s;
}

QJsonObject toJson(const Session& session, const FlyReport& report) {
    QJsonObject json{
        {u"ground"_s, {}}, {u"sky"_s, {}}, {u"files"_s, 0}, {u"start"_s, startOf(session, report)}};
    if (!report.installed) return json;
    json[u"ground"_s] = report.installed->ground.name;
    json[u"sky"_s] = report.installed->sky.name;
    json[u"files"_s] = report.installed->filesCopied;
    return json;
}

/// Asked again until one is meant, or none. What was typed stands in the prompt alone, which no log has.
bool isFlightNamed(CommandContext& context) {
    loadFlights(context);
    const QStringList names = savedFlights(context.session);
    QString told = names.join(u'\n');
    for (;;) {
        if (!told.isEmpty()) told += u'\n';
        const QString typed = context.user.askText(told + u"Which flight? An empty line means none: "_s);
        if (typed.isEmpty()) return false;
        const auto failure = failureOf([&] {
            context.session.state<FlightChoice>() = {.SelectedFlightName = flightNamed(typed, names),
                                                     .FlightSelected = true};
        });
        if (!failure) return true;
        told = failure->description();
    }
}

/// What the window shows a screen for. A script's yes names none, and has nothing gathered.
void chooseFlight(CommandContext& context) {
    if (!context.user.isAsked() || !isFlightNamed(context))
        context.user.tellDone({u"No saved flight; with --cover, --flight NAME starts one unasked"_s});
}

void fly(CommandContext& context) {
    if (isOrdered(context.options)) return flyAsOrdered(context);
    context.user.onModal = [&](Screen screen) {
        if (screen == Screen::frm_flight) chooseFlight(context);
    };
    context.session.CommandLineRun = true; // as when another program drives this one
    const CloudCover& cover = *cloudCoverOfCode(context.arguments[0]);
    printJson(QJsonDocument(toJson(context.session, flyWithCover(context.session, cover))));
}

QString flyProblem(const QStringList& operands, const QHash<QString, QString>& options) {
    if (const QString problem = orderProblem(options); !problem.isEmpty()) return problem;
    if (operands.isEmpty() == isOrdered(options)) return {};
    return operands.isEmpty() ? u"WORD or one of --from, --plan, --cover and --metar is missing"_s
                              : u"WORD and %1 exclude each other"_s.arg(orderedBy(options));
}

Operand optionalCover() {
    Operand cover = coverOperand();
    cover.isOptional = true;
    return cover;
}

} // namespace

std::vector<Command> flightCommands() {
    return {{.words = u"flights list"_s,
             .run = listFlights,
             .meaning = u"the names of the gathered flights"_s,
             .example = u"flights list"_s},
            {.words = u"flights load"_s,
             .writes = true,
             .run = loadFlights,
             .meaning = u"gathers the saved flights, as every start of the program does"_s,
             .example = u"flights load"_s},
            {.words = u"fly"_s,
             .operands = {optionalCover()},
             .options = flightOptions(),
             .writes = true,
             .run = fly,
             .problem = flyProblem,
             .meaning = u"installs a ground and a sky set for a cloud cover and starts the simulator"_s,
             .example = u"fly --from EHAM --to KSEA --refresh --flight \"Schiphol Evening\""_s}};
}

} // namespace morvane
