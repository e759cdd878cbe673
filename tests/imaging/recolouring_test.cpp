#include "imaging/recolouring.h"

#include "core/error.h"
#include "imaging/pixel_patterns.h"
#include "imaging/plain_arithmetic.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>

namespace morvane {

namespace {

std::vector<std::uint8_t> bytesOf(const cDIBSection& buffer) {
    return {buffer.DIBSectionBitsPtr(),
            buffer.DIBSectionBitsPtr() + buffer.BytesPerScanLine() * buffer.Height()};
}

cDIBSection plainlyRecoloured(const ColourValues& values, const cDIBSection& source) {
    const test::PlainArithmetic plain(values);
    cDIBSection result = test::createdBuffer(source.Width(), source.Height());
    for (int y = 0; y < source.Height(); ++y)
        for (int x = 0; x < source.BytesPerScanLine() / 3; ++x)
            test::setPixel(result, x, y, plain.process(test::pixelAt(source, x, y)));
    return result;
}

cDIBSection recoloured(const ColourValues& values, const cDIBSection& source) {
    cDIBSection result = test::createdBuffer(source.Width(), source.Height());
    recolour(values, source, result);
    return result;
}

/// Dark and bright bytes only: with contrast these overshoot, and their extremes often cancel out.
cDIBSection extremeBuffer(unsigned seed) {
    cDIBSection buffer = test::randomBuffer(256, 64, seed);
    std::uint8_t* bytes = buffer.DIBSectionBitsPtr();
    std::transform(bytes, bytes + 256 * 64 * 3, bytes, [](std::uint8_t byte) {
        return static_cast<std::uint8_t>(byte & 1 ? byte % 40 : 215 + byte % 40);
    });
    return buffer;
}

std::vector<ColourValues> sliderSettings(float saturation, int count) {
    std::vector<ColourValues> settings = {{saturation, 0, 0, 0, 0, 0},
                                          {saturation, 20, 20, 20, 30, 30},
                                          {saturation, -20, -20, -20, -30, -30},
                                          {saturation, 20, -20, 0, -30, 30},
                                          {saturation, 0, 0, 0, 30, -30}};
    std::mt19937 random(static_cast<unsigned>(count));
    const auto slider = [&](double factor) {
        return static_cast<float>((static_cast<int>(random() % 201) - 100) * factor);
    };
    for (int i = 0; i < count; ++i)
        settings.push_back({saturation, slider(0.2), slider(0.2), slider(0.2), slider(0.3), slider(0.3)});
    return settings;
}

TEST(Recolouring, IsThePlainArithmeticAtSaturationZero) {
    unsigned seed = 0;
    for (const ColourValues& values : sliderSettings(0, 20))
        for (const cDIBSection& source : {test::randomBuffer(256, 64, ++seed), extremeBuffer(++seed)})
            ASSERT_EQ(bytesOf(recoloured(values, source)), bytesOf(plainlyRecoloured(values, source)))
                << "settings " << seed;
}

TEST(Recolouring, IsThePlainArithmeticAtEverySaturation) {
    unsigned seed = 0;
    for (int saturation = -100; saturation <= 100; ++saturation) {
        const auto settings = sliderSettings(static_cast<float>(saturation), 1);
        const ColourValues& values = settings[seed % settings.size()];
        const cDIBSection source = ++seed % 2 ? test::randomBuffer(256, 64, seed) : extremeBuffer(seed);
        ASSERT_EQ(bytesOf(recoloured(values, source)), bytesOf(plainlyRecoloured(values, source)))
            << "saturation " << saturation;
    }
}

TEST(Recolouring, MeetsBothExceptionsOfSaturationZero) {
    const ColourValues values = {0, 0, 0, 0, 0, 30};
    // Stepped: 0 becomes -38, 59 becomes 39, 58 becomes 37; 255 becomes 293, 198 becomes 219, 197 218.
    cDIBSection source = test::createdBuffer(4, 1);
    int black = 0, white = 0;
    for (int low = 0; low < 256; ++low)
        for (int high = low + 1; high < 256; ++high) {
            const test::PlainArithmetic plain(values);
            const int sum = plain.step(low, 0) + plain.step(high, 0);
            if (sum != 0 && sum != 510) continue;
            const int middle = (low + high) / 2;
            test::setPixel(source, 0, 0, {high, middle, low});
            test::setPixel(source, 1, 0, {low, high, middle});
            test::setPixel(source, 2, 0, {low, high, high});
            const int level = sum / 2;
            (sum == 0 ? black : white) += 1;
            const cDIBSection result = recoloured(values, source);
            for (int x = 0; x < 3; ++x)
                ASSERT_EQ(test::pixelAt(result, x, 0), (RgbColour{level, level, level}))
                    << low << ' ' << high;
        }
    EXPECT_GT(black, 5);
    EXPECT_GT(white, 5);
}

TEST(Recolouring, TakesEveryWidthAndItsPadding) {
    for (const float saturation : {0.0f, 37.0f})
        for (int width = 1; width <= 140; ++width) {
            const ColourValues values = {saturation, 10, -4, 8, 6, -9};
            const cDIBSection source = test::randomBuffer(width, 3, static_cast<unsigned>(width));
            ASSERT_EQ(bytesOf(recoloured(values, source)), bytesOf(plainlyRecoloured(values, source)))
                << "width " << width;
        }
}

TEST(Recolouring, WorksInPlaceAndIntoALargerBuffer) {
    for (const float saturation : {0.0f, 37.0f, 250.0f}) {
        const ColourValues values = {saturation, 10, -4, 8, 6, -9};
        cDIBSection source = test::randomBuffer(200, 5, 1);
        const cDIBSection expected = plainlyRecoloured(values, source);
        cDIBSection larger = test::filledBuffer(300, 7, {1, 2, 3});
        recolour(values, source, larger);
        for (int x = 0; x < 200; ++x)
            ASSERT_EQ(test::pixelAt(larger, x, 4), test::pixelAt(expected, x, 4));
        EXPECT_EQ(test::pixelAt(larger, 200, 4), (RgbColour{1, 2, 3}));
        EXPECT_EQ(test::pixelAt(larger, 0, 5), (RgbColour{1, 2, 3}));
        recolour(values, source, source);
        EXPECT_EQ(bytesOf(source), bytesOf(expected));
    }
}

TEST(Recolouring, ValuesBeyondTheSlidersTakeTheLongWay) {
    const cDIBSection source = test::randomBuffer(64, 64, 5);
    for (const ColourValues& values : {ColourValues{0, 900, 0, 0, 0, 0}, ColourValues{0, 0, 0, 0, 0, 400},
                                       ColourValues{-300, 0, 0, 0, 0, 0}, ColourValues{0, 0, 0, 0, -200, 0}})
        EXPECT_EQ(bytesOf(recoloured(values, source)), bytesOf(plainlyRecoloured(values, source)));
}

ErrorCode failureOf(const ColourValues& values, const cDIBSection& source, cDIBSection& destination) {
    try {
        recolour(values, source, destination);
    } catch (const Error& error) {
        return error.code();
    }
    ADD_FAILURE() << "no error";
    return {};
}

TEST(Recolouring, RaisesForBuffersThatDoNotFit) {
    const cDIBSection source = test::filledBuffer(8, 8, {1, 2, 3});
    cDIBSection never, narrow = test::createdBuffer(4, 8), low = test::createdBuffer(8, 7);
    cDIBSection fitting = test::createdBuffer(8, 8);
    for (const float saturation : {0.0f, 37.0f, 250.0f}) {
        const ColourValues values = {saturation, 0, 0, 0, 0, 0};
        EXPECT_EQ(failureOf(values, source, never), ErrorCode::invalidCall);
        EXPECT_EQ(failureOf(values, never, fitting), ErrorCode::invalidCall);
        EXPECT_EQ(failureOf(values, source, narrow), ErrorCode::subscript);
        EXPECT_EQ(failureOf(values, source, low), ErrorCode::subscript);
    }
}

TEST(Recolouring, OverflowLeavesTheColumnsBeforeItWritten) {
    cDIBSection source = test::filledBuffer(3, 2, {0, 0, 0});
    test::setPixel(source, 1, 1, {255, 0, 0});
    cDIBSection destination = test::filledBuffer(3, 2, {9, 9, 9});
    EXPECT_EQ(failureOf({0, 1e10f, 0, 0, 0, 0}, source, destination), ErrorCode::overflow);
    EXPECT_EQ(test::pixelAt(destination, 0, 1), (RgbColour{0, 0, 0}));
    EXPECT_EQ(test::pixelAt(destination, 1, 0), (RgbColour{0, 0, 0}));
    EXPECT_EQ(test::pixelAt(destination, 1, 1), (RgbColour{9, 9, 9}));
    EXPECT_EQ(test::pixelAt(destination, 2, 0), (RgbColour{9, 9, 9}));
    const float notANumber = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(failureOf({0, notANumber, 0, 0, 0, 0}, source, destination), ErrorCode::overflow);
}

} // namespace

} // namespace morvane
