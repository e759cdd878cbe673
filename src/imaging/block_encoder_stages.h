#pragma once

// The encoder's arithmetic, for the file of one instruction set, which includes its Lanes first. Everything
// is local to that file: a function that two files shared could be linked in the wrong one's instructions.
// Nothing of the standard library is called for the same reason.

#include "imaging/block_encoder.h"
#include "imaging/single_colour_ends.h"

namespace morvane {
namespace {

using Words = Lanes::Words;
using Floats = Lanes::Floats;
using WordRow = std::uint32_t[BlockGroup::blocks];
using FloatRow = float[BlockGroup::blocks];

/// What is known of the blocks between two stages. A block's way is one long chain of dependent operations;
/// each stage walks all blocks of the group, which stays in the nearest cache, so that the chains run side by
/// side.
struct GroupWork {
    FloatRow sum[3]; ///< of each channel over the sixteen pixels
    WordRow isFlat;  ///< all bits where the pixels hardly differ
    /// The line on which the pixels are told apart, both halves alike. The magnitudes of the three add up to
    /// 127.5 at most, so that the product with a pixel fits 16 bits.
    WordRow direction[3];
    /// A pixel's weight, 0 to 3, is the number of these that its product with the direction exceeds; both
    /// halves.
    WordRow threshold[3];
    WordRow ends; ///< of 5, 6 and 5 bits, the first in the lower half and the second in the upper
};

constexpr float directionLength = 126;

inline Words halves(unsigned value) {
    return Lanes::words(static_cast<int>(value * 0x10001));
}

/// Two pixels of each block, one a half.
struct PixelPair {
    Words red, green, blue;
};

inline PixelPair pairOf(const BlockGroup& group, std::size_t row, std::size_t at, bool odd) {
    const Words bytes = Lanes::words(0x00FF00FF);
    Words channel[3];
    for (std::size_t i = 0; i < 3; ++i) {
        const Words four = Lanes::load(&group.words[i][row][at]);
        channel[i] = Lanes::both(odd ? Lanes::rightBy<8>(four) : four, bytes);
    }
    return {channel[0], channel[1], channel[2]};
}

struct Line {
    Words red, green, blue;

