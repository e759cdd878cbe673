#include "base_image_drawing.h"

#include "core/literals.h"
#include "ground_art_night.h"
#include "ground_art_painters.h"

namespace morvane {

namespace {

/// Fixed for good: another value redraws the whole stock.
constexpr std::uint64_t stockSeed = 0x4d6f7276616e6521u;

/// The seed leaves out the season, so that streets and fields stay where they are all year and by night, and
/// takes an "h" file for the "b" file that it resembles.
std::uint64_t seedOf(const BaseImage& image) {
    const QString folder = QString(image.resourceFolder).remove(u" NIGHT"_s);
    QString place = folder + u'\\' + image.landClass.toLower();
    if (image.variant == 'h' && place.endsWith(u'h')) place.back() = u'b';
    const QByteArray text = (place + u'\\' + QString::number(image.number)).toUtf8();
    return art::scrambled(stockSeed ^ art::hashOf({text.constData(), static_cast<std::size_t>(text.size())}));
}

bool isWarmGround(LandKind kind) {
    return kind == LandKind::desert || kind == LandKind::dunes || kind == LandKind::savanna;
}

using Painter = void (*)(art::Scene&);

Painter painterOf(LandKind kind) {
    switch (kind) {
    case LandKind::cityCentre:
    case LandKind::city:
    case LandKind::suburb:
    case LandKind::industry:
    case LandKind::town:
    case LandKind::village:
        return art::paintTown;
    case LandKind::rural:
    case LandKind::crops:
    case LandKind::stripFields:
        return art::paintFarmland;
    case LandKind::orchards:
        return art::paintOrchards;
    case LandKind::irrigatedCircles:
        return art::paintIrrigatedCircles;
    case LandKind::polderFields:
    case LandKind::polderRural:
        return art::paintPolder;
    case LandKind::grassland:
    case LandKind::savanna:
    case LandKind::pasture:
    case LandKind::shrubs:
        return art::paintOpenLand;
    case LandKind::mixedForest:
    case LandKind::coniferForest:
        return art::paintForest;
    case LandKind::swamp:
        return art::paintSwamp;
    case LandKind::desert:
    case LandKind::dunes:
        return art::paintDesert;
    case LandKind::rocks:
    case LandKind::tundra:
    case LandKind::snowfield:
    case LandKind::glacier:
        return art::paintBarren;
    case LandKind::golfCourse:
        return art::paintGolfCourse;
    case LandKind::park:
        return art::paintPark;
    }
    return art::paintFarmland;
}

/// Under a low winter sun shadows are longer, and the snow between them keeps them light.
art::Sun sunOf(const BaseImage& image) {
    if (image.season == BaseImageSeason::winter) return {1.0f, 0.45f, 0.24f};
    return {1.25f, 0.46f, 0.28f};
}

} // namespace

Picture drawBaseImage(const BaseImage& image) {
    const std::uint64_t seed = seedOf(image);
    art::Scene scene{image,
                     seed,
                     art::makePalette(image.season, image.variant, isWarmGround(image.kind)),
                     art::RandomStream(seed),
                     {}};
    painterOf(image.kind)(scene);
    return image.isNight() ? art::byNight(scene) : scene.canvas.lit(sunOf(image));
}

} // namespace morvane
