#include "simulator/upgrade_dutch.h"

#include "core/failure_report.h"
#include "ground/ground_generation.h"
#include "ground/ground_sets.h"
#include "ground/texture_catalogue.h"
#include "ground/texture_sets.h"
#include "sets/catalogue_file.h"
#include "sets/colour_settings.h"
#include "sets/texture_passes.h"

namespace morvane {

namespace {

constexpr std::size_t upgradeCategory = 15;
const QString dutchFolder = u"Dutch"_s;

/// The category's own folders are those of the generic textures.
std::vector<CatalogueFile> dutchFilesOf(Session& session, const QString& setName) {
    TextureCatalogue catalogue(session);
    catalogue.flags.categories[upgradeCategory - 1] = true;
    std::vector<CatalogueFile> files = catalogue.popTextureList(0, 1, true, setName);
    for (CatalogueFile& file : files) {
        file.tempFolder = session.AppPath / u"TempBitmaps" / dutchFolder;
        file.targetFolder = groundSetFolder(session, setName) / dutchFolder;
    }
    return files;
}

PassDescription descriptionOf(Session& session, const QString& setName, int number, int total) {
    const auto warning = [](const QString& minutes, const QString& wait) {
        return u"\nBe aware that this may take "_s + minutes +
               u" minutes per set dependant on your system specification. \nPlease wait"_s + wait;
    };
    return {u"Creating Ground Texture Sets"_s,
            {},
            Screen::frm_MVTextures,
            groundSetFolder(session, setName),
            {dutchFolder},
            number,
            total,
            {warning(u"1 - 2"_s, u"........"_s), warning(u"2 - 3"_s, u"......."_s)},
            false};
}

/// False when the store refused the set's row: it would refuse those behind it, too.
Reported createDutchForSet(Session& session, const Job& job, clsTextureSet set, int number, int total) {
    bool isRefused = false;
    reportFailures(session.user, morvaneError, [&] {
        const ColourValues colours = parseColourSettings(set.ColorSettings, session.DecimalSep);
        const std::vector<CatalogueFile> files = dutchFilesOf(session, set.TextureSet);
        TexturePasses passes(session, job, descriptionOf(session, set.TextureSet, number, total));
        passes.colourFiles(files, colours);
        passes.convertFiles(files);
        set.IsDutch = true;
        isRefused = !session.rows<clsTextureSets>()->Save(set);
    });
    return !isRefused;
}

} // namespace

void createDutchForAllSets(Session& session) {
    session.user.hideMessage();
    session.user.showMessage(
        {MessageKind::information, u"Create Dutch Textures"_s,
         u"Morvane will now create updated textures for all your existing texture sets.  This will take "
         "approximately 1 - 2 minutes per set"_s});
    const Job job(session, u"upgrade of the Dutch textures"_s);
    if (!job || !clsTextureSets::reload(session)) return;
    std::vector<clsTextureSet> sets;
    for (const auto& set : *session.rows<clsTextureSets>())
        sets.push_back(*set);
    int number = 0;
    const int total = static_cast<int>(sets.size()) - 1; // "Default" is taken to be one of them
    for (const clsTextureSet& set : sets)
        if (set.TextureSet != u"Default" && !createDutchForSet(session, job, set, ++number, total)) break;
    session.rows<clsTextureSets>().reset(); // its records still say what was before
    session.user.hideMessage();
}

} // namespace morvane
