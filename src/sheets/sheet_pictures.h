#pragma once

#include "sheets/sheet.h"
#include "sheets/small_base_pictures.h"

#include <QImage>

namespace morvane {

/// A texture as it was and as it is in the set; a null image where there is none or it cannot be read.
struct SheetPair {
    QImage base, own;
    QSize whole; ///< sides of the set's own picture
};

/// The pictures of a sheet's textures.
class SheetPictures {
public:
    /// Reads what is kept of the small pictures. The sheet is held.
    SheetPictures(FileSystem& files, const FilePath& appPath, Sheet sheet);

    const Sheet& sheet() const { return sheet_; }
    /// No smaller than `side` where the files have them so, 0 for their whole size. Any thread may ask; what
    /// cannot be read is no failure.
    SheetPair load(std::size_t index, int side) const;
    /// Keeps the small pictures that were made; call it when all were loaded.
    void keepSmall() { small_->keep(); }
    /// What is kept and what a sheet asks for: more than it needs at the usual size, also on a dense display.
    static constexpr int smallSide = SmallBasePictures::side;

private:
    bool isOfStock(const FilePath& folder) const;
    SmallPicture loadBase(const SheetTexture& texture, int side) const;
    Picture madeFrom(const SheetTexture& texture, const Picture& base) const;

    FileSystem& files_;
    FilePath stock_;
    Sheet sheet_;
    std::unique_ptr<SmallBasePictures> small_;
};

} // namespace morvane
