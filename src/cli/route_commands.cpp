#include "cli/command_helpers.h"
#include "cli/command_tables.h"
#include "cli/json_output.h"
#include "core/numbers.h"
#include "sets/cloud_cover.h"
#include "weather/flight_plan.h"
#include "weather/report_filter.h"

#include <QJsonArray>

namespace morvane {

namespace {

/// The options of `metar find` that take a list's entry, and where each goes.
struct EntryOption {
    QString name, meaning;
    const QStringList& entries;
    QString WxFilter::*field;
};

const std::vector<EntryOption>& entryOptions() {
    static const std::vector<EntryOption> options{
        {u"--precipitation"_s, u"what falls"_s, precipitationEntries(), &WxFilter::precipitation},
        {u"--intensity"_s, u"how strongly"_s, intensityEntries(), &WxFilter::intensity},
        {u"--obscuration"_s, u"what hides the view"_s, obscurationEntries(), &WxFilter::obscuration},
        {u"--cover"_s, u"the cloud cover"_s, cloudCoverEntries(), &WxFilter::cloudCover},
    };
    return options;
}

struct FlagOption {
    QString name, meaning;
    bool WxFilter::*flag;
};

const std::vector<FlagOption>& flagOptions() {
    static const std::vector<FlagOption> options{
        {u"--cb"_s, u"with cumulonimbus"_s, &WxFilter::cumulonimbus},
        {u"--tcu"_s, u"with towering cumulus"_s, &WxFilter::towering},
        {u"--cu"_s, u"with cumulus"_s, &WxFilter::cumulus},
    };
    return options;
}

const QString icaoOption = u"--icao"_s, mostOption = u"--max"_s;

std::vector<CommandOption> findOptions() {
    std::vector<CommandOption> options;
    for (const EntryOption& option : entryOptions())
        options.push_back({option.name, option.meaning, {.name = u"W"_s, .entries = option.entries}});
    for (const FlagOption& option : flagOptions())
        options.push_back({option.name, option.meaning});
    options.push_back({icaoOption, u"stations whose code begins so"_s, {u"PREFIX"_s, {}}});
    options.push_back({mostOption, u"at most so many; 0 for all"_s, countOperand(u"N"_s, {})});
    return options;
}

void applyOptions(const QHash<QString, QString>& given, WxFilter& filter) {
    for (const EntryOption& option : entryOptions())
        if (given.contains(option.name)) filter.*option.field = given[option.name];
    for (const FlagOption& option : flagOptions())
        if (given.contains(option.name)) filter.*option.flag = true;
    if (given.contains(icaoOption)) filter.WxFilterText = given[icaoOption];
    if (given.contains(mostOption)) filter.WxMaxResults = roundToInteger(textToNumber(given[mostOption]));
}

QJsonObject toJson(const Waypoint& waypoint) {
    return {{u"name"_s, waypoint.name},         {u"type"_s, waypoint.type},
            {u"latitude"_s, waypoint.latitude}, {u"longitude"_s, waypoint.longitude},
            {u"airway"_s, waypoint.airway},     {u"class"_s, waypoint.cloudClass}};
}

/// A plan without waypoints has no cover.
QJsonObject toJson(const FlightPlan& plan, const PlanWeather& weather) {
    QJsonArray waypoints;
    for (const Waypoint& waypoint : weather.waypoints)
        waypoints << toJson(waypoint);
    const QString cover = weather.coverClass == 0 ? QString() : coverOfClass(weather.coverClass).word;
    return {{u"departure"_s, plan.departure},
            {u"destination"_s, plan.destination},
            {u"altitude"_s, plan.altitude},
            {u"waypoints"_s, waypoints},
            {u"average"_s, weather.average},
            {u"class"_s, weather.coverClass},
            {u"cover"_s, cover}};
}

/// The reports found as one array, in order of their codes.
void findReports(CommandContext& context) {
    openWxFilter(context.session);
    applyOptions(context.options, context.session.state<WxFilter>());
    QJsonArray reports;
    for (const auto& finder : filterMetars(context.session))
        reports << QJsonObject{{u"WxFinderIcao"_s, finder->WxFinderIcao},
                               {u"WxFinderMetar"_s, finder->WxFinderMetar}};
    printJson(QJsonDocument(reports));
}

void showPlan(CommandContext& context) {
    const auto plan = readFlightPlan(context.session, pathOfArgument(context.arguments[0]));
    if (!plan) return;
    printJson(QJsonDocument(toJson(*plan, processFlightPlan(context.session, *plan))));
}

} // namespace

std::vector<Command> routeCommands() {
    return {{.words = u"metar find"_s,
             .options = findOptions(),
             .run = findReports,
             .meaning = u"the reports with that weather"_s,
             .example = u"metar find --precipitation Rain --cb --icao K --max 10"_s},
            {.words = u"plan"_s,
             .operands = {{u"FILE"_s, u"the flight plan"_s}},
             .options = {{jsonOption.name, u"the same: a plan is one JSON object in any case"_s}},
             .run = showPlan,
             .meaning = u"a flight plan with the cloud class of each waypoint, their average and its word"_s,
             .example = u"plan TBPBEGCC06R.PLN"_s}};
}

} // namespace morvane
