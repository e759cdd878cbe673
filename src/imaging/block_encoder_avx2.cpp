#include "imaging/block_lanes_avx2.h"

#include "imaging/block_encoder_stages.h"

namespace morvane {

void encodeBlocksByAvx2(const BlockGroup& group, EncodedGroup& encoded) {
    encodeAll(group, encoded);
}

} // namespace morvane
