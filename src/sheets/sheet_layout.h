#pragma once

#include "sheets/sheet.h"

#include <QRect>

namespace morvane {

inline constexpr int smallestZoom = 24, usualZoom = 36, largestZoom = 128;

/// How a sheet is laid out, in logical pixels.
struct SheetMeasures {
    int zoom = usualZoom;  ///< side of a texture
    int columnWidth = 124; ///< a texture is never wider
    bool hasNames = false; ///< each texture has its file's name below it
    bool isOpen = false;   ///< all rows show all their textures

    /// Those of a sheet that is saved: all there is, with names.
    static SheetMeasures ofSaved(int zoom);
    int cellWidth() const;
    int cellHeight() const;
};

/// Where the rows and textures of a sheet lie, its head left out; the origin is the top left corner.
class SheetLayout {
public:
    static constexpr int namesWidth = 100, headHeight = 22, gap = 3, insetX = 6, insetY = 8;

    SheetLayout() = default;
    /// `open`: the rows that show all their textures.
    SheetLayout(const Sheet& sheet, const SheetMeasures& measures, const std::vector<bool>& open);

    const SheetMeasures& measures() const { return measures_; }
    QSize size() const { return size_; }
    const std::vector<QRect>& rows() const { return rows_; }
    /// Of a texture; null while its row does not show it.
    const QRect& place(std::size_t texture) const { return places_[texture]; }
    /// "All 55" or "Fewer" of a row; null where the row has no more than it shows.
    QRect openerPlace(std::size_t row) const;

    /// Indexes of the textures that are seen in that part, from the top.
    std::vector<std::size_t> texturesIn(const QRect& part) const;
    std::optional<std::size_t> textureAt(const QPoint& point) const;
    /// The next texture from that one in a direction, one of its numbers -1, 0 and 1; nothing at the edge.
    std::optional<std::size_t> neighbour(std::size_t texture, int right, int down) const;

private:
    void placeRow(const Sheet& sheet, std::size_t row, bool isOpen);

    SheetMeasures measures_;
    QSize size_;
    std::vector<QRect> rows_, places_;
    std::vector<bool> hasMore_;
};

} // namespace morvane
