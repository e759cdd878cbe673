#include "imaging/block_stream.h"

#include "imaging/block_encoder.h"

#include <algorithm>
#include <cstring>

namespace morvane {

/// Rows lie bottom-up in the file as in the picture, so blocks follow in the order of memory, without a flip.
void BlockStream::add(const TextureLevel& level) {
    for (int y = 0; y < level.height; y += blockSide)
        if (level.width < blockSide || level.height < blockSide)
            addNarrow(level, y);
        else
            addRowOfBlocks(level, y);
}

void BlockStream::addRowOfBlocks(const TextureLevel& level, int firstRow) {
    const auto width = static_cast<std::size_t>(level.width), across = width / blockSide;
    for (std::size_t block = 0, taken = 0; block < across; block += taken) {
        taken = std::min(across - block, BlockGroup::blocks - count_);
        for (std::size_t channel = 0; channel < BlockGroup::channels; ++channel)
            for (std::size_t row = 0; row < BlockGroup::rows; ++row)
                std::memcpy(&group_.words[channel][row][count_],
                            level.planes[channel].data() +
                                (static_cast<std::size_t>(firstRow) + row) * width + blockSide * block,
                            blockSide * taken);
        count_ += taken;
        if (count_ == BlockGroup::blocks) finish();
    }
}

/// One block a row of blocks, or one row of them.
void BlockStream::addNarrow(const TextureLevel& level, int firstRow) {
    for (int left = 0; left < level.width; left += blockSide) {
        for (std::size_t channel = 0; channel < BlockGroup::channels; ++channel)
            for (int row = 0; row < blockSide; ++row) {
                const int y = std::min(firstRow + row, level.height - 1);
                std::uint8_t pixels[blockSide];
                for (int x = 0; x < blockSide; ++x)
                    pixels[x] = level.planes[channel][static_cast<std::size_t>(
                        y * level.width + std::min(left + x, level.width - 1))];
                std::memcpy(&group_.words[channel][static_cast<std::size_t>(row)][count_], pixels,
                            sizeof pixels);
            }
        if (++count_ == BlockGroup::blocks) finish();
    }
}

void BlockStream::finish() {
    EncodedGroup encoded;
    encodeBlocks(group_, encoded);
    std::memcpy(target_, encoded.blocks, count_ * sizeof(EncodedBlock));
    target_ += count_ * sizeof(EncodedBlock);
    count_ = 0;
}

} // namespace morvane
