#pragma once

#include <cstddef>
#include <cstdint>

namespace morvane {

// The inner part of SHA-1 in the processor's own instructions for it. Every install looks at the bytes of
// each file twice, so their sum is a good part of what an install costs.

struct Sha1State {
    std::uint32_t words[5];
};

/// Whether this machine has them.
bool hasSha1Instructions();

/// Works so many blocks of 64 bytes into the state.
void addSha1Blocks(Sha1State& state, const std::uint8_t* blocks, std::size_t count);

} // namespace morvane
