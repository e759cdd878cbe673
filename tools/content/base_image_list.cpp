#include "base_image_list.h"

#include "core/error.h"

#include <array>
#include <set>
#include <string_view>
#include <utility>

namespace morvane {

namespace {

struct LandClass {
    int number;
    LandKind kind;
};

/// Classes of which the ground sets take every variant letter.
constexpr LandClass openClasses[] = {
    {4, LandKind::crops},
    {7, LandKind::rural},
    {8, LandKind::rural},
    {10, LandKind::stripFields},
    {13, LandKind::grassland},
    {14, LandKind::town},
    {15, LandKind::orchards},
    {16, LandKind::swamp},
    {17, LandKind::swamp},
    {18, LandKind::swamp},
    {19, LandKind::town},
    {20, LandKind::town},
    {21, LandKind::village},
    {22, LandKind::village},
    {23, LandKind::town},
    {24, LandKind::town},
    {25, LandKind::village},
    {26, LandKind::village},
    {27, LandKind::town},
    {28, LandKind::suburb},
    {29, LandKind::city},
    {30, LandKind::cityCentre},
    {31, LandKind::city},
    {32, LandKind::cityCentre},
    {33, LandKind::suburb},
    {34, LandKind::industry},
    {35, LandKind::suburb},
    {36, LandKind::cityCentre},
    {37, LandKind::city},
    {38, LandKind::industry},
    {39, LandKind::suburb},
    {40, LandKind::city},
    {41, LandKind::town},
    {42, LandKind::suburb},
    {43, LandKind::city},
    {44, LandKind::suburb},
    {45, LandKind::town},
    {46, LandKind::city},
    {47, LandKind::suburb},
    {48, LandKind::city},
    {49, LandKind::industry},
    {55, LandKind::rocks},
    {56, LandKind::rocks},
    {58, LandKind::coniferForest},
    {59, LandKind::village},
    {60, LandKind::town},
    {61, LandKind::grassland},
    {62, LandKind::savanna},
    {63, LandKind::swamp},
    {64, LandKind::savanna},
    {65, LandKind::pasture},
    {66, LandKind::pasture},
    {68, LandKind::irrigatedCircles},
    {69, LandKind::crops},
    {123, LandKind::tundra},
    {124, LandKind::snowfield},
    {125, LandKind::tundra},
    {126, LandKind::snowfield},
    {127, LandKind::glacier},
    {128, LandKind::grassland},
    {129, LandKind::savanna},
    {131, LandKind::pasture},
    {132, LandKind::desert},
    {133, LandKind::dunes},
    {134, LandKind::savanna},
    {135, LandKind::grassland},
    {136, LandKind::cityCentre},
    {137, LandKind::desert},
    {138, LandKind::dunes},
    {139, LandKind::grassland},
    {140, LandKind::savanna},
    {141, LandKind::pasture},
    {142, LandKind::savanna},
    {143, LandKind::desert},
};

/// Classes whose variant letters the ground sets name one by one: all of a to j must be there.
constexpr LandClass letteredClasses[] = {
    {2, LandKind::desert},    {3, LandKind::dunes},  {5, LandKind::crops},
    {6, LandKind::grassland}, {9, LandKind::shrubs}, {11, LandKind::mixedForest},
    {50, LandKind::desert},   {51, LandKind::dunes}, {52, LandKind::pasture},
};
constexpr std::string_view allLetters = "abcdefghij";

/// Variant letters of the open classes in the order in which higher densities add them. Without c, the red
/// soils, and without h, which only the classes below have.
constexpr std::string_view addedLetters = "abdefij";

/// Classes that have an "h" form which looks like their "b" form.
constexpr int tropicalClasses[] = {4, 7, 8, 29, 31, 33, 35, 37, 39, 41, 43, 45, 47};

/// Pictures that the sample dialog of the colour screen opens by name.
struct Sample {
    LandClass land;
    char variant;
    int number;
};
constexpr Sample samples[] = {
    {{29, LandKind::city}, 'h', 6},     {{11, LandKind::mixedForest}, 'b', 5},
    {{6, LandKind::grassland}, 'a', 7}, {{16, LandKind::swamp}, 'b', 3},
    {{3, LandKind::dunes}, 'b', 3},     {{7, LandKind::rural}, 'b', 2},
    {{4, LandKind::crops}, 'b', 2},     {{9, LandKind::shrubs}, 'b', 2},
    {{56, LandKind::rocks}, 'a', 3},    {{3, LandKind::dunes}, 'c', 3},
};

struct AddOn {
    const char16_t* word;
    LandKind kind;
};
constexpr AddOn europeanAddOns[] = {
    {u"eugol", LandKind::golfCourse}, {u"eupar", LandKind::park}, {u"EuIndu", LandKind::industry}};

constexpr std::array<const char16_t*, 4> seasonEndings = {u"sp", u"su", u"fa", u"wi"};

/// Collects the stock; a picture asked for twice stands in it once.
class StockBuilder {
public:
    explicit StockBuilder(int density)
        : letters_(addedLetters.substr(0, static_cast<std::size_t>(density) + 1)),
          numbers_((density + 1) / 2) {}