    Words operator*(const PixelPair& pixels) const {
        return Lanes::addHalves(Lanes::addHalves(Lanes::multiplyHalves(red, pixels.red),
                                                 Lanes::multiplyHalves(green, pixels.green)),
                                Lanes::multiplyHalves(blue, pixels.blue));
    }
};

inline Line lineAt(const GroupWork& work, std::size_t at) {
    return {Lanes::load(&work.direction[0][at]), Lanes::load(&work.direction[1][at]),
            Lanes::load(&work.direction[2][at])};
}

/// Stores it scaled, so that no product leaves 16 bits.
inline void storeDirection(GroupWork& work, std::size_t at, const Floats (&line)[3]) {
    const Floats length = Lanes::magnitude(line[0]) + Lanes::magnitude(line[1]) + Lanes::magnitude(line[2]);
    const Floats scale = Lanes::floats(directionLength) / Lanes::larger(length, Lanes::floats(1.0F));
    for (std::size_t i = 0; i < 3; ++i)
        Lanes::store(&work.direction[i][at], Lanes::bothHalves(Lanes::rounded(line[i] * scale)));
}

inline void storeThresholds(GroupWork& work, std::size_t at, Floats low, Floats high) {
    const float parts[] = {1.0F / 6.0F, 0.5F, 5.0F / 6.0F};
    for (std::size_t i = 0; i < 3; ++i) {
        const Words border = Lanes::rounded(low + (high - low) * Lanes::floats(parts[i]));
        Lanes::store(&work.threshold[i][at], Lanes::bothHalves(border));
    }
}

/// Sums of the products of two channels over the sixteen pixels, exact in a float: sixteen times them stays
/// below 2^24.
struct Moments {
    Words redRed, redGreen, redBlue, greenGreen, greenBlue, blueBlue;
};

inline void addTo(Words& sum, Words a, Words b) {
    sum = Lanes::add(sum, Lanes::sumOfProducts(a, b));
}

/// Sixteen times the sum of products less the product of the sums: the covariance without a mean or a
/// rounding.
inline Floats spread(Words products, Floats sum, Floats otherSum) {
    return Lanes::floats(Lanes::leftBy<4>(products)) - sum * otherSum;
}

/// The sum of the squared distances of all pixels' channels from their mean: below one step each, ends of
/// their own lose more by their rounding than they give.
constexpr int flatBelow = 48;

inline void storeFlatness(GroupWork& work, std::size_t at, Floats variance) {
    Lanes::store(&work.isFlat[at], Lanes::greater(Lanes::words(16 * flatBelow), Lanes::rounded(variance)));
}

/// The matrix's greatest direction by three steps of the power method, begun with the row of the greatest
/// variance.
inline void storeMainDirection(GroupWork& work, std::size_t at, const Moments& moments,
                               const Floats (&sum)[3]) {
    const Floats rr = spread(moments.redRed, sum[0], sum[0]), rg = spread(moments.redGreen, sum[0], sum[1]),
                 rb = spread(moments.redBlue, sum[0], sum[2]),
                 gg = spread(moments.greenGreen, sum[1], sum[1]),
                 gb = spread(moments.greenBlue, sum[1], sum[2]),
                 bb = spread(moments.blueBlue, sum[2], sum[2]);
    storeFlatness(work, at, rr + gg + bb);
    const Floats isRed = Lanes::isAtLeast(rr, gg), most = Lanes::larger(rr, gg),
                 isBlue = Lanes::isAtLeast(bb, most);
    Floats line[3] = {Lanes::chosen(isBlue, rb, Lanes::chosen(isRed, rr, rg)),
                      Lanes::chosen(isBlue, gb, Lanes::chosen(isRed, rg, gg)),
                      Lanes::chosen(isBlue, bb, Lanes::chosen(isRed, rb, gb))};
    for (int step = 0; step < 3; ++step) {
        const Floats red = rr * line[0] + rg * line[1] + rb * line[2];
        const Floats green = rg * line[0] + gg * line[1] + gb * line[2];
        line[2] = rb * line[0] + gb * line[1] + bb * line[2];
        line[0] = red;
        line[1] = green;
    }
    storeDirection(work, at, line);
}

inline void findMainDirections(const BlockGroup& group, GroupWork& work) {
    const Words ones = Lanes::words(0x00010001);
    for (std::size_t at = 0; at < BlockGroup::blocks; at += Lanes::count) {
        const Words none = Lanes::words(0);
        Words red = none, green = none, blue = none;
        Moments moments{none, none, none, none, none, none};
        for (std::size_t pair = 0; pair < 8; ++pair) {
            const PixelPair pixels = pairOf(group, pair / 2, at, pair % 2 != 0);
            addTo(red, pixels.red, ones);
            addTo(green, pixels.green, ones);
            addTo(blue, pixels.blue, ones);
            addTo(moments.redRed, pixels.red, pixels.red);
            addTo(moments.redGreen, pixels.red, pixels.green);
            addTo(moments.redBlue, pixels.red, pixels.blue);
            addTo(moments.greenGreen, pixels.green, pixels.green);
            addTo(moments.greenBlue, pixels.green, pixels.blue);
            addTo(moments.blueBlue, pixels.blue, pixels.blue);
        }
        const Floats sum[3] = {Lanes::floats(red), Lanes::floats(green), Lanes::floats(blue)};
        for (std::size_t i = 0; i < 3; ++i)
            Lanes::store(&work.sum[i][at], sum[i]);
        storeMainDirection(work, at, moments, sum);
    }
}

/// The first ends are the outermost pixels along the direction.
inline void setThresholdsByExtent(const BlockGroup& group, GroupWork& work) {
    for (std::size_t at = 0; at < BlockGroup::blocks; at += Lanes::count) {
        const Line line = lineAt(work, at);
        Words low = line * pairOf(group, 0, at, false), high = low;
        for (std::size_t pair = 1; pair < 8; ++pair) {
            const Words product = line * pairOf(group, pair / 2, at, pair % 2 != 0);
            low = Lanes::smallerHalves(low, product);
            high = Lanes::largerHalves(high, product);
        }
        low = Lanes::smallerHalves(low, Lanes::leftBy<16>(low));
        high = Lanes::largerHalves(high, Lanes::leftBy<16>(high));
        storeThresholds(work, at, Lanes::floats(Lanes::signedRightBy<16>(low)),
                        Lanes::floats(Lanes::signedRightBy<16>(high)));
    }
}

struct Borders {
    Words first, second, third;

