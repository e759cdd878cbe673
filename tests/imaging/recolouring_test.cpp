#include "imaging/recolouring.h"

#include "imaging/colouriser.h"
#include "imaging/pixel_patterns.h"
#include "imaging/pixel_recolouring.h"
#include "support/scripted_user.h"

#include <QCryptographicHash>
#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace morvane::test {

namespace {

cDIBSection recoloured(const ColourValues& values, const cDIBSection& source) {
    cDIBSection result = createdBuffer(source.Width(), source.Height());
    recolour(values, source, result);
    return result;
}

/// Pixel by pixel: what the fast paths are measured by.
cDIBSection plainlyRecoloured(const ColourValues& values, const cDIBSection& source) {
    cDIBSection result = createdBuffer(source.Width(), source.Height());
    for (int y = 0; y < source.Height(); ++y)
        for (int x = 0; x < source.BytesPerScanLine() / 3; ++x) {
            const RgbColour plain = recolouredPixel(values, pixelAt(source, x, y));
            const auto byte = [](int channel) { return std::clamp(channel, 0, 255); };
            setPixel(result, x, y, {byte(plain.red), byte(plain.green), byte(plain.blue)});
        }
    return result;
}

bool isThePlainArithmetic(const ColourValues& values, const cDIBSection& source) {
    return bytesOf(recoloured(values, source)) == bytesOf(plainlyRecoloured(values, source));
}

/// Every byte random, padding included.
cDIBSection randomBuffer(int width, int height, unsigned seed) {
    cDIBSection buffer = createdBuffer(width, height);
    std::mt19937 random(seed);
    std::generate_n(buffer.DIBSectionBitsPtr(), buffer.BytesPerScanLine() * height,
                    [&random] { return static_cast<std::uint8_t>(random()); });
    return buffer;
}

/// Dark and bright bytes only: with contrast these overshoot, and their extremes often cancel out.
cDIBSection extremeBuffer(unsigned seed) {
    cDIBSection buffer = randomBuffer(256, 32, seed);
    std::uint8_t* bytes = buffer.DIBSectionBitsPtr();
    std::transform(bytes, bytes + 256 * 32 * 3, bytes, [](std::uint8_t byte) {
        return static_cast<std::uint8_t>(byte & 1 ? byte % 40 : 215 + byte % 40);
    });
    return buffer;
}

/// Every end of the sliders comes up, and what lies between.
ColourValues randomValues(std::mt19937& random, int saturation) {
    const auto slider = [&random](int bound) {
        return static_cast<float>(std::clamp(static_cast<int>(random() % 401) - 200, -100, 100) * bound /
                                  100.0);
    };
    return {static_cast<float>(saturation), slider(20), slider(20), slider(20), slider(30), slider(30)};
}

/// The digest is that of an arithmetic of its own, written apart from the engine's: not a pixel may change.
TEST(Recolouring, IsExactAtEverySaturationAndOftenAtZero) {
    std::mt19937 random(1);
    QCryptographicHash digest(QCryptographicHash::Sha1);
    for (int step = -150; step <= 150; ++step) {
        const ColourValues values = randomValues(random, std::abs(step) <= 100 ? step : 0);
        const unsigned seed = random();
        const cDIBSection source = step % 2 ? randomBuffer(256, 32, seed) : extremeBuffer(seed);
        EXPECT_TRUE(step % 7 != 0 || isThePlainArithmetic(values, source)) << "step " << step;
        digest.addData(bytesOf(recoloured(values, source)));
    }
    // Beyond the sliders there is no fast path.
    for (const ColourValues& values : {ColourValues{0, 900, 0, 0, 0, 0}, ColourValues{0, 0, 0, 0, 0, 400},
                                       ColourValues{-300, 0, 0, 0, 0, 0}, ColourValues{0, 0, 0, 0, -200, 0}})
        digest.addData(bytesOf(recoloured(values, randomBuffer(64, 64, 5))));
    EXPECT_EQ(digest.result().toHex(), "7830da75d250e056d9572687c4d90df8fb1588eb");
}

TEST(Recolouring, IsThePlainArithmeticAtEveryWidth) {
    for (const float saturation : {0.0f, 37.0f})
        for (int width = 1; width <= 140; ++width)
            ASSERT_TRUE(isThePlainArithmetic({saturation, 10, -4, 8, 6, -9},
                                             randomBuffer(width, 3, static_cast<unsigned>(width))))
                << "width " << width;
}

struct Colouriser : testing::Test {
    RgbColour processed(const RgbColour& pixel) {
        const cDIBSection source = filledBuffer(1, 1, pixel);
        cDIBSection destination = createdBuffer(1, 1);
        colouriser.process(source, destination);
        return pixelAt(destination, 0, 0);
    }

    cDIBSection skyOf(const RgbColour& pixel) {
        const cDIBSection source = filledBuffer(32, 40, pixel);
        cDIBSection destination = createdBuffer(32, 40);
        colouriser.processSkyTexture(source, destination);
        return destination;
    }

    ScriptedUser user;
    cColourise colouriser{user};
};

TEST_F(Colouriser, SkyValuesAreScaledButForSaturation) {
    const struct {
        SkyGroup group;
        RgbColour pixel, expected;
    } cases[] = {
        {{1, 1, 1, 0, 100, 0, -100, 0, 0}, {100, 100, 100}, {120, 100, 80}},
        {{1, 1, 1, 0, 0, 0, 0, 100, 0}, {10, 20, 30}, {13, 26, 39}},
        {{1, 1, 1, 0, 0, 0, 0, 0, 100}, {177, 127, 77}, {192, 127, 62}},
        {{1, 1, 1, -100, 0, 0, 0, 0, 0}, {200, 100, 50}, {125, 125, 125}},
        // 250 at -19.8 % is a tie, 200.5; the value that `process` takes was cut to a float and lies above
        // it.
        {{1, 1, 1, 0, -99, 0, 0, 0, 0}, {250, 0, 0}, {200, 0, 0}},
    };
    for (const auto& [group, pixel, expected] : cases) {
        colouriser.skyTextureGroups[0] = group;
        EXPECT_EQ(pixelAt(skyOf(pixel), 0, 0), expected);
    }
    EXPECT_EQ(processed({250, 0, 0}).red, 250);
    colouriser.Red = static_cast<float>(-99 * 0.2);
    EXPECT_EQ(processed({250, 0, 0}).red, 201) << "new values between two pictures";
}

TEST_F(Colouriser, LaterSkyGroupsWorkOnUnclampedChannels) {
    // 250 overshoots to 300 in the first group; the second takes it down by 20 % to 240, not to 204.
    colouriser.skyTextureGroups[2] = {1, 1, 1, 0, 100, 0, 0, 0, 0};
    colouriser.skyTextureGroups[7] = {1, 1, 1, 0, -100, 0, 0, 0, 0};
    EXPECT_EQ(pixelAt(skyOf({250, 100, 100}), 0, 0), (RgbColour{240, 100, 100}));
}

} // namespace

} // namespace morvane::test
