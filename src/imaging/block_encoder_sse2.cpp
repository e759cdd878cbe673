#include "imaging/block_lanes_sse2.h"

#include "imaging/block_encoder_stages.h"

namespace morvane {

void encodeBlocksBySse2(const BlockGroup& group, EncodedGroup& encoded) {
    encodeAll(group, encoded);
}

} // namespace morvane
