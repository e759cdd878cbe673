#include "imaging/block_encoder.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace morvane {
namespace {

/// One block at a time, every operation by the language's own numbers: what the registers have to agree with.
struct Lanes {
    static constexpr std::size_t count = 1;
    using Words = std::uint32_t;
    using Floats = float;

    static Words load(const std::uint32_t* from) { return *from; }
    static void store(std::uint32_t* to, Words word) { *to = word; }
    static Floats load(const float* from) { return *from; }
    static void store(float* to, Floats number) { *to = number; }

    static Words words(int value) { return static_cast<Words>(value); }
    static Words bothHalves(Words low) { return (low & 0xFFFF) | low << 16; }
    static Words both(Words a, Words b) { return a & b; }
    static Words either(Words a, Words b) { return a | b; }
    static Words differing(Words a, Words b) { return a ^ b; }
    template <int bits>
    static Words leftBy(Words value) {
        return value << bits;
    }
    template <int bits>
    static Words rightBy(Words value) {
        return value >> bits;
    }
    template <int bits>
    static Words signedRightBy(Words value) {
        return words(number(value) >> bits);
    }
    static Words add(Words a, Words b) { return a + b; }
    static Words equal(Words a, Words b) { return a == b ? ~0U : 0U; }
    static Words greater(Words a, Words b) { return number(a) > number(b) ? ~0U : 0U; }

    static unsigned bitsOf(Words mask) { return mask & 1; }

    static Words addHalves(Words a, Words b) {
        return ofHalves(a, b, [](int x, int y) { return x + y; });
    }
    static Words subtractHalves(Words a, Words b) {
        return ofHalves(a, b, [](int x, int y) { return x - y; });
    }
    static Words multiplyHalves(Words a, Words b) {
        return ofHalves(a, b, [](int x, int y) { return x * y; });
    }
    static Words highProducts(Words a, Words b) {
        return (a & 0xFFFF) * (b & 0xFFFF) >> 16 | ((a >> 16) * (b >> 16) & 0xFFFF0000);
    }
    static Words averageHalves(Words a, Words b) {
        return ofHalves(a, b, [](int x, int y) { return (x + y) >> 1; });
    }
    static Words smallerHalves(Words a, Words b) {
        return ofHalves(a, b, [](int x, int y) { return std::min(x, y); });
    }
    static Words largerHalves(Words a, Words b) {
        return ofHalves(a, b, [](int x, int y) { return std::max(x, y); });
    }
    static Words greaterHalves(Words a, Words b) {
        return ofHalves(a, b, [](int x, int y) { return x > y ? -1 : 0; });
    }
    static Words sumOfProducts(Words a, Words b) { return words(low(a) * low(b) + high(a) * high(b)); }

    static Floats floats(float value) { return value; }
    static Floats floats(Words value) { return static_cast<float>(number(value)); }
    static Words rounded(Floats value) { return words(static_cast<int>(std::nearbyint(value))); }
    static Floats smaller(Floats a, Floats b) { return std::min(a, b); }
    static Floats larger(Floats a, Floats b) { return std::max(a, b); }
    static Floats magnitude(Floats value) { return std::abs(value); }
    static Floats isAtLeast(Floats a, Floats b) { return a >= b ? 1.0F : 0.0F; }
    static Floats chosen(Floats mask, Floats yes, Floats no) { return mask != 0 ? yes : no; }

    static void storeBlocks(std::uint32_t* to, Words ends, Words indexes) {
        to[0] = ends;
        to[1] = indexes;
    }

private:
    static int number(Words value) { return static_cast<int>(value); }
    static int low(Words value) { return static_cast<std::int16_t>(value); }
    static int high(Words value) { return static_cast<std::int16_t>(value >> 16); }
    template <class Operation>
    static Words ofHalves(Words a, Words b, Operation operation) {
        return (words(operation(low(a), low(b))) & 0xFFFF) | words(operation(high(a), high(b))) << 16;
    }
};

} // namespace
} // namespace morvane

#include "imaging/block_encoder_stages.h" // on these lanes

namespace morvane::test {

void encodeBlocksPlainly(const BlockGroup& group, EncodedGroup& encoded) {
    encodeAll(group, encoded);
}

} // namespace morvane::test
