#include "sheets/sheet_layout.h"

#include <algorithm>

namespace morvane {

namespace {

constexpr int closedLines = 2, lowestRow = 76, captionHeight = 13, captionWidth = 82, savedPerLine = 6;

/// How many fit side by side; the last needs no gap.
int perLine(int width, int cellWidth) {
    return std::max(1, (width - SheetLayout::insetX + SheetLayout::gap) / (cellWidth + SheetLayout::gap));
}

} // namespace

SheetMeasures SheetMeasures::ofSaved(int zoom) {
    SheetMeasures measures{.zoom = zoom, .hasNames = true, .isOpen = true};
    const int cell = std::max(zoom, captionWidth);
    measures.columnWidth = SheetLayout::insetX + savedPerLine * (cell + SheetLayout::gap);
    return measures;
}

int SheetMeasures::cellWidth() const {
    return hasNames ? std::max(zoom, captionWidth) : std::min(zoom, columnWidth - SheetLayout::insetX - 2);
}

int SheetMeasures::cellHeight() const {
    return hasNames ? zoom + captionHeight : cellWidth();
}

SheetLayout::SheetLayout(const Sheet& sheet, const SheetMeasures& measures, const std::vector<bool>& open)
    : measures_(measures), places_(sheet.textures.size()), hasMore_(sheet.rows.size()) {
    const auto columns = static_cast<int>(sheet.columns.size());
    size_.setWidth(namesWidth + std::max(columns * measures.columnWidth, columns == 1 ? 496 : 0));
    for (std::size_t row = 0; row < sheet.rows.size(); ++row)
        placeRow(sheet, row, measures.isOpen || (row < open.size() && open[row]));
    size_.setHeight(rows_.empty() ? 0 : rows_.back().bottom() + 1);
}

void SheetLayout::placeRow(const Sheet& sheet, std::size_t row, bool isOpen) {
    const auto& cells = sheet.rows[row].cells;
    const int width = cells.size() == 1 ? size_.width() - namesWidth : measures_.columnWidth;
    const int across = perLine(width, measures_.cellWidth());
    const auto largest = static_cast<int>(sheet.rows[row].largestCell());
    const int all = std::max(1, (largest + across - 1) / across);
    const int lines = isOpen ? all : std::min(all, closedLines);
    hasMore_[row] = all > closedLines && !measures_.isOpen;
    const int pitch = measures_.cellHeight() + gap;
    const int top = rows_.empty() ? 0 : rows_.back().bottom() + 1;
    rows_.emplace_back(0, top, size_.width(), std::max(lowestRow, 2 * insetY + lines * pitch - gap));
    const QSize side(std::min(measures_.zoom, measures_.cellWidth()),
                     std::min(measures_.zoom, measures_.cellWidth()));
    for (std::size_t column = 0; column < cells.size(); ++column) {
        const int left = namesWidth + static_cast<int>(column) * width + insetX;
        const auto shown = std::min(cells[column].size(), static_cast<std::size_t>(lines * across));
        for (std::size_t i = 0; i < shown; ++i) {
            const int line = static_cast<int>(i) / across, number = static_cast<int>(i) % across;
            places_[cells[column][i]] = {
                QPoint(left + number * (measures_.cellWidth() + gap), top + insetY + line * pitch), side};
        }
    }
}

QRect SheetLayout::openerPlace(std::size_t row) const {
    if (!hasMore_[row]) return {};
    // Above the fold of an open row, so that it stays where it was.
    const int bottom = std::min(
        rows_[row].bottom(),
        rows_[row].top() +
            std::max(lowestRow, 2 * insetY + closedLines * (measures_.cellHeight() + gap) - gap) - 1);
    return {6, bottom - 24, namesWidth - 10, 20};
}

std::vector<std::size_t> SheetLayout::texturesIn(const QRect& part) const {
    std::vector<std::size_t> seen;
    for (std::size_t i = 0; i < places_.size(); ++i)
        if (!places_[i].isNull() && places_[i].intersects(part)) seen.push_back(i);
    std::ranges::stable_sort(seen, {}, [this](std::size_t i) { return places_[i].top(); });
    return seen;
}

std::optional<std::size_t> SheetLayout::textureAt(const QPoint& point) const {
    const auto found =
        std::ranges::find_if(places_, [&](const QRect& place) { return place.contains(point); });
    if (found == places_.end()) return std::nullopt;
    return static_cast<std::size_t>(found - places_.begin());
}

std::optional<std::size_t> SheetLayout::neighbour(std::size_t texture, int right, int down) const {
    const QRect& from = places_[texture];
    std::optional<std::size_t> nearest;
    int least = 0;
    for (std::size_t i = 0; i < places_.size(); ++i) {
        const QPoint way = places_[i].center() - from.center();
        const int ahead = way.x() * right + way.y() * down;
        const int aside = std::abs(way.x() * down) + std::abs(way.y() * right);
        if (places_[i].isNull() || ahead <= 0) continue;
        // Sideways only within the line, downwards into the column that is nearest.
        if (right != 0 && aside > from.height() / 2) continue;
        const int distance = ahead * (down != 0 ? 1000 : 1) + aside;
        if (nearest && distance >= least) continue;
        nearest = i;
        least = distance;
    }
    return nearest;
}

} // namespace morvane
