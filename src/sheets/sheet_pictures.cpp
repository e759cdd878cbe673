#include "sheets/sheet_pictures.h"

#include "core/attempts.h"
#include "imaging/colouriser.h"

namespace morvane {

SheetPictures::SheetPictures(FileSystem& files, const FilePath& appPath, Sheet sheet)
    : files_(files), stock_(appPath / u"Resources"), sheet_(std::move(sheet)),
      small_(std::make_unique<SmallBasePictures>(files, appPath)) {
    for (const SheetTexture& texture : sheet_.textures)
        if (isOfStock(texture.base.parent())) small_->open(texture.base.parent());
}

/// Those of the sky lie deeper and are as small as they are.
bool SheetPictures::isOfStock(const FilePath& folder) const {
    return folder.parent().text() == stock_.text();
}

SmallPicture SheetPictures::loadBase(const SheetTexture& texture, int side) const {
    if (side == smallSide && isOfStock(texture.base.parent())) return small_->of(texture.base);
    // The groups of a sky are regions of the whole picture.
    return loadSmallPicture(files_, texture.base, sheet_.skyGroups ? 0 : side);
}

Picture SheetPictures::madeFrom(const SheetTexture& texture, const Picture& base) const {
    if (texture.keepsColours) return base;
    if (!sheet_.recolouring && !sheet_.skyGroups) return {};
    cDIBSection source, result;
    source.CreateFromPicture(base);
    if (!result.Create(base.width, base.height)) return {};
    if (sheet_.recolouring)
        sheet_.recolouring->apply(source, result);
    else
        recolourSky(*sheet_.skyGroups, source, result);
    const std::uint8_t* rows = result.DIBSectionBitsPtr();
    return {base.width, base.height, std::vector<std::uint8_t>(rows, rows + base.rows.size())};
}

SheetPair SheetPictures::load(std::size_t index, int side) const {
    const SheetTexture& texture = sheet_.textures[index];
    SheetPair pair;
    SmallPicture base;
    attempt([&] {
        base = loadBase(texture, side);
        pair.base = imageOf(base.picture);
    });
    attempt([&] {
        if (texture.own.isEmpty()) {
            pair.own = imageOf(madeFrom(texture, base.picture));
            pair.whole = base.whole;
        } else if (texture.own.native() == texture.base.native()) {
            pair.own = pair.base;
            pair.whole = base.whole;
        } else {
            const SmallPicture own = loadSmallPicture(files_, texture.own, side);
            pair.own = imageOf(own.picture);
            pair.whole = own.whole;
        }
    });
    return pair;
}

} // namespace morvane
