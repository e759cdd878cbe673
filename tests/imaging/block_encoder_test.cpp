#include "imaging/block_encoder.h"

#include "imaging/kept_encoder.h"
#include "imaging/plain_block_encoder.h"
#include "imaging/single_colour_ends.h"

#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <random>

namespace morvane {
namespace {

using Channel = std::function<unsigned(std::size_t block, std::size_t pixel, std::size_t channel)>;

BlockGroup groupOf(const Channel& value) {
    BlockGroup group{};
    for (std::size_t channel = 0; channel < BlockGroup::channels; ++channel)
        for (std::size_t block = 0; block < BlockGroup::blocks; ++block)
            for (std::size_t pixel = 0; pixel < 16; ++pixel)
                group.words[channel][pixel / 4][block] |= value(block, pixel, channel) << (8 * (pixel % 4));
    return group;
}

TEST(BlockEncoder, everyInstructionSetGivesTheBytesOfThePlainArithmetic) {
    std::mt19937 random(11);
    const auto noise = [&random](unsigned range) { return static_cast<unsigned>(random() % range); };
    const std::pair<const char*, Channel> pictures[] = {
        {"noise", [&](auto, auto, auto) { return noise(256); }},
        {"little noise on a slope",
         [&](auto block, auto pixel, auto channel) {
             return static_cast<unsigned>(block * 3 + pixel * (channel + 1)) / 2 % 250 + noise(5);
         }},
        {"one colour",
         [&](auto block, auto, auto channel) { return static_cast<unsigned>(block * (3 + channel)); }},
        {"one colour but for a pixel",
         [&](auto block, auto pixel, auto channel) {
             return static_cast<unsigned>(pixel == 5 && channel == block % 3 ? block * 4 : block);
         }},
        {"two colours",
         [&](auto block, auto pixel, auto channel) {
             return static_cast<unsigned>((pixel + block) % 2 != 0 ? 255 - block : block * channel % 256);
         }},
        {"black and white", [&](auto, auto, auto) { return noise(2) * 255; }},
        {"channels against each other",
         [&](auto block, auto pixel, auto channel) {
             const auto rising = static_cast<unsigned>(pixel * 16 + block / 4);
             return channel == 1 ? 255 - rising : rising;
         }},
    };
    std::vector<decltype(&encodeBlocks)> encoders{encodeBlocks, encodeBlocksBySse2};
    if (hasAvx2()) encoders.push_back(encodeBlocksByAvx2);
    for (const auto& [name, picture] : pictures)
        for (int round = 0; round < 20; ++round) {
            const BlockGroup group = groupOf(picture);
            for (std::size_t encoder = 0; encoder < encoders.size(); ++encoder) {
                EncodedGroup encoded;
                encoders[encoder](group, encoded);
                for (std::size_t i = 0; i < BlockGroup::blocks; ++i) {
                    const EncodedBlock plain = test::plainlyEncoded(group, i), found = encoded.blocks[i];
                    ASSERT_EQ(found.ends[0], plain.ends[0]) << name << ' ' << encoder << ' ' << i;
                    ASSERT_EQ(found.ends[1], plain.ends[1]) << name << ' ' << encoder << ' ' << i;
                    ASSERT_EQ(found.indexes, plain.indexes) << name << ' ' << encoder << ' ' << i;
                }
            }
        }
}

/// Looks at all pairs, where the table's maker looks at near ones: a third of a step may be lost to keep the
/// ends close, as readers round what lies between in different ways.
TEST(BlockEncoder, noEndsComeMuchNearerToAValueThanThoseOfTheTable) {
    for (const auto& [table, bits] : {std::pair{&fiveBitEnds, 5}, {&sixBitEnds, 6}}) {
        const auto thirdsOff = [bits = bits](int value, int first, int second) {
            const auto wide = [bits](int end) { return end << (8 - bits) | end >> (2 * bits - 8); };
            return std::abs(2 * wide(first) + wide(second) - 3 * value);
        };
        for (int value = 0; value < 256; ++value) {
            const EndPair ends = table->of[value];
            int nearest = 1000;
            for (int first = 0; first < 1 << bits; ++first)
                for (int second = 0; second < 1 << bits; ++second)
                    nearest = std::min(nearest, thirdsOff(value, first, second));
            EXPECT_LE(thirdsOff(value, ends.first, ends.second), nearest + (bits == 5 ? 2 : 1))
                << bits << ' ' << value;
        }
    }
}

/// Squares of the differences between a block's pixels and what a reader makes of it.
double errorOf(const BlockGroup& group, std::size_t block, const EncodedBlock& encoded) {
    double squares = 0;
    const auto ends = [&encoded](std::size_t end, std::size_t channel) {
        const unsigned whole = encoded.ends[end], five = channel == 0 ? whole >> 11 : whole & 31,
                       six = whole >> 5 & 63;
        return channel == 1 ? six << 2 | six >> 4 : five << 3 | five >> 2;
    };
    for (std::size_t channel = 0; channel < 3; ++channel)
        for (std::size_t pixel = 0; pixel < 16; ++pixel) {
            constexpr unsigned parts[] = {0, 3, 1, 2};
            const unsigned part = parts[encoded.indexes >> (2 * pixel) & 3];
            const double shown = ((3 - part) * ends(0, channel) + part * ends(1, channel)) / 3;
            const double wanted = group.words[channel][pixel / 4][block] >> (8 * (pixel % 4)) & 255;
            squares += (shown - wanted) * (shown - wanted);
        }
    return squares;
}

TEST(BlockEncoder, isAsGoodAsAWellKeptLibrary) {
    std::mt19937 random(5);
    const std::pair<double, Channel> pictures[] = {
        {1.0,
         [&](auto block, auto pixel, auto channel) { // soft slopes with grain, as fields are
             return static_cast<unsigned>(60 + block + 3 * (pixel % 4) + 2 * (pixel / 4) + 20 * channel +
                                          random() % 14);
         }},
        {1.0,
         [&](auto block, auto pixel, auto channel) { // roofs and streets: two colours with grain
             const bool isRoof = (pixel % 4 + block) % 4 < 2;
             return static_cast<unsigned>((isRoof ? 150 - 30 * channel : 80 + 5 * channel) + random() % 25);
         }},
        {1.05, [&](auto, auto, auto) { return static_cast<unsigned>(random() % 256); }},
    };
    for (std::size_t i = 0; i < std::size(pictures); ++i) {
        double ours = 0, theirs = 0;
        for (int round = 0; round < 10; ++round) {
            const BlockGroup group = groupOf(pictures[i].second);
            EncodedGroup encoded;
            encodeBlocks(group, encoded);
            for (std::size_t block = 0; block < BlockGroup::blocks; ++block) {
                ours += errorOf(group, block, encoded.blocks[block]);
                theirs += errorOf(group, block, test::encodedByLibrary(group, block));
            }
        }
        EXPECT_LE(ours, theirs * pictures[i].first) << i;
    }
}

} // namespace
} // namespace morvane