    /// 0 to 3 in each half.
    Words weightsOf(Words products) const {
        const Words exceeded = Lanes::addHalves(
            Lanes::addHalves(Lanes::greaterHalves(products, first), Lanes::greaterHalves(products, second)),
            Lanes::greaterHalves(products, third));
        return Lanes::subtractHalves(Lanes::words(0), exceeded);
    }
};

inline Borders bordersAt(const GroupWork& work, std::size_t at) {
    return {Lanes::load(&work.threshold[0][at]), Lanes::load(&work.threshold[1][at]),
            Lanes::load(&work.threshold[2][at])};
}

struct WeightSums {
    Words weight, square, red, green,
        blue; ///< of the weights, their squares, and their products with a channel
};

inline Floats clamped(Floats value) {
    return Lanes::larger(Lanes::smaller(value, Lanes::floats(255.0F)), Lanes::floats(0.0F));
}

/// Five and six bits by the inverse of how readers widen them, which is by repeating their first bits.
inline Words fiveBits(Floats value) {
    return Lanes::rounded((clamped(value) + Lanes::floats(0.375F)) * Lanes::floats(1 / 8.25F));
}
inline Words sixBits(Floats value) {
    return Lanes::rounded((clamped(value) + Lanes::floats(0.46875F)) * Lanes::floats(1 / 4.0625F));
}

inline Words packed(const Floats (&colour)[3]) {
    return Lanes::either(
        Lanes::either(Lanes::leftBy<11>(fiveBits(colour[0])), Lanes::leftBy<5>(sixBits(colour[1]))),
        fiveBits(colour[2]));
}

/// The regression of the pixels on their weights: its values at 0 and 3 are the ends. Weights that are all
/// alike give a slope of zero, as the numerator then is.
inline void storeEnds(GroupWork& work, std::size_t at, const WeightSums& sums) {
    const Floats weight = Lanes::floats(sums.weight);
    const Floats variance = spread(sums.square, weight, weight);
    const Floats divisor = Lanes::larger(variance, Lanes::floats(0.5F));
    const Words products[3] = {sums.red, sums.green, sums.blue};
    Floats ends[2][3];
    for (std::size_t i = 0; i < 3; ++i) {
        const Floats sum = Lanes::load(&work.sum[i][at]);
        const Floats slope = spread(products[i], weight, sum) / divisor;
        ends[0][i] = (sum - slope * weight) * Lanes::floats(0.0625F);
        ends[1][i] = ends[0][i] + slope * Lanes::floats(3.0F);
    }
    Lanes::store(&work.ends[at], Lanes::either(packed(ends[0]), Lanes::leftBy<16>(packed(ends[1]))));
}

inline void refineEnds(const BlockGroup& group, GroupWork& work) {
    const Words ones = Lanes::words(0x00010001);
    for (std::size_t at = 0; at < BlockGroup::blocks; at += Lanes::count) {
        const Line line = lineAt(work, at);
        const Borders borders = bordersAt(work, at);
        const Words none = Lanes::words(0);
        WeightSums sums{none, none, none, none, none};
        for (std::size_t pair = 0; pair < 8; ++pair) {
            const PixelPair pixels = pairOf(group, pair / 2, at, pair % 2 != 0);
            const Words weights = borders.weightsOf(line * pixels);
            addTo(sums.weight, weights, ones);
            addTo(sums.square, weights, weights);
            addTo(sums.red, weights, pixels.red);
            addTo(sums.green, weights, pixels.green);
            addTo(sums.blue, weights, pixels.blue);
        }
        storeEnds(work, at, sums);
    }
}

/// As readers widen them, which is by repeating their first bits: five bits at the top of a half, times
/// 264 / 65536, are 8.25 times themselves, cut.
inline PixelPair widened(Words ends) {
    const Words five = halves(0xF800), six = halves(0x07E0);
    return {Lanes::highProducts(Lanes::both(ends, five), halves(264)),
            Lanes::highProducts(Lanes::both(ends, six), halves(8320)),
            Lanes::highProducts(Lanes::both(Lanes::leftBy<11>(ends), five), halves(264))};
}

/// The two colours between the ends, each cut to a whole number as readers do: borders in the middle of what
/// is really there are worth up to 0.8 decibels in a sky.
inline Words between(Words ends) {
    const Words turned = Lanes::either(Lanes::leftBy<16>(ends), Lanes::rightBy<16>(ends));
    return Lanes::highProducts(Lanes::addHalves(Lanes::addHalves(ends, ends), turned), halves(21846));
}

inline void aimFromEndToEnd(GroupWork& work, std::size_t at, const PixelPair& ends) {
    const Words channels[] = {ends.red, ends.green, ends.blue};
    Floats line[3];
    for (std::size_t i = 0; i < 3; ++i)
        line[i] = Lanes::floats(
            Lanes::signedRightBy<16>(Lanes::subtractHalves(channels[i], Lanes::leftBy<16>(channels[i]))));
    storeDirection(work, at, line);
}

/// Direction and thresholds for the ends as a reader sees them.
inline void aimAtEnds(GroupWork& work) {
    for (std::size_t at = 0; at < BlockGroup::blocks; at += Lanes::count) {
        const PixelPair ends = widened(Lanes::load(&work.ends[at]));
        aimFromEndToEnd(work, at, ends);
        const Line line = lineAt(work, at);
        const Words outer = line * ends,
                    inner = line * PixelPair{between(ends.red), between(ends.green), between(ends.blue)};
        const Words border = Lanes::averageHalves(outer, inner);
        Lanes::store(&work.threshold[0][at], Lanes::bothHalves(border));
        Lanes::store(&work.threshold[1][at],
                     Lanes::bothHalves(Lanes::averageHalves(inner, Lanes::rightBy<16>(inner))));
        Lanes::store(&work.threshold[2][at], Lanes::bothHalves(Lanes::rightBy<16>(border)));
    }
}

inline std::uint32_t singleColourEnds(const GroupWork& work, std::size_t at) {
    std::uint32_t mean[3];
    for (std::size_t i = 0; i < 3; ++i)
        mean[i] = (static_cast<std::uint32_t>(work.sum[i][at]) + 8) / 16;
    return fiveBitEnds.of[mean[0]] << 11 | sixBitEnds.of[mean[1]] << 5 | fiveBitEnds.of[mean[2]];
}

/// Where the block is almost of one colour, or its ends fell together, a point between two others is a better
/// match. Outside of skies few groups of lanes have such a block.
inline void spreadCloseEnds(GroupWork& work) {
    for (std::size_t at = 0; at < BlockGroup::blocks; at += Lanes::count) {
        const Words ends = Lanes::load(&work.ends[at]);
        const Words isEqual = Lanes::equal(Lanes::both(ends, Lanes::words(0xFFFF)), Lanes::rightBy<16>(ends));
        unsigned lanes = Lanes::bitsOf(Lanes::either(isEqual, Lanes::load(&work.isFlat[at])));
        for (std::size_t block = at; lanes != 0; ++block, lanes >>= 1)
            if (lanes % 2 != 0) work.ends[block] = singleColourEnds(work, block);
    }
}

/// Two bits a pixel. Along the way from end to end the indexes are 0, 2, 3, 1.
inline Words indexesOf(const BlockGroup& group, const GroupWork& work, std::size_t at, std::size_t row) {
    const Line line = lineAt(work, at);
    const Borders borders = bordersAt(work, at);
    const Words even = borders.weightsOf(line * pairOf(group, row, at, false));
    const Words odd = borders.weightsOf(line * pairOf(group, row, at, true));
    const Words weights = Lanes::either(even, Lanes::leftBy<2>(odd));
    const Words four = Lanes::either(Lanes::both(weights, Lanes::words(15)),
                                     Lanes::both(Lanes::rightBy<12>(weights), Lanes::words(15 << 4)));
    const Words upper = Lanes::both(Lanes::rightBy<1>(four), Lanes::words(0x55));
    const Words lower = Lanes::both(Lanes::differing(four, upper), Lanes::words(0x55));
    return Lanes::either(upper, Lanes::leftBy<1>(lower));
}

/// The greater end goes first, which makes a block one of four colours, and where the ends are equal all
/// indexes are 0: readers take equal ends for three colours, where only that one is safe.
inline void storeBlocks(std::size_t at, Words indexes, const GroupWork& work, EncodedGroup& encoded) {
    const Words ends = Lanes::load(&work.ends[at]);
    const Words first = Lanes::both(ends, Lanes::words(0xFFFF)), second = Lanes::rightBy<16>(ends);
    const Words isTurned = Lanes::greater(second, first);
    const Words isOrdered = Lanes::greater(first, second);
    const Words turn = Lanes::both(Lanes::differing(first, second), isTurned);
    const Words greater = Lanes::differing(first, turn), smaller = Lanes::differing(second, turn);
    const Words turned = Lanes::differing(indexes, Lanes::both(isTurned, Lanes::words(0x55555555)));
    Lanes::storeBlocks(reinterpret_cast<std::uint32_t*>(&encoded.blocks[at]),
                       Lanes::either(greater, Lanes::leftBy<16>(smaller)),
                       Lanes::both(turned, Lanes::either(isTurned, isOrdered)));
}

inline void writeBlocks(const BlockGroup& group, const GroupWork& work, EncodedGroup& encoded) {
    for (std::size_t at = 0; at < BlockGroup::blocks; at += Lanes::count) {
        Words indexes = indexesOf(group, work, at, 0);
        indexes = Lanes::either(indexes, Lanes::leftBy<8>(indexesOf(group, work, at, 1)));
        indexes = Lanes::either(indexes, Lanes::leftBy<16>(indexesOf(group, work, at, 2)));
        indexes = Lanes::either(indexes, Lanes::leftBy<24>(indexesOf(group, work, at, 3)));
        storeBlocks(at, indexes, work, encoded);
    }
}

inline void encodeAll(const BlockGroup& group, EncodedGroup& encoded) {
    GroupWork work;
    findMainDirections(group, work);
    setThresholdsByExtent(group, work);
    refineEnds(group, work);
    // Once more around the ends as they are after rounding: without this photographs lose a quarter of a
    // decibel.
    aimAtEnds(work);
    refineEnds(group, work);
    spreadCloseEnds(work);
    aimAtEnds(work);
    writeBlocks(group, work, encoded);
}

} // namespace
} // namespace morvane
