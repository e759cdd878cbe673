#include "sheets/set_sheets.h"

#include "core/attempts.h"
#include "core/numbers.h"
#include "ground/ground_sets.h"
#include "ground/texture_catalogue.h"
#include "imaging/slider_steps.h"
#include "night/night_files.h"
#include "night/night_sets.h"
#include "sets/colour_settings.h"
#include "sets/set_names.h"
#include "sheets/sheet_builder.h"
#include "sheets/sheet_rows.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_groups.h"
#include "sky/sky_sample.h"
#include "sky/sky_selection.h"
#include "sky/sky_sets.h"

#include <algorithm>

namespace morvane {

namespace {

/// As the six sliders are called and stand in a colour text.
constexpr const char16_t* colourNames[] = {u"Saturation", u"Red",        u"Green",
                                           u"Blue",       u"Brightness", u"Contrast"};
const QStringList oneColumn{u"Textures"_s};

QString sliderText(double value) {
    return sliderLabel(static_cast<int>(roundToLong(value)));
}

/// What the colour page would show of a set's effective values.
void putColours(Sheet& sheet, const ColourValues& colours) {
    const auto sliders = sliderPositions(colours);
    for (std::size_t i = 0; i < sliders.size(); ++i)
        sheet.colours.emplace_back(QString::fromUtf16(colourNames[i]), sliderText(sliders[i]));
}

template <class Record>
QString stateOf(const Record& set, std::size_t ownFiles) {
    if (set.Installed) return u"in the simulator now"_s;
    if (activationOf(set) != flagText(true)) return u"not activated yet"_s;
    if (ownFiles > 0) return u"activated"_s;
    return nameOf(set) == defaultSetName ? u"the base as it is"_s : u"its files are missing"_s;
}

template <class Record>
void putSet(const Session& session, SheetBuilder& builder, const Record& set) {
    Sheet& sheet = builder.sheet();
    sheet.title = nameOf(set);
    sheet.state = stateOf(set, builder.ownFiles());
    sheet.baseCaption = u"Base"_s;
    sheet.ownCaption = u"This set"_s;
    sheet.colourHeading = u"Colours of this set"_s;
    if constexpr (requires { set.CloudCover; }) sheet.cover = trimmedBlanks(set.CloudCover);
    if constexpr (requires { set.ColorSettings; })
        attempt([&] {
            const ColourValues colours = parseColourSettings(set.ColorSettings, session.DecimalSep);
            sheet.recolouring = std::make_shared<Recolouring>(colours);
            putColours(sheet, colours);
        });
}

/// The colours of one set, without a trace in what the session has in hand.
std::optional<SkyGroups> groupsOf(Session& session, const clsSkyTextureSet& set) {
    auto& tables = session.state<SkyColourTables>();
    const SkyColourTables inHand = tables;
    std::optional<SkyGroups> groups;
    attempt([&] {
        if (loadSkyTextureGroups(session, set.StsID, skyDay)) groups = tables.skyTextureGroups;
    });
    tables = inHand;
    return groups;
}

void putSkyColours(Sheet& sheet, const SkyGroups& groups) {
    constexpr std::size_t mainSky = 9;
    sheet.colourHeading = u"Colours of its main sky"_s;
    for (std::size_t i = 0; i < skyColourCount; ++i)
        sheet.colours.emplace_back(QString::fromUtf16(colourNames[i]),
                                   sliderText(groups[mainSky].*skyFields()[i].value));
}

} // namespace

std::optional<Sheet> groundSheet(Session& session, const QString& name) {
    const auto set = findGroundSet(session, name);
    if (!set) return std::nullopt;
    SheetBuilder builder(session.files, seasonNames());
    for (const CatalogueFile& file : TextureCatalogue(session).popTextureList(0, 0, true, set->TextureSet))
        builder.addOfSet({categoryName(file.category), static_cast<std::size_t>(file.season)},
                         file.sourceFolder, file.fileName, file.targetFolder);
    putSet(session, builder, *set);
    return std::move(builder.sheet());
}

std::optional<Sheet> nightSheet(Session& session, const QString& name) {
    const auto set = findNightSet(session, name);
    if (!set) return std::nullopt;
    SheetBuilder builder(session.files, oneColumn);
    for (const auto& [category, file] : nightFilesByCategory(session, set->TextureSet))
        builder.addOfSet({categoryName(category)}, file.sourceFolder, file.fileName, file.targetFolder);
    putSet(session, builder, *set);
    return std::move(builder.sheet());
}

std::optional<Sheet> skySheet(Session& session, const QString& name) {
    const auto set = findSkySet(session, name);
    if (!set) return std::nullopt;
    SheetBuilder builder(session.files, oneColumn);
    const FilePath own = skySetFolder(session, set->SkyTextureSet);
    for (const QString& time : skyTimesOfDay) {
        const FilePath stock = skyStockFolder(session, time == skyDay ? set->TextureSetGroup : time);
        for (const QString& file : session.files.list(stock, u"*.bmp"_s))
            builder.addOfSet({time, {}, time != skyDay}, stock, file, own);
    }
    putSet(session, builder, *set);
    builder.sheet().skyGroups = groupsOf(session, *set);
    if (builder.sheet().skyGroups) putSkyColours(builder.sheet(), *builder.sheet().skyGroups);
    return std::move(builder.sheet());
}

} // namespace morvane
