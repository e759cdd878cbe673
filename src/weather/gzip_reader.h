#pragma once

#include <QByteArray>
#include <cstdint>

namespace morvane {

/// True for bytes that begin as gzip does.
bool isGzip(const QByteArray& bytes);

/// The contents of gzip bytes; of several members one behind the other those of all. What stands behind the
/// last member is padding. Raises for bytes that are no gzip, damaged or cut off, and for contents of more
/// than `largestSize` bytes.
QByteArray unpackGzip(const QByteArray& packed, std::int64_t largestSize);

} // namespace morvane
