#pragma once

#include "imaging/block_group.h"

namespace morvane::test {

/// A block as a well-kept library encodes it, in its high quality: the yardstick of ours.
EncodedBlock encodedByLibrary(const BlockGroup& group, std::size_t block);

} // namespace morvane::test
