#include "night/night_generation.h"

#include "night/night_files.h"
#include "night/night_sets.h"

namespace morvane {

namespace {

const GenerationKind nightKind{u"Creating Night Texture Sets"_s,
                               u"Be aware that this may take 3 - 5 minutes per set dependant on your "_s,
                               Screen::frm_NightTextures};

} // namespace

NightGeneration::NightGeneration(Session& session)
    : SetGeneration(session, setKind<NightKind>(), nightKind, session.state<NightSelection>().colours) {}

std::vector<CatalogueFile> NightGeneration::baseFilesOf(const QString& name) {
    return popNightTextureList(session_, name);
}

} // namespace morvane
