#include "imaging/colour_blocks.h"

#include "imaging/block_ends.h"

#include <QtEndian>
#include <algorithm>
#include <cstring>

namespace morvane {

namespace {

constexpr int pixelsOfBlock = 16;
/// More gain a hundredth of a decibel.
constexpr int refinements = 2;

/// The pixels of the four blocks and what the search needs of them again and again.
struct FourBlocks {
    std::array<ColourLanes, pixelsOfBlock> pixels;
    ColourLanes sum = {};
    Lanes squares = {};
};

FourBlocks gather(const BlockPixels* blocks) {
    FourBlocks four;
    for (std::size_t i = 0; i < pixelsOfBlock; ++i) {
        LaneBits packed;
        for (int lane = 0; lane < blocksAtOnce; ++lane) {
            std::int32_t pixel;
            std::memcpy(&pixel, blocks[lane].data() + 4 * i, 4);
            packed[lane] = qFromLittleEndian(pixel);
        }
        const ColourLanes pixel = {__builtin_convertvector(packed & 255, Lanes),
                                   __builtin_convertvector(packed >> 8 & 255, Lanes),
                                   __builtin_convertvector(packed >> 16 & 255, Lanes)};
        four.pixels[i] = pixel;
        four.sum = four.sum + pixel;
        four.squares += dot(pixel, pixel);
    }
    return four;
}

/// The direction in which a block's colours spread the most: the covariance matrix applied some times over to
/// its own longest row. Its length means nothing; it is zero for a block of one colour.
ColourLanes mainDirection(const FourBlocks& four, const ColourLanes& mean) {
    ColourLanes redRow = {}, greenRow = {}, blueRow = {};
    for (const ColourLanes& pixel : four.pixels) {
        const ColourLanes off = pixel - mean;
        redRow = redRow + off * off.red;
        greenRow = greenRow + off * off.green;
        blueRow = blueRow + off * off.blue;
    }
    ColourLanes direction = choose(redRow.red > greenRow.green, redRow, greenRow);
    direction = choose(blueRow.blue > greater(redRow.red, greenRow.green), blueRow, direction);
    for (int i = 0; i < 3; ++i) {
        direction = direction * (1 / (dot(direction, direction) + 1)); // numbers would grow out of bounds
        direction = {dot(redRow, direction), dot(greenRow, direction), dot(blueRow, direction)};
    }
    return direction;
}

BlockEnds firstGuess(const FourBlocks& four) {
    const ColourLanes mean = four.sum * inAllLanes(1.0F / pixelsOfBlock);
    const ColourLanes direction = mainDirection(four, mean);
    Lanes low = {}, high = {};
    for (const ColourLanes& pixel : four.pixels) {
        const Lanes place = dot(pixel - mean, direction);
        low = smaller(low, place);
        high = greater(high, place);
    }
    const Lanes square = dot(direction, direction);
    const Lanes scale = choose(square > 0, 1 / square, inAllLanes(0));
    return {packed(mean + direction * (high * scale)), packed(mean + direction * (low * scale))};
}

/// How a pair of ends serves the blocks. Each pixel takes a step from 0, the second end, to 3, the first.
struct Fit {
    LaneBits steps = {};    ///< two bits a pixel
    Lanes stepSum = {};     ///< of all pixels
    Lanes stepSquares = {}; ///< likewise
    ColourLanes stepTimesColour = {};
};

Fit fit(const FourBlocks& four, const ColourLanes& first, const ColourLanes& second) {
    const ColourLanes direction = first - second;
    const Lanes square = dot(direction, direction), start = dot(second, direction);
    const Lanes oneAt = start + square * (1.0F / 6), twoAt = start + square * 0.5F,
                threeAt = start + square * (5.0F / 6);
    Fit found;
    for (std::size_t i = 0; i < pixelsOfBlock; ++i) {
        const Lanes place = dot(four.pixels[i], direction);
        const LaneBits step = -((place > oneAt) + (place > twoAt) + (place > threeAt));
        const Lanes weight = __builtin_convertvector(step, Lanes);
        found.steps |= step << static_cast<int>(2 * i);
        found.stepSum += weight;
        found.stepSquares += weight * weight;
        found.stepTimesColour = found.stepTimesColour + four.pixels[i] * weight;
    }
    return found;
}

/// The sums of least squares, for shares of the first and of the second end that are thirds.
struct Shares {
    explicit Shares(const FourBlocks& four, const Fit& found)
        : firstFirst(found.stepSquares * (1.0F / 9)), firstSecond(found.stepSum * (1.0F / 3) - firstFirst),
          secondSecond(pixelsOfBlock - 2 * firstSecond - firstFirst),
          firstColour(found.stepTimesColour * inAllLanes(1.0F / 3)), secondColour(four.sum - firstColour) {}

