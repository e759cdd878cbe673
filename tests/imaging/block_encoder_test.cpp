#include "imaging/block_encoder.h"

#include <QCryptographicHash>
#include <functional>
#include <gtest/gtest.h>
#include <random>

namespace morvane {

namespace test {
void encodeBlocksPlainly(const BlockGroup& group, EncodedGroup& encoded);
}

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

QByteArray bytesBy(decltype(&encodeBlocks) encoder, const BlockGroup& group) {
    EncodedGroup encoded;
    encoder(group, encoded);
    return {reinterpret_cast<const char*>(&encoded), sizeof encoded};
}

/// The digest tells of a change that all of them share. Whoever improves the encoder on purpose looks at what
/// `codec_bench` tells of the likeness and writes the new one here.
TEST(BlockEncoder, everyInstructionSetGivesTheBytesOfThePlainArithmetic) {
    std::mt19937 random(11);
    const auto noise = [&random](unsigned range) { return static_cast<unsigned>(random() % range); };
    const std::pair<const char*, Channel> pictures[] = {
        {"noise", [&](auto, auto, auto) { return noise(256); }},
        {"one colour",
         [&](auto block, auto, auto channel) { return static_cast<unsigned>(block * (3 + channel)); }},
        {"two colours",
         [&](auto block, auto pixel, auto channel) {
             return static_cast<unsigned>((pixel + block) % 2 != 0 ? 255 - block : block * channel % 256);
         }},
        {"channels against each other",
         [&](auto block, auto pixel, auto channel) {
             const auto rising = static_cast<unsigned>(pixel * 16 + block / 4);
             return channel == 1 ? 255 - rising : rising;
         }},
    };
    std::vector<decltype(&encodeBlocks)> encoders{test::encodeBlocksPlainly, encodeBlocks,
                                                  encodeBlocksBySse2};
    if (hasAvx2()) encoders.push_back(encodeBlocksByAvx2);
    QCryptographicHash digest(QCryptographicHash::Sha1);
    for (const auto& [name, picture] : pictures)
        for (int round = 0; round < 20; ++round) {
            const BlockGroup group = groupOf(picture);
            const QByteArray first = bytesBy(encoders[0], group);
            for (std::size_t encoder = 1; encoder < encoders.size(); ++encoder)
                EXPECT_EQ(bytesBy(encoders[encoder], group), first) << name << ' ' << encoder;
            digest.addData(first);
        }
    EXPECT_EQ(digest.result().toHex().toStdString(), "093b0170a6f8a512b3759b5c555d22e96e33d697");
}

} // namespace
} // namespace morvane
