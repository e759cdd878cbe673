#pragma once

#include "imaging/block_group.h"

namespace morvane {

/// Chooses two ends and sixteen indexes for each block of the group: always four colours, never a hole;
/// blocks with equal ends have index 0 only. Every instruction set gives the same bytes. Any thread may call
/// it.
void encodeBlocks(const BlockGroup& group, EncodedGroup& encoded);

/// The same by the registers of one instruction set; encodeBlocks takes the widest that the processor has.
void encodeBlocksBySse2(const BlockGroup& group, EncodedGroup& encoded);
void encodeBlocksByAvx2(const BlockGroup& group, EncodedGroup& encoded);
bool hasAvx2();

} // namespace morvane
