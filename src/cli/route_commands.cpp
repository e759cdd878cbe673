#include "cli/route_commands.h"

#include "cli/command_helpers.h"
#include "cli/json_output.h"
#include "core/numbers.h"
#include "simulator/set_matching.h"
#include "weather/flight_plan.h"
#include "weather/wx_filter.h"

#include <QJsonArray>

namespace morvane {

namespace {

/// An option that takes one of a list's entries, spelt as in the list.
bool takeEntry(const QStringList& entries, const QString& value, QString& entry) {
    if (!entries.contains(value)) return false;
    entry = value;
    return true;
}

bool takeMost(const QString& value, std::int16_t& most) {
    if (!isDigits(value)) return false;
    most = roundToInteger(textToNumber(value));
    return true;
}

/// False for an unknown option or a value that it does not take.
bool takeOption(const QString& option, const QString& value, WxFilter& filter) {
    if (option == u"--precipitation") return takeEntry(precipitationEntries(), value, filter.precipitation);
    if (option == u"--intensity") return takeEntry(intensityEntries(), value, filter.intensity);
    if (option == u"--obscuration") return takeEntry(obscurationEntries(), value, filter.obscuration);
    if (option == u"--cover") return takeEntry(cloudCoverEntries(), value, filter.cloudCover);
    if (option == u"--max") return takeMost(value, filter.WxMaxResults);
    if (option != u"--icao") return false;
    filter.WxFilterText = value;
    return true;
}

bool takeFlag(const QString& option, WxFilter& filter) {
    bool* flag = option == u"--tcu"  ? &filter.towering
                 : option == u"--cb" ? &filter.cumulonimbus
                 : option == u"--cu" ? &filter.cumulus
                                     : nullptr;
    if (flag) *flag = true;
    return flag != nullptr;
}

bool takeOptions(const QStringList& arguments, WxFilter& filter) {
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (takeFlag(arguments[i], filter)) continue;
        if (i + 1 == arguments.size() || !takeOption(arguments[i], arguments[i + 1], filter)) return false;
        ++i;
    }
    return true;
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
    const QString cover = weather.coverClass == 0 ? QString() : SetMatching::coverWord(weather.coverClass);
    return {{u"departure"_s, plan.departure},
            {u"destination"_s, plan.destination},
            {u"altitude"_s, plan.altitude},
            {u"waypoints"_s, waypoints},
            {u"average"_s, weather.average},
            {u"class"_s, weather.coverClass},
            {u"cover"_s, cover}};
}

} // namespace

bool metarFind(CommandContext& context) {
    openWxFilter(context.session);
    if (!takeOptions(context.arguments, context.session.wxFilter)) return false;
    QJsonArray reports;
    for (const auto& finder : filterMetars(context.session))
        reports << QJsonObject{{u"WxFinderIcao"_s, finder->WxFinderIcao},
                               {u"WxFinderMetar"_s, finder->WxFinderMetar}};
    printJson(QJsonDocument(reports));
    return true;
}

bool showPlan(CommandContext& context) {
    const auto plan = readFlightPlan(context.session, pathOfArgument(context.arguments[0]));
    if (!plan) return true;
    printJson(QJsonDocument(toJson(*plan, processFlightPlan(context.session, *plan))));
    return true;
}

} // namespace morvane
