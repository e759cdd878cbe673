#pragma once

#include <QString>
#include <vector>

namespace morvane {

/// What the ground of a base image shows.
enum class LandKind {
    cityCentre,
    city,
    suburb,
    industry,
    town,
    village,
    grassland,
    savanna,
    pasture,
    swamp,
    desert,
    dunes,
    rural,
    crops,
    stripFields,
    orchards,
    irrigatedCircles,
    shrubs,
    mixedForest,
    coniferForest,
    rocks,
    tundra,
    snowfield,
    glacier,
    golfCourse,
    park,
    polderFields,
    polderRural,
};

enum class BaseImageSeason { spring, summer, fall, winter };

/// One file of the stock of base images.
struct BaseImage {
    /// "GENERIC WORLD", "UT EUROPE", "UTIND" or "DUTCH"; by night "GENERIC WORLD NIGHT" or "DUTCH NIGHT".
    QString resourceFolder;
    /// As on the disk, for example "029h2su6.bmp", by night "029h2lm6.bmp".
    QString fileName;
    /// Class number or add-on word with the variant letter, for example "029h".
    QString landClass;
    LandKind kind = LandKind::crops;
    /// The variant letter, a to j; add-on files that have none count as 'a'.
    char variant = 'a';
    BaseImageSeason season = BaseImageSeason::summer;
    int number = 1;

    bool isNight() const { return resourceFolder.endsWith(u" NIGHT"); }
};

/// The densities that `baseImageList` takes.
constexpr int lowestStockDensity = 1;
constexpr int highestStockDensity = 6;

/// The files of the stock: about a thousand at density 1, about four thousand at density 4; a higher density
/// has more variant letters and numbers and holds every file of the lower ones. No two entries of a folder
/// have the same name. A density outside the range above raises "Invalid procedure call".
std::vector<BaseImage> baseImageList(int density);

/// The stock of the night: an image for each class, letter and number of the above where there is light,
/// whatever the season. They are drawn over the summer.
std::vector<BaseImage> nightImageList(int density);

} // namespace morvane