    Lanes firstFirst, firstSecond, secondSecond;
    ColourLanes firstColour, secondColour;
};

/// The sum of all squared differences between the pixels and what the block shows.
Lanes errorOf(const FourBlocks& four, const Shares& shares, const ColourLanes& first,
              const ColourLanes& second) {
    return four.squares - 2 * (dot(shares.firstColour, first) + dot(shares.secondColour, second)) +
           shares.firstFirst * dot(first, first) + 2 * shares.firstSecond * dot(first, second) +
           shares.secondSecond * dot(second, second);
}

/// The ends that would serve best if all pixels kept their steps. Where all have the same step there is no
/// single answer, and both ends are the mean.
BlockEnds bestEndsFor(const FourBlocks& four, const Shares& shares) {
    const Lanes determinant =
        shares.firstFirst * shares.secondSecond - shares.firstSecond * shares.firstSecond;
    const LaneBits solvable = determinant > 0.01F;
    const Lanes scale = 1 / choose(solvable, determinant, inAllLanes(1));
    const ColourLanes first =
        shares.firstColour * shares.secondSecond - shares.secondColour * shares.firstSecond;
    const ColourLanes second =
        shares.secondColour * shares.firstFirst - shares.firstColour * shares.firstSecond;
    const ColourLanes mean = four.sum * inAllLanes(1.0F / pixelsOfBlock);
    return {packed(choose(solvable, first * scale, mean)), packed(choose(solvable, second * scale, mean))};
}

/// The best of the ends tried so far, a lane by itself.
struct Choice {
    Lanes error = inAllLanes(1e30F);
    LaneBits first = {}, second = {}, steps = {};

    void consider(Lanes otherError, const BlockEnds& ends, LaneBits otherSteps) {
        const LaneBits better = otherError < error;
        error = choose(better, otherError, error);
        first = better ? joined(ends.first) : first;
        second = better ? joined(ends.second) : second;
        steps = better ? otherSteps : steps;
    }
};

/// A block that is all mixture, for those of one colour or nearly so.
void considerOneColour(const FourBlocks& four, Choice& best) {
    const BlockEnds ends = endsForOneColour(four.sum * inAllLanes(1.0F / pixelsOfBlock));
    const ColourLanes shown =
        unpacked(ends.first) * inAllLanes(2.0F / 3) + unpacked(ends.second) * inAllLanes(1.0F / 3);
    const LaneBits twoParts = LaneBits{} - 0x55555556; // step 2 for every pixel
    best.consider(four.squares - 2 * dot(shown, four.sum) + pixelsOfBlock * dot(shown, shown), ends,
                  twoParts);
}

Choice search(const FourBlocks& four) {
    Choice best;
    considerOneColour(four, best);
    BlockEnds ends = firstGuess(four);
    for (int round = 0; round <= refinements; ++round) {
        const ColourLanes first = unpacked(ends.first), second = unpacked(ends.second);
        const Fit found = fit(four, first, second);
        const Shares shares(four, found);
        best.consider(errorOf(four, shares, first, second), ends, found.steps);
        ends = bestEndsFor(four, shares);
    }
    return best;
}

/// Steps 3, 2, 1, 0 are the indexes 0, 2, 3, 1. The greater end goes first, which is what makes the block one
/// of four colours; with equal ends only index 0 is safe.
void writeBlock(std::uint32_t first, std::uint32_t second, std::uint32_t steps, std::uint8_t* target) {
    constexpr std::uint32_t lowBits = 0x55555555;
    if (first < second) {
        std::swap(first, second);
        steps = ~steps;
    }
    const std::uint32_t upper = steps >> 1 & lowBits, lower = steps & lowBits;
    const std::uint32_t indexes = first == second ? 0 : (upper ^ lower) << 1 | (upper ^ lowBits);
    qToLittleEndian<quint32>(first | second << 16, target);
    qToLittleEndian<quint32>(indexes, target + 4);
}

} // namespace

void encodeColourBlocks(const FourBlockPixels& blocks, std::uint8_t* target) {
    const Choice best = search(gather(blocks.data()));
    for (int lane = 0; lane < blocksAtOnce; ++lane)
        writeBlock(static_cast<std::uint32_t>(best.first[lane]),
                   static_cast<std::uint32_t>(best.second[lane]),
                   static_cast<std::uint32_t>(best.steps[lane]), target + 8 * lane);
}

} // namespace morvane
