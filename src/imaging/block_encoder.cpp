#include "imaging/block_encoder.h"

namespace morvane {

bool hasAvx2() {
    return __builtin_cpu_supports("avx2") != 0;
}

void encodeBlocks(const BlockGroup& group, EncodedGroup& encoded) {
    static const auto encode = hasAvx2() ? encodeBlocksByAvx2 : encodeBlocksBySse2;
    encode(group, encoded);
}

} // namespace morvane