    void addGenericWorld() {
        for (const LandClass& land : openClasses)
            addLetters(u"GENERIC WORLD"_s, land, letters_);
        for (const LandClass& land : letteredClasses)
            addLetters(u"GENERIC WORLD"_s, land, allLetters);
        for (const LandClass& land : openClasses)
            for (const int tropical : tropicalClasses)
                if (land.number == tropical) addLetters(u"GENERIC WORLD"_s, land, "h");
        for (const Sample& sample : samples)
            addSeasons(u"GENERIC WORLD"_s, sample.land, sample.variant, sample.number);
    }

    void addOthers() {
        for (const AddOn& addOn : europeanAddOns)
            for (int number = 1; number <= numbers_; ++number)
                addEuropean(addOn, number);
        for (const int number : {34, 38})
            addLetters(u"UTIND"_s, {number, LandKind::industry}, letters_);
        addSeasons(u"UTIND"_s, {34, LandKind::industry}, 'b', 4);
        for (const LandClass& land :
             {LandClass{5, LandKind::polderFields}, LandClass{8, LandKind::polderRural}}) {
            addLetters(u"DUTCH"_s, land, "a");
            addSeasons(u"DUTCH"_s, land, 'a', 2);
        }
    }

    std::vector<BaseImage> take() { return std::move(images_); }

private:
    void addLetters(const QString& folder, LandClass land, std::string_view letters) {
        for (const char letter : letters)
            for (int number = 1; number <= numbers_; ++number)
                addSeasons(folder, land, letter, number);
    }

    void addSeasons(const QString& folder, LandClass land, char variant, int number) {
        const QString landClass = u"%1%2"_s.arg(land.number, 3, 10, QChar(u'0')).arg(QLatin1Char(variant));
        addAllSeasons({folder, {}, landClass, land.kind, variant, {}, number}, landClass + u'2');
    }

    void addEuropean(const AddOn& addOn, int number) {
        const QString word = QString::fromUtf16(addOn.word);
        addAllSeasons({u"UT EUROPE"_s, {}, word, addOn.kind, 'a', {}, number}, word);
    }

    void addAllSeasons(BaseImage image, const QString& stem) {
        for (std::size_t season = 0; season < seasonEndings.size(); ++season) {
            image.season = static_cast<BaseImageSeason>(season);
            image.fileName =
                u"%1%2%3.bmp"_s.arg(stem, QString::fromUtf16(seasonEndings[season])).arg(image.number);
            if (names_.insert(image.resourceFolder + u'\\' + image.fileName.toLower()).second)
                images_.push_back(image);
        }
    }

    std::string_view letters_;
    int numbers_;
    std::set<QString> names_;
    std::vector<BaseImage> images_;
};

/// Land on which people live. The add-ons' have no lights.
bool isLit(const BaseImage& image) {
    const bool hasNight = image.resourceFolder == u"GENERIC WORLD" || image.resourceFolder == u"DUTCH";
    switch (image.kind) {
    case LandKind::cityCentre:
    case LandKind::city:
    case LandKind::suburb:
    case LandKind::industry:
    case LandKind::town:
    case LandKind::village:
    case LandKind::rural:
    case LandKind::polderFields:
    case LandKind::polderRural:
        return hasNight;
    default:
        return false;
    }
}

} // namespace

std::vector<BaseImage> baseImageList(int density) {
    if (density < lowestStockDensity || density > highestStockDensity) throw Error(ErrorCode::invalidCall);
    StockBuilder builder(density);
    builder.addGenericWorld();
    builder.addOthers();
    return builder.take();
}

std::vector<BaseImage> nightImageList(int density) {
    std::vector<BaseImage> nights;
    for (BaseImage image : baseImageList(density)) {
        if (image.season != BaseImageSeason::summer || !isLit(image)) continue;
        image.resourceFolder += u" NIGHT"_s;
        image.fileName = image.landClass + u"2lm"_s + QString::number(image.number) + u".bmp"_s;
        nights.push_back(image);
    }
    return nights;
}

} // namespace morvane
