#include "imaging/plain_lanes.h"

#include "imaging/block_encoder_stages.h"

namespace morvane::test {

void encodeBlocksPlainly(const BlockGroup& group, EncodedGroup& encoded) {
    encodeAll(group, encoded);
}

} // namespace morvane::test
