#include "ground/texture_catalogue.h"

#include "sets/resource_folders.h"

#include <algorithm>

namespace morvane {

namespace {

const QString winterEnding = u"wi*.bmp"_s;
constexpr int winter = 3;

QStringList split(const char16_t* patterns) {
    return QStringView(patterns).toString().split(u' ', Qt::SkipEmptyParts);
}

} // namespace

std::vector<CatalogueFile> TextureCatalogue::popTextureList(int seasonCount, int categoryCount, bool forSet,
                                                            const QString& setName) {
    files_.clear();
    listings_.clear();
    if (categoryCount < 1) std::fill(flags.categories.begin(), flags.categories.end() - 1, true);
    if (seasonCount < 1) flags.popSpring = flags.popSummer = flags.popFall = flags.popWinter = true;
    for (std::size_t number = 1; number <= flags.categories.size(); ++number)
        if (flags.categories[number - 1]) walkCategory(number, forSet, setName);
    return std::move(files_);
}

TextureCatalogue::Folders TextureCatalogue::foldersOf(const CatalogueCategory& category, bool forSet,
                                                      const QString& setName) {
    for (const auto& row : resourceFolders(session_)) {
        if (row->ResourceName != QStringView(category.resourceName)) continue;
        const FilePath set = session_.AppPath / u"Texture Sets";
        return {session_.AppPath / u"Resources" / row->ResourceMVFolder,
                forSet ? set.child(setName) / row->ResourceTSFolder : session_.FSPath / row->ResourceFSFolder,
                session_.AppPath / category.tempPath};
    }
    return {}; // folders without a row stay empty and list nothing
}

TextureCatalogue::Folders TextureCatalogue::ruralFoldersOf(const Folders& industrial, bool forSet,
                                                           const QString& setName) {
    const FilePath set = session_.AppPath / u"Texture Sets";
    return {session_.AppPath / u"Resources\\GENERIC WORLD",
            forSet ? set.child(setName) / u"UTEurLC" : session_.FSPath / u"Scenery\\UTEurLC\\Texture",
            industrial.temp};
}

void TextureCatalogue::walkCategory(std::size_t number, bool forSet, const QString& setName) {
    const CatalogueCategory& category = catalogueTable()[number - 1];
    category_ = static_cast<int>(number);
    const Folders folders = foldersOf(category, forSet, setName);
    if (number == industrialCategory)
        walkIndustrialRuns(folders, forSet, setName);
    else
        walkSeasons(folders, {split(category.patterns), false, category.extraWinter});
}

/// The add-on's industrial areas: two classes of its own, then generic classes under the add-on's folder,
/// some in summer only, some with their first file only.
void TextureCatalogue::walkIndustrialRuns(const Folders& industrial, bool forSet, const QString& setName) {
    walkSeasons(industrial, {split(industrialPatterns)});
    // Their intermediate bitmaps lie in the category's own folder even when the row is missing.
    Folders rural = ruralFoldersOf(industrial, forSet, setName);
    rural.temp = session_.AppPath / catalogueTable()[industrialCategory - 1].tempPath;
    walkSeasons(rural, {split(u"003*2")});
    walkSummerOnly(rural, {split(u"056*2")});
    walkSeasons(rural, {split(u"139b2 140b2 141b2"), true});
    walkSummerOnly(rural, {split(u"142b2 143b2"), true});
}

void TextureCatalogue::walkSeasons(const Folders& folders, const Walk& walk) {
    const std::pair<bool, QString> seasons[] = {{flags.popSpring, u"sp"_s},
                                                {flags.popSummer, u"su"_s},
                                                {flags.popFall, u"fa"_s},
                                                {flags.popWinter, u"wi"_s}};
    const QString ending = walk.firstFileOnly ? u"1.bmp"_s : u"*.bmp"_s;
    season_ = 0;
    for (const auto& [wanted, season] : seasons) {
        for (const QString& pattern : wanted ? walk.patterns : QStringList())
            listMatches(folders, pattern + season + ending);
        ++season_;
    }
    // Winter once more, without a look at its flag: the files then stand twice and are made twice. Wanted.
    if (!walk.extraWinter) return;
    season_ = winter;
    for (const QString& pattern : walk.patterns)
        listMatches(folders, pattern + winterEnding);
}

void TextureCatalogue::walkSummerOnly(const Folders& folders, const Walk& walk) {
    const CatalogueFlags saved = flags;
    flags.popSpring = flags.popFall = flags.popWinter = false;
    walkSeasons(folders, walk);
    flags = saved;
}

void TextureCatalogue::listMatches(const Folders& folders, const QString& filePattern) {
    if (folders.source.isEmpty()) return;
    const QString folder = folders.source.text();
    if (!listings_.contains(folder)) listings_[folder] = session_.files.list(folders.source, u"*.*"_s);
    for (const QString& name : listings_[folder])
        if (matchesMask(name, filePattern))
            files_.push_back({name, folders.source, folders.target, folders.temp, category_, season_});
}

} // namespace morvane
