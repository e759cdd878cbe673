#pragma once

#include "core/store_records.h"

namespace morvane {

/// The set that shows the stock as it is. It comes with the program and is never removed.
inline const QString defaultSetName = u"Default"_s;

/// Letters in the name of a set, its key included.
inline constexpr qsizetype longestSetName = 50;
/// Letters in its description.
inline constexpr qsizetype longestDescription = 255;

/// The name of a new set from its key and what the user typed: "12-Storm". A set's folder bears it too, so
/// whatever a path does not take is out of it: control characters and \ / : * ? " < > | become "_", the whole
/// ends after 50 characters, and dots and blanks at its end go. Single quotes stay. An empty title gives the
/// key and "-".
QString newSetName(std::int16_t key, const QString& title);

/// The rule of the tables whose rows have a folder each.
inline constexpr NameRule folderNames{newSetName, longestSetName};

} // namespace morvane
