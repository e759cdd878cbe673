#pragma once

#include "imaging/paper_palette.h"
#include "sheets/sheet_layout.h"
#include "sheets/sheet_pictures.h"

#include <QRgb>
#include <functional>

class QPainter;

namespace morvane {

/// What a sheet is drawn with.
struct SheetColours {
    QRgb text, ground, rowLine, headTop, headFoot, headGap;
    QRgb waiting; ///< a picture that is not there yet
    QRgb picked;
};
SheetColours sheetColours(PaperPalette palette);

/// How the textures are seen.
struct SheetLook {
    bool isCut = false;     ///< base at the left, this set at the right
    bool showsBase = false; ///< the base alone, whatever else
    std::optional<std::size_t> picked = {};
};

/// The pictures of a texture; null as long as they are not there.
using SheetPairs = std::function<const SheetPair*(std::size_t texture)>;

/// One texture into that place: as the view has it, `cut` from the left of it.
void paintPair(QPainter& painter, const QRect& place, const SheetPair& pair, const SheetLook& view, int cut);
/// The names of the columns, over a width of the layout.
void paintSheetHead(QPainter& painter, const Sheet& sheet, const SheetLayout& layout, int width,
                    const SheetColours& colours);
/// The rows that meet that part of the layout. `open`: as of the layout.
void paintSheetRows(QPainter& painter, const Sheet& sheet, const SheetLayout& layout, const QRect& part,
                    const SheetLook& view, const SheetPairs& pairs, const SheetColours& colours);

/// The whole sheet as one picture, with title and names. Loads what it needs over all cores; a null image
/// when it would be too large. Needs a QGuiApplication.
QImage drawnSheet(SheetPictures& pictures, int zoom, const SheetLook& view);
/// Raises what FileSystem::write raises, and "Out of memory" for a null image.
void saveSheet(FileSystem& files, const QImage& image, const FilePath& target);

} // namespace morvane
