#include "ground/sample_textures.h"

#include <algorithm>
#include <array>

namespace morvane {

namespace {

struct SampleFiles {
    const char16_t* key;
    const char16_t* folder;
    std::array<const char16_t*, 4> files; ///< in the order of the seasons
};

constexpr const char16_t* generic = u"GENERIC WORLD";
constexpr const char16_t* dutch = u"DUTCH";

constexpr std::array<const char16_t*, 4> allYear(const char16_t* file) {
    return {file, file, file, file};
}

// Not every class of textures has a file of each season: the desert shows its winter in spring and its summer
// in fall.
constexpr SampleFiles worldSamples[] = {
    {u"default", generic, allYear(u"029h2su6.bmp")},
    {u"city", generic, {u"029h2sp6.bmp", u"029h2su6.bmp", u"029h2fa6.bmp", u"029h2wi6.bmp"}},
    {u"forest", generic, {u"011b2sp5.bmp", u"011b2su5.bmp", u"011b2fa5.bmp", u"011b2wi5.bmp"}},
    {u"grassland", generic, {u"006A2sp7.bmp", u"006A2su7.bmp", u"006A2fa7.bmp", u"006A2wi7.bmp"}},
    {u"swamp", generic, {u"016b2sp3.bmp", u"016b2su3.bmp", u"016b2fa3.bmp", u"016b2wi3.bmp"}},
    {u"desert", generic, {u"003b2wi3.bmp", u"003b2su3.bmp", u"003b2su3.bmp", u"003b2wi3.bmp"}},
    {u"rural", generic, {u"007b2sp2.bmp", u"007b2su2.bmp", u"007b2fa2.bmp", u"007b2wi2.bmp"}},
    {u"crops", generic, {u"004b2sp2.bmp", u"004b2su2.bmp", u"004b2fa2.bmp", u"004b2wi2.bmp"}},
    {u"shrubs", generic, {u"009b2sp2.bmp", u"009b2su2.bmp", u"009b2fa2.bmp", u"009b2wi2.bmp"}},
    {u"rocks", generic, allYear(u"056a2su3.bmp")},
    {u"red", generic, allYear(u"003c2su3.bmp")},
    {u"utgolf", u"UT EUROPE", {u"eugolsp1.bmp", u"eugolsu1.bmp", u"eugolfa1.bmp", u"eugolwi1.bmp"}},
    {u"utind", u"UTIND", allYear(u"034b2su4.bmp")},
};

constexpr SampleFiles dutchSamples[] = {
    {u"rural", dutch, {u"008a2sp2.bmp", u"008a2su2.bmp", u"008a2fa2.bmp", u"008a2wi2.bmp"}},
    {u"crops", dutch, {u"005a2sp2.bmp", u"005a2su2.bmp", u"005a2fa2.bmp", u"005a2wi2.bmp"}},
};

template <class Samples>
const SampleFiles* findSample(const Samples& samples, const QString& key) {
    const auto found = std::find_if(std::begin(samples), std::end(samples),
                                    [&key](const SampleFiles& row) { return key == QStringView(row.key); });
    return found == std::end(samples) ? nullptr : &*found;
}

} // namespace

const std::vector<SampleChoice>& sampleTextureTypes() {
    static const std::vector<SampleChoice> types = {
        {u"city"_s, u"Cities"_s},
        {u"forest"_s, u"Forests"_s},
        {u"grassland"_s, u"Grasslands"_s},
        {u"swamp"_s, u"Swamps"_s},
        {u"desert"_s, u"Deserts"_s},
        {u"rural"_s, u"Rural Areas"_s},
        {u"crops"_s, u"Crops"_s},
        {u"shrubs"_s, u"Shrubs and Trees"_s},
        {u"rocks"_s, u"Rocks"_s},
        {u"red"_s, u"Red Textures (Central Australia/SW USA)"_s},
        {u"utgolf"_s, u"UT Europe Parks & Golf Courses"_s},
        {u"utind"_s, u"UT Europe Industrial Areas"_s},
    };
    return types;
}

const std::vector<SampleChoice>& sampleSeasons() {
    static const std::vector<SampleChoice> seasons = {
        {u"spring"_s, u"Spring"_s},
        {u"summer"_s, u"Summer"_s},
        {u"fall"_s, u"Fall"_s},
        {u"winter"_s, u"Winter"_s},
    };
    return seasons;
}

FilePath sampleTexture(const FilePath& appPath, const QString& key, const QString& season, bool isDutch) {
    const SampleFiles* sample = isDutch ? findSample(dutchSamples, key) : nullptr;
    if (!sample) sample = findSample(worldSamples, key);
    const std::size_t index = indexOfSample(sampleSeasons(), season);
    if (!sample || index == sampleSeasons().size()) return {};
    return appPath / u"Resources" / sample->folder / sample->files[index];
}

} // namespace morvane
