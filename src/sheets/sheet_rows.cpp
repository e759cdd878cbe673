#include "sheets/sheet_rows.h"

#include "ground/catalogue_table.h"
#include "ground/sample_textures.h"
#include "night/night_files.h"

#include <algorithm>

namespace morvane {

namespace {

/// The first nine by the words of the samples; the rest as short as a row's head wants them.
constexpr std::size_t sampledCategories = 9;
constexpr const char16_t* shortNames[] = {u"Red Textures",         u"Other Ground", u"UT Europe Parks",
                                          u"UT Europe Industrial", u"Dutch Rural",  u"Others"};

constexpr int dutchCategory = 14;

} // namespace

QString categoryName(int category) {
    const auto index = static_cast<std::size_t>(category - 1);
    if (index < sampledCategories) return sampleTextureTypes()[index].caption;
    const std::size_t last = std::size(shortNames) - 1;
    return QString::fromUtf16(shortNames[std::min(index - sampledCategories, last)]);
}

int categoryOfNight(const QString& fileName) {
    for (int category = 1; category < static_cast<int>(industrialCategory) - 1; ++category) {
        const QString patterns =
            QString::fromUtf16(catalogueTable()[static_cast<std::size_t>(category - 1)].patterns);
        for (const QString& pattern : patterns.split(u' ', Qt::SkipEmptyParts))
            if (matchesMask(fileName, pattern + u"lm*.bmp"_s)) return category;
    }
    return noCategory;
}

std::vector<std::pair<int, CatalogueFile>> nightFilesByCategory(Session& session, const QString& setName) {
    std::vector<std::pair<int, CatalogueFile>> found;
    for (CatalogueFile& file : popNightTextureList(session, setName)) {
        const bool isDutch = file.sourceFolder.fileName().startsWith(u"DUTCH"_s, Qt::CaseInsensitive);
        const int category = isDutch ? dutchCategory : categoryOfNight(file.fileName);
        found.emplace_back(category, std::move(file));
    }
    std::ranges::stable_sort(found, {}, &std::pair<int, CatalogueFile>::first);
    return found;
}

QStringList seasonNames() {
    QStringList names;
    for (const SampleChoice& season : sampleSeasons())
        names << season.caption;
    return names;
}

} // namespace morvane
