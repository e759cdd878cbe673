#include "sheets/simulator_sheet.h"

#include "ground/ground_sets.h"
#include "ground/texture_catalogue.h"
#include "night/night_sets.h"
#include "sets/simulator_copy.h"
#include "sheets/sheet_builder.h"
#include "sheets/sheet_rows.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_sample.h"
#include "sky/sky_sets.h"

#include <algorithm>

namespace morvane {

namespace {

class SimulatorSheet {
public:
    explicit SimulatorSheet(Session& session)
        : session_(session), builder_(session.files, seasonNames()), originals_(originalsOf(session)) {}

    Sheet made() {
        addGround();
        addNight();
        addSky();
        Sheet& sheet = builder_.sheet();
        sheet.title = u"In the simulator now"_s;
        sheet.baseCaption = u"Your own"_s;
        sheet.ownCaption = u"Now"_s;
        sheet.colourHeading = u"Installed"_s;
        addInstalled<GroundKind>();
        addInstalled<SkyKind>();
        addInstalled<NightKind>();
        return std::move(sheet);
    }

private:
    void add(const SheetBuilder::Place& place, const FilePath& folder, const QString& name) {
        const FilePath* own = builder_.folders().find(folder, name);
        if (own) builder_.add(place, *own, beforeUs(folder, *own));
    }

    /// The youngest kept file, unread: a damaged one shows itself.
    FilePath beforeUs(const FilePath& folder, const FilePath& own) {
        const OriginalRecord& record = originals_.recordOf(folder.child(own.fileName()));
        if (record.kept.empty()) return own;
        return session_.AppPath / u"Backup\\Originals" / record.kept.back().where;
    }

    void addGround() {
        for (const CatalogueFile& file : TextureCatalogue(session_).popTextureList(0, 0, false, {}))
            add({categoryName(file.category), static_cast<std::size_t>(file.season)}, file.targetFolder,
                file.fileName);
    }

    void addNight() {
        const FilePath folder = session_.FSPath / u"Scenery\\WORLD\\Texture";
        // Any name will do: only the base files are of use here.
        for (const auto& [category, file] : nightFilesByCategory(session_, u"Default"_s))
            add({u"Night: "_s + categoryName(category)}, folder, file.fileName);
    }

    void addSky() {
        const FilePath folder = session_.FSPath / u"Texture";
        for (const QString& time : skyTimesOfDay) {
            const FilePath stock = skyStockFolder(session_, time == skyDay ? skyBaseSetsInRun()[0] : time);
            for (const QString& name : session_.files.list(stock, u"*.bmp"_s))
                add({u"Sky: "_s + time}, folder, name);
        }
    }

    template <class Kind>
    void addInstalled() {
        refreshSets<Kind>(session_); // an install of before is in the store alone
        const auto& sets = loadedSets<Kind>(session_);
        const auto installed = std::ranges::find_if(sets, [](const auto& set) { return set->Installed; });
        builder_.sheet().colours.emplace_back(Kind::facts().word,
                                              installed == sets.end() ? u"none"_s : nameOf(**installed));
    }

    Session& session_;
    SheetBuilder builder_;
    Originals originals_;
};

} // namespace

Sheet simulatorSheet(Session& session) {
    return SimulatorSheet(session).made();
}

} // namespace morvane
