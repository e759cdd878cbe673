#pragma once

#include <QByteArray>
#include <cstdint>

namespace morvane {

inline constexpr std::int64_t largestCycle = 64 << 20; ///< bytes, some fifty times a whole one

/// The text of a cycle file as it came from a server or by hand: unpacked where it is gzip. Raises for a web
/// page or JSON in the place of reports and for what cannot be unpacked to at most `largestSize` bytes.
QByteArray cycleContents(const QByteArray& bytes, std::int64_t largestSize = largestCycle);

/// True when nothing stands in it but blanks and line ends.
bool isBlank(const QByteArray& contents);

} // namespace morvane
