#pragma once

#include <QByteArray>
#include <array>

namespace morvane {

using Sha1 = std::array<char, 20>;

/// By the library that the system has for it: that one uses the processor's own instructions. Every install
/// reads and sums up two files for each that it copies.
Sha1 sha1Of(const QByteArray& bytes);

} // namespace morvane
