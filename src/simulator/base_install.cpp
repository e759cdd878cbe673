#include "simulator/base_install.h"

#include "core/failure_report.h"
#include "core/job.h"
#include "core/options.h"
#include "core/set_collections.h"
#include "ground/ground_sets.h"
#include "night/night_sets.h"
#include "simulator/configs.h"
#include "simulator/simulator_copy.h"

namespace morvane {

namespace {

const QString defaultSet = u"Default"_s, unchangedColours = u"0:0:0:0:0:0"_s;
const QString copyingTitle = u"Copying Files to Flight Simulator"_s;

void showCopying(Session& session, const QString& text) {
    session.user.showMessage({MessageKind::progress, copyingTitle, text, false, false, true});
}

/// One set stays installed, read anew first: no other row may get back what it was when it was loaded.
void installDefaultGround(Session& session) {
    if (!refreshGroundSets(session)) return;
    const auto found = findGroundSet(session, defaultSet);
    if (!found) return;
    clsTextureSet set = *found;
    set.CloudCover = u"Partly Cloudy"_s;
    set.Description = u"Default Morvane Texture Set with no extra settings"_s;
    set.Actvated = flagText(true);
    set.ColorSettings = unchangedColours;
    set.Installed = true;
    if (session.gTextureSets->UpdateTextureSet(set) && refreshGroundSets(session))
        session.gTextureSets->markInstalled(defaultSet);
    refreshGroundSets(session);
    session.RefreshGroundList = true;
}

void installDefaultNight(Session& session) {
    if (!refreshNightSets(session)) return;
    const auto found = findNightSet(session, defaultSet);
    if (!found) return;
    clsNightTextureSet set = *found;
    set.Description = u"Default Morvane Night Texture Set with no extra settings"_s;
    set.Actvated = flagText(true);
    set.ColorSettings = unchangedColours;
    set.Installed = true;
    if (session.gNightTextureSets->UpdateNightTextureSet(set) && refreshNightSets(session))
        session.gNightTextureSets->markInstalled(defaultSet);
    refreshNightSets(session);
    session.RefreshNightList = true;
}

/// The row says "installed" before the first file is copied, also when there is none to copy.
void collectConfig(Session& session, clsConfig config, std::vector<FileCopy>& copies) {
    const bool isForAddOn = config.ConfigName == addOnConfig;
    if (isForAddOn && !session.files.isFolder(session.FSPath / u"Scenery\\UTEurLC")) return;
    if (config.ConfigName == globalDayConfig) installDefaultGround(session);
    if (config.ConfigName == globalNightConfig) installDefaultNight(session);
    collectFolderFiles(session, session.AppPath / config.ConfigMVFolder,
                       session.FSPath / config.ConfigFSFolder, copies);
    config.ConfigInstalled = true;
    session.gConfigs->UpdateConfig(config);
}

void copyEach(Session& session, const std::vector<FileCopy>& copies) {
    SimulatorCopier copier(session);
    copier.prepare(copies);
    const double share = 100.0 / static_cast<double>(copies.size());
    double position = 0;
    for (const FileCopy& copy : copies) {
        try {
            copier.copyOverReadOnly(copy);
        } catch (const Error& error) {
            // Wanted: one file in use does not keep the rest from the pilot.
            if (error.code() == ErrorCode::interrupted) throw;
        }
        session.user.updateProgress({}, {}, position += share);
    }
    copier.finish();
}

void copyTicked(Session& session, const QStringList& tickedTitles) {
    std::vector<FileCopy> copies;
    bool isAnyTicked = false;
    const clsConfigs& configs = loadedCollection(session, session.gConfigs);
    for (const auto& config : configs) {
        if (!tickedTitles.contains(config->ConfigName)) continue;
        isAnyTicked = true;
        collectConfig(session, *config, copies);
    }
    if (!isAnyTicked) {
        session.user.showMessage(
            {MessageKind::progress, u"No Options Selected"_s,
             u"No options were selected and no textures will be copied to Flight Simulator"_s});
    } else if (!copies.empty()) {
        showCopying(session, copyingTitle + u". This may take a few moments. Please wait......."_s);
        copyEach(session, copies);
    }
}

} // namespace

bool collectFolderFiles(Session& session, const FilePath& sourceFolder, const FilePath& targetFolder,
                        std::vector<FileCopy>& copies) {
    return reportFailures(session.user, {},
                          [&] { addFolderFiles(session, sourceFolder, u"*.*"_s, targetFolder, copies); });
}

void copyBaseResources(Session& session, const QStringList& tickedTitles) {
    const Job job(session);
    if (!job) return;
    showCopying(session, copyingTitle);
    reportFailures(session.user, {}, [&] { copyTicked(session, tickedTitles); });
    clsConfigs::reload(session);
    session.user.refreshScreen(Screen::frm_Main);
    session.user.hideMessage();
}

} // namespace morvane
