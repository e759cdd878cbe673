#pragma once

#include "cli/json_output.h"
#include "ground/ground_generation.h"
#include "ground/ground_installation.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "night/night_generation.h"
#include "night/night_installation.h"
#include "night/night_selection.h"
#include "night/night_sets.h"
#include "sky/sky_activation.h"
#include "sky/sky_installation.h"
#include "sky/sky_selection.h"
#include "sky/sky_sets.h"

namespace morvane {

// What the console's commands on sets (cli/set_commands.h) need of each kind.

struct GroundKind {
    static QString word() { return u"ground"_s; }
    static QString activationMeaning() { return u"rebuilds a set's files"_s; }
    static constexpr bool refusesActivated = true;
    static const clsTextureSets& sets(Session& session) { return loadedGroundSets(session); }
    static auto find(Session& session, const QString& name) { return findGroundSet(session, name); }
    static bool click(Session& session, const QString& name) { return clickGroundRow(session, name); }
    static const QString& activation(const clsTextureSet& set) { return set.Actvated; }
    static QJsonObject json(const Session& session, const clsTextureSet& set) {
        return toJson(set, session.DecimalSep);
    }
    static void activate(Session& session) { GroundGeneration(session).activateTextureSet(); }
    static void remove(Session& session, bool keepsColours) {
        GroundGeneration(session).deleteTextureSet(keepsColours);
    }
    static void install(Session& session) { GroundInstallation(session).installTextureSet(true); }
};

struct SkyKind {
    static QString word() { return u"sky"_s; }
    static QString activationMeaning() {
        return u"writes a set's files, those of sunrise and sunset included"_s;
    }
    /// A second activation gives a generated set its files of sunrise and sunset.
    static constexpr bool refusesActivated = false;
    static const clsSkyTextureSets& sets(Session& session) { return loadedSkySets(session); }
    static auto find(Session& session, const QString& name) { return findSkySet(session, name); }
    static bool click(Session& session, const QString& name) { return clickSkyRow(session, name); }
    static const QString& activation(const clsSkyTextureSet& set) { return set.Activated; }
    static QJsonObject json(const Session&, const clsSkyTextureSet& set) { return toJson(set); }
    static void activate(Session& session) { SkyActivation(session).activateSkySet(); }
    static void remove(Session& session, bool keepsColours) {
        SkyActivation(session).deleteSkySet(keepsColours);
    }
    static void install(Session& session) { SkyInstallation(session).installSkySet(true); }
};

struct NightKind {
    static QString word() { return u"night"_s; }
    static QString activationMeaning() { return u"rebuilds a set's files"_s; }
    static constexpr bool refusesActivated = true;
    static const clsNightTextureSets& sets(Session& session) { return loadedNightSets(session); }
    static auto find(Session& session, const QString& name) { return findNightSet(session, name); }
    static bool click(Session& session, const QString& name) { return clickNightRow(session, name); }
    static const QString& activation(const clsNightTextureSet& set) { return set.Actvated; }
    static QJsonObject json(const Session& session, const clsNightTextureSet& set) {
        return toJson(set, session.DecimalSep);
    }
    static void activate(Session& session) { NightGeneration(session).activateNightTextureSet(); }
    static void remove(Session& session, bool keepsColours) {
        NightGeneration(session).deleteNightTextureSet(keepsColours);
    }
    static void install(Session& session) { NightInstallation(session).installNightTextureSet(); }
};

} // namespace morvane
