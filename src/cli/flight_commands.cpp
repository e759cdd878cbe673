#include "cli/command_tables.h"
#include "cli/json_output.h"
#include "core/file_helpers.h"
#include "sets/cloud_cover.h"
#include "sets/options_in_force.h"
#include "simulator/flights.h"
#include "simulator/set_matching.h"
#include "simulator/simulator_launch.h"
#include "weather/cover_choice.h"

#include <QJsonArray>

namespace morvane {

namespace {

const QString metarOption = u"--metar"_s;

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
    json[u"ground"_s] = report.installed->ground;
    json[u"sky"_s] = report.installed->sky;
    json[u"files"_s] = report.installed->filesCopied;
    return json;
}

/// Nothing after the message of what is wrong with the report.
const CloudCover* coverOf(CommandContext& context) {
    if (!context.options.contains(metarOption)) return cloudCoverOfCode(context.arguments[0]);
    const std::int16_t cloudClass = processMetarString(context.session, context.options[metarOption]);
    return cloudClass == 0 ? nullptr : &coverOfClass(cloudClass);
}

void fly(CommandContext& context) {
    const CloudCover* cover = coverOf(context);
    if (!cover) return;
    if (!context.options.contains(metarOption))
        context.session.CommandLineRun = true; // as when another program drives this one
    printJson(QJsonDocument(toJson(context.session, flyWithCover(context.session, *cover))));
}

QString flyProblem(const QStringList& operands, const QHash<QString, QString>& options) {
    const bool hasReport = options.contains(metarOption);
    if (operands.isEmpty() == hasReport) return {};
    return hasReport ? u"WORD and --metar exclude each other"_s
                     : u"WORD or --metar is missing: fly WORD, fly --metar TEXT"_s;
}

Operand coverOperand() {
    Operand cover{.name = u"WORD"_s, .meaning = u"the cloud cover"_s, .isOptional = true};
    for (int number = 1; number <= cloudCoverCount; ++number)
        cover.entries << cloudCover(number)->code;
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
             .operands = {coverOperand()},
             .options = {{metarOption, u"the cloud cover of a report instead"_s, {u"TEXT"_s, {}}}},
             .writes = true,
             .run = fly,
             .problem = flyProblem,
             .meaning = u"installs a ground and a sky set for a cloud cover and starts the simulator"_s,
             .example = u"--answer yes fly OVC"_s}};
}

} // namespace morvane
