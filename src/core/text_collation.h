#pragma once

#include <string_view>

struct sqlite3;

namespace morvane {

/// Order of two UTF-8 texts without regard to case, for all letters: negative, 0 or positive.
/// Letters beyond ASCII stand behind ASCII in the order of their code points. That is no dictionary's order,
/// but it is the same on every machine, as an index kept on disk needs.
int compareWithoutCase(std::string_view left, std::string_view right);

/// True when the whole text fits the pattern of a LIKE, without regard to case: "%" is any run of characters,
/// "_" is one character.
bool isLike(std::string_view text, std::string_view pattern);

/// Name of the collation in column definitions.
inline constexpr char textCollation[] = "MORVANE_TEXT";

/// Gives a connection the collation and its LIKE; both must be there before a statement touches a text
/// column.
void installTextRules(sqlite3* connection);

} // namespace morvane
