#include "night/night_generation.h"

#include "core/flag_text.h"
#include "night/night_files.h"
#include "night/night_selection.h"
#include "night/night_sets.h"
#include "night/night_texture_sets.h"
#include "sets/catalogue_file.h"

namespace morvane {

namespace {

const GenerationKind nightKind{
    u"Creating Night Texture Sets"_s,
    u"Be aware that this may take 3 - 5 minutes per set dependant on your "_s, nightSubfolders,
    Screen::frm_NightTextures, Screen::frm_NightTextures,
    [](Session& session) -> bool& { return session.state<NightSelection>().RefreshNightList; },
    // Unlike on the ground the installed set may go when it stands alone, and not among several. Wanted.
    false};

} // namespace

NightGeneration::NightGeneration(Session& session) : SetGeneration(session, nightKind) {}

SetsInHand NightGeneration::inHand() {
    return {session_.state<NightSelection>().SelectedNightSet, session_.state<NightSelection>().colours,
            session_.state<NightSelection>().selectedRows};
}

bool NightGeneration::refresh() {
    return refreshNightSets(session_);
}

std::optional<StoredSet> NightGeneration::find(const QString& name) {
    const auto record = findNightSet(session_, name);
    if (!record) return std::nullopt;
    return StoredSet{record->TextureSet, record->ColorSettings, record->Installed};
}

bool NightGeneration::storeActivation(const QString& name, bool activated) {
    clsNightTextureSet changed = *findNightSet(session_, name);
    changed.Actvated = flagText(activated);
    changed.IsNew = false;
    return session_.rows<clsNightTextureSets>()->UpdateNightTextureSet(changed);
}

bool NightGeneration::removeRecord(const QString& name) {
    const std::int16_t key = findNightSet(session_, name)->NtsID;
    return session_.rows<clsNightTextureSets>()->RemoveItem(QString::number(key), key);
}

FilePath NightGeneration::folderOf(const QString& name) {
    return nightSetFolder(session_, name);
}

std::vector<CatalogueFile> NightGeneration::baseFilesOf(const QString& name) {
    return popNightTextureList(session_, name);
}

} // namespace morvane
