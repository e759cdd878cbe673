#include "sheets/sheet_builder.h"

#include "core/numbers.h"

#include <algorithm>

namespace morvane {

std::size_t SheetRow::count() const {
    std::size_t sum = 0;
    for (const auto& cell : cells)
        sum += cell.size();
    return sum;
}

std::size_t SheetRow::largestCell() const {
    std::size_t largest = 0;
    for (const auto& cell : cells)
        largest = std::max(largest, cell.size());
    return largest;
}

QString Sheet::summary() const {
    const QString count = countText(static_cast<std::int64_t>(textures.size()), u"texture"_s);
    return state.isEmpty() ? count : count + u", "_s + state;
}

QString Sheet::placeOf(const SheetTexture& texture) const {
    const SheetRow& row = rows[texture.row];
    if (row.cells.size() == 1) return row.name;
    return row.name + u", "_s + columns[static_cast<qsizetype>(texture.column)];
}

SheetBuilder::SheetBuilder(FileSystem& files, const QStringList& columns) : folders_(files) {
    sheet_.columns = columns;
}

void SheetBuilder::addOfSet(const Place& place, const FilePath& baseFolder, const QString& name,
                            const FilePath& ownFolder) {
    const QString key = ownFolder.text() + u'\\' + name.toCaseFolded();
    const FilePath* base = folders_.find(baseFolder, name);
    if (!base || places_.contains(key)) return;
    places_.insert(key);
    const FilePath* own = folders_.find(ownFolder, name);
    put(place, {name, *base, own ? *own : FilePath()});
}

bool SheetBuilder::add(const Place& place, const FilePath& own, const FilePath& base) {
    if (places_.contains(own.native())) return false;
    places_.insert(own.native());
    put(place, {own.fileName(), base, own});
    return true;
}

void SheetBuilder::put(const Place& place, SheetTexture texture) {
    const auto known = rows_.constFind(place.row);
    texture.row = known == rows_.cend() ? sheet_.rows.size() : *known;
    texture.column = place.column.value_or(0);
    texture.keepsColours = place.keepsColours;
    if (known == rows_.cend()) {
        const auto columns = static_cast<std::size_t>(sheet_.columns.size());
        sheet_.rows.push_back({place.row, {}});
        sheet_.rows.back().cells.resize(place.column ? columns : 1);
        rows_.insert(place.row, texture.row);
    }
    sheet_.rows[texture.row].cells[texture.column].push_back(sheet_.textures.size());
    sheet_.textures.push_back(std::move(texture));
}

std::size_t SheetBuilder::ownFiles() const {
    return static_cast<std::size_t>(std::ranges::count_if(
        sheet_.textures, [](const SheetTexture& texture) { return !texture.own.isEmpty(); }));
}

} // namespace morvane
