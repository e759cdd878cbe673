#include "app/exit_flow.h"

#include "core/failure_report.h"
#include "core/session.h"
#include "core/store.h"
#include "core/store_connection.h"
#include "core/store_records.h"
#include "ground/ground_installation.h"
#include "ground/ground_sets.h"
#include "ground/texture_sets.h"
#include "night/night_texture_sets.h"
#include "sets/options_in_force.h"
#include "sets/resource_folders.h"
#include "sets/set_names.h"
#include "simulator/backups.h"
#include "simulator/base_install_rows.h"
#include "sky/sky_installation.h"
#include "sky/sky_sets.h"
#include "sky/sky_texture_sets.h"
#include "sky/sky_texture_sub_sets.h"
#include "sky/sky_tuning_state.h"
#include "weather/reports.h"

#include <algorithm>

namespace morvane {

namespace {

/// The cover of the installed set; empty when it is "Default" or when none is installed.
template <class Sets, class Name>
QString installedCover(const Sets& sets, Name name) {
    const auto installed =
        std::find_if(sets.begin(), sets.end(), [](const auto& set) { return set->Installed; });
    if (installed == sets.end() || (**installed).*name == defaultSetName) return {};
    return (*installed)->CloudCover;
}

QString resetText(const QString& ground, const QString& sky) {
    const QString detected = u"Morvane has detected that you have '"_s;
    const QString tail =
        u"Please select the check button if you wish to reset Morvane textures to a nominal weather "
        "condition of Partly Cloudy before exiting."_s;
    const QString groundPart = ground + u"' Ground Texture Set installed"_s;
    const QString skyPart = sky + u"' Sky Texture Set installed. "_s;
    if (!ground.isEmpty() && !sky.isEmpty()) return detected + groundPart + u" and '"_s + skyPart + tail;
    return detected + (sky.isEmpty() ? groundPart + u". "_s : skyPart) + tail;
}

void clearDownloadedCycles(Session& session) {
    const FilePath folder = session.AppPath / u"METAR";
    if (session.files.list(folder, u"*.txt"_s).isEmpty()) return;
    for (const QString& name : session.files.list(folder, u"*.*"_s))
        session.files.remove(folder.child(name));
}

void releaseCollections(Session& session) {
    session.rows<clsConfigs>().reset();
    session.rows<clsResourceFolders>().reset();
    session.rows<clsBackups>().reset();
    session.rows<clsTextureSets>().reset();
    session.rows<clsNightTextureSets>().reset();
    session.rows<clsSkyTextureSets>().reset();
    session.rows<clsSkyTextureSubSets>().reset();
    session.rows<clsWxFinders>().reset();
}

} // namespace

Message resetQuestion(const QString& ground, const QString& sky) {
    Message question{
        MessageKind::question, u"Reset MV Textures?"_s, resetText(ground, sky), true, true, false};
    question.offersFastExit = true;
    return question;
}

void checkResetTextures(Session& session) {
    if (session.state<OptionsInForce>().IsFastExit || !hasStore(session))
        return; // which was told at the start
    if (!refreshGroundSets(session) || !refreshSkySets(session)) return;
    const QString ground = installedCover(*session.rows<clsTextureSets>(), &clsTextureSet::TextureSet);
    const QString sky = installedCover(*session.rows<clsSkyTextureSets>(), &clsSkyTextureSet::SkyTextureSet);
    if (ground.isEmpty() && sky.isEmpty()) return;
    if (!session.user.ask(Question::reset, resetQuestion(ground, sky))) return;
    if (!ground.isEmpty()) GroundInstallation(session).installTextureSet(defaultSetName);
    if (!sky.isEmpty()) SkyInstallation(session).installSkySet(defaultSetName);
}

void exitProgram(Session& session) {
    if (!session.MinimiseForLaunch && !session.CommandLineRun) {
        session.ExitInProgress.moveTo(ExitStage::inFlow);
        if (!session.ExitInProgress.isSilent())
            reportFailures(session.user, morvaneError, [&] { checkResetTextures(session); });
    }
    releaseCollections(session);
    reportFailures(session.user, morvaneError, [&] { clearDownloadedCycles(session); });
    reportFailures(session.user, morvaneError, [&] { saveLastSkySettings(session); });
    closeDatabase(session);
}

} // namespace morvane
