#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace morvane {

/// A file's contents, or a part of them. No reader of pictures touches a byte except through the calls below
/// or inside a part that they gave it.
using Bytes = std::span<const std::uint8_t>;

/// Raises "Invalid picture: " with the reason.
[[noreturn]] void refusePicture(const char16_t* reason);

/// `count` bytes from offset `at`; refuses the picture when the file ends before.
Bytes partOf(Bytes file, std::size_t at, std::size_t count);
/// The little-endian number of 16 bits at that offset; refuses alike.
std::uint16_t wordAt(Bytes file, std::size_t at);
/// The little-endian number of 32 bits at that offset; refuses alike.
std::uint32_t longAt(Bytes file, std::size_t at);

} // namespace morvane
