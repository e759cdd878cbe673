#include "simulator/base_install.h"

#include "core/attempts.h"
#include "core/failure_report.h"
#include "core/flag_text.h"
#include "core/numbers.h"
#include "ground/ground_selection.h"
#include "ground/ground_sets.h"
#include "ground/texture_sets.h"
#include "night/night_selection.h"
#include "night/night_sets.h"
#include "night/night_texture_sets.h"
#include "sets/set_names.h"
#include "sets/simulator_copy.h"
#include "sets/simulator_note.h"
#include "sets/stored_rows.h"
#include "sets/undo_step.h"
#include "simulator/base_install_rows.h"
#include "simulator/checked_copies.h"

namespace morvane {

namespace {

const QString unchangedColours = u"0:0:0:0:0:0"_s;
const QString copyingTitle = u"Copying Files to Flight Simulator"_s;

void showCopying(Session& session, const QString& text) {
    session.user.showMessage({MessageKind::progress, copyingTitle, text, false, false, true});
}

/// One set stays installed, read anew first: no other row may get back what it was when it was loaded.
void installDefaultGround(Session& session) {
    if (!refreshGroundSets(session)) return;
    const auto found = findGroundSet(session, defaultSetName);
    if (!found) return;
    clsTextureSet set = *found;
    set.CloudCover = u"Partly Cloudy"_s;
    set.Description = u"Default Morvane Texture Set with no extra settings"_s;
    set.Actvated = flagText(true);
    set.ColorSettings = unchangedColours;
    set.Installed = true;
    if (session.rows<clsTextureSets>()->Save(set) && refreshGroundSets(session))
        session.rows<clsTextureSets>()->markInstalled(defaultSetName);
    refreshGroundSets(session);
    session.state<GroundSelection>().RefreshGroundList = true;
}

void installDefaultNight(Session& session) {
    if (!refreshNightSets(session)) return;
    const auto found = findNightSet(session, defaultSetName);
    if (!found) return;
    clsNightTextureSet set = *found;
    set.Description = u"Default Morvane Night Texture Set with no extra settings"_s;
    set.Actvated = flagText(true);
    set.ColorSettings = unchangedColours;
    set.Installed = true;
    if (session.rows<clsNightTextureSets>()->Save(set) && refreshNightSets(session))
        session.rows<clsNightTextureSets>()->markInstalled(defaultSetName);
    refreshNightSets(session);
    session.state<NightSelection>().RefreshNightList = true;
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
    writeConfig(session, config);
}

/// Returns how many came; a source or a target in use is passed over and costs no other.
int copyEach(Session& session, const std::vector<FileCopy>& copies) {
    SimulatorCopier copier(session);
    copier.prepare(copies);
    int count = 0;
    const bool isWhole = CopyWalk(session, copies, 1).round(nullptr, [&](const FileCopy& copy) {
        count += attempt([&] { copier.copyOverReadOnly(copy); });
    });
    if (!isWhole) throw Error(ErrorCode::interrupted);
    session.user.hideMessage();
    copier.finish(); // may wait for the disk
    return count;
}

/// Nothing when nothing was ticked.
std::optional<std::vector<FileCopy>> collectTicked(Session& session, const QStringList& tickedTitles) {
    std::optional<std::vector<FileCopy>> copies;
    const clsConfigs& configs = loadedCollection(session, session.rows<clsConfigs>());
    for (const auto& config : configs) {
        if (!tickedTitles.contains(config->ConfigName)) continue;
        if (!copies) copies.emplace();
        collectConfig(session, *config, *copies);
    }
    return copies;
}

/// What to say at the end; nothing where nothing was ticked.
std::optional<DoneLine> copyTicked(Session& session, const QStringList& tickedTitles) {
    UndoStep step(session);
    if (!tickedTitles.isEmpty()) step.add(u"Base install of "_s + tickedTitles.join(u", "_s));
    std::optional<std::vector<FileCopy>> copies = collectTicked(session, tickedTitles);
    if (!copies) {
        session.user.showMessage(
            {MessageKind::progress, u"No Options Selected"_s,
             u"No options were selected and no textures will be copied to Flight Simulator"_s});
        return std::nullopt;
    }
    const auto wanted = static_cast<int>(copies->size());
    int count = 0;
    if (wanted > 0) {
        showCopying(session, copyingTitle + u". This may take a few moments. Please wait......."_s);
        count = copyEach(session, *copies);
    }
    const QString leftOut = count < wanted ? u", %1 left out"_s.arg(countText(wanted - count)) : QString();
    return DoneLine{countText(count, u"file"_s) + u" installed"_s + leftOut, {}, count < wanted};
}

} // namespace

bool collectFolderFiles(Session& session, const FilePath& sourceFolder, const FilePath& targetFolder,
                        std::vector<FileCopy>& copies) {
    return reportFailures(session.user, morvaneError,
                          [&] { addFolderFiles(session, sourceFolder, u"*.*"_s, targetFolder, copies); });
}

void copyBaseResources(Session& session, const QStringList& tickedTitles) {
    const Job job(session, u"base install"_s);
    if (!job || !claimSimulator(session)) return;
    showCopying(session, copyingTitle);
    std::optional<DoneLine> line;
    reportFailures(session.user, morvaneError, [&] { line = copyTicked(session, tickedTitles); });
    clsConfigs::reload(session);
    session.user.refreshScreen(Screen::frm_Main);
    session.user.hideMessage();
    if (line) session.user.tellDone(*line);
}

} // namespace morvane
