#pragma once

#include <QStringList>
#include <cstdint>

namespace morvane {

/// Rounds to the nearest integer, ties to even. Raises "Overflow" outside the signed 32-bit range.
std::int32_t roundToLong(double value);
/// The same into 16 bits: keys and counts of the program are that wide.
std::int16_t roundToInteger(double value);
/// Narrows a whole number to 16 bits; raises "Overflow" when it does not fit.
std::int16_t toInteger(std::int64_t value);
/// The whole text as a number, "." the separator; raises "Type mismatch" when it is none.
double textToNumber(const QString& text);
/// Shortest text of a 32-bit float, up to seven significant digits, no exponent, "." the separator: "2.1",
/// "0".
QString floatText(float value);
/// A count for the user's eyes: "1,183".
QString countText(std::int64_t count);
/// With what was counted, by its name for one: "1 texture", "1,183 textures".
QString countText(std::int64_t count, const QString& noun);
/// As many of the names as a message can hold: "a, b and 1,181 more".
QString namesText(const QStringList& names);
/// True for one or more digits 0 to 9 and nothing else.
bool isDigits(QStringView text);
/// The text without blanks at both ends. Only blanks count, not tabs or line ends.
QString trimmedBlanks(QStringView text);
QStringView trimmedBlanksView(QStringView text);

} // namespace morvane
