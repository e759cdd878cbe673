#pragma once

#include "imaging/block_group.h"

namespace morvane::test {

/// The encoder's arithmetic for one block, a pixel and a number at a time: what every instruction set must
/// give to the last bit.
EncodedBlock plainlyEncoded(const BlockGroup& group, std::size_t block);

} // namespace morvane::test
