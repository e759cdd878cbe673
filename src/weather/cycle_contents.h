#pragma once

#include "core/reading_limits.h"

#include <QByteArray>
#include <cstdint>

namespace morvane {

/// The text of a cycle file as it came from a server or by hand: unpacked where it is gzip. Raises for a web
/// page or JSON in the place of reports, for what cannot be unpacked to at most `largestSize` bytes and for a
/// line beyond all measure.
QByteArray cycleContents(const QByteArray& bytes, std::int64_t largestSize = largestCycle);

/// True when nothing stands in it but blanks and line ends.
bool isBlank(const QByteArray& contents);

} // namespace morvane
