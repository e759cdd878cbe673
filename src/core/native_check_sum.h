#pragma once

#include <QByteArray>

namespace morvane {

/// SHA-1 of the bytes, 20 bytes long, by the library that the system has for it: that one uses the
/// processor's own instructions. Every install reads and sums up two files for each that it copies.
QByteArray sha1Of(const QByteArray& bytes);

} // namespace morvane
