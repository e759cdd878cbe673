#include "simulator/installed_rows.h"

#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/texture_sets.h"
#include "night/night_selection.h"
#include "night/night_sets.h"
#include "night/night_texture_sets.h"
#include "sets/options_in_force.h"
#include "simulator/base_install_rows.h"
#include "simulator/options.h"
#include "sky/sky_selection.h"
#include "sky/sky_sets.h"
#include "sky/sky_texture_sets.h"

#include <QJsonArray>

namespace morvane {

namespace {

const QString ground = u"ground"_s, sky = u"sky"_s, night = u"night"_s, bodies = u"bodies"_s;
const QString inhibitedSplash = u"inhibitsplash"_s;

/// The options that change files and are kept in the store.
const std::pair<const char16_t*, bool OptionsInForce::*> switches[] = {
    {u"halo", &OptionsInForce::IsHalo},
    {u"dutch", &OptionsInForce::IsDutch},
    {u"tropical", &OptionsInForce::IsTropical}};

/// Read anew: rows in memory stay as they were loaded. Empty after the message of a lost store, too.
template <class Kind>
QString installedName(Session& session) {
    if (!refreshSets<Kind>(session)) return {};
    for (const auto& set : loadedSets<Kind>(session))
        if (set->Installed) return nameOf(*set);
    return {};
}

bool markBodies(Session& session, const QJsonArray& titles) {
    if (!clsConfigs::reload(session)) return false;
    for (const auto& body : *session.rows<clsConfigs>()) {
        clsConfig changed = *body;
        changed.ConfigInstalled = titles.contains(body->ConfigName);
        if (changed.ConfigInstalled != body->ConfigInstalled && !writeConfig(session, changed)) return false;
    }
    return clsConfigs::reload(session);
}

bool setSwitches(Session& session, const QJsonObject& rows) {
    for (const auto& [name, flag] : switches) {
        const bool isOn = rows[name].toBool();
        session.state<OptionsInForce>().*flag = isOn;
        if (!storeSwitch(session, flag, isOn)) return false;
    }
    return true;
}

} // namespace

QString installedGround(Session& session) {
    return installedName<GroundKind>(session);
}
QString installedSky(Session& session) {
    return installedName<SkyKind>(session);
}
QString installedNight(Session& session) {
    return installedName<NightKind>(session);
}
QStringList installedBodies(Session& session) {
    QStringList titles;
    if (!clsConfigs::reload(session)) return titles;
    for (const auto& body : *session.rows<clsConfigs>())
        if (body->ConfigInstalled) titles << body->ConfigName;
    return titles;
}

QJsonObject installedRows(Session& session) {
    const auto& options = session.state<OptionsInForce>();
    QJsonObject rows{{ground, installedGround(session)},
                     {sky, installedSky(session)},
                     {night, installedNight(session)},
                     {bodies, QJsonArray::fromStringList(installedBodies(session))},
                     {inhibitedSplash, options.InhibitCustomSplash}};
    for (const auto& [name, flag] : switches)
        rows[name] = options.*flag;
    return rows;
}

void giveBackRows(Session& session, const QJsonObject& rows) {
    refreshGroundSets(session) && session.rows<clsTextureSets>()->markInstalled(rows[ground].toString()) &&
        refreshSkySets(session) && session.rows<clsSkyTextureSets>()->markInstalled(rows[sky].toString()) &&
        refreshNightSets(session) &&
        session.rows<clsNightTextureSets>()->markInstalled(rows[night].toString()) &&
        markBodies(session, rows[bodies].toArray()) && setSwitches(session, rows);
    if (rows.contains(inhibitedSplash)) storeSplashInhibition(session, rows[inhibitedSplash].toBool());
    session.state<GroundSelection>().RefreshGroundList = session.state<SkySelection>().RefreshSkyList =
        session.state<NightSelection>().RefreshNightList = true;
    session.user.refreshScreen(Screen::frm_Main);
}

} // namespace morvane
