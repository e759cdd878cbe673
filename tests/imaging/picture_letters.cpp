#include "imaging/picture_letters.h"

namespace morvane::test {

namespace {

char letterOf(const std::array<int, 3>& pixel) {
    const std::pair<char, std::array<int, 3>> letters[] = {
        {'r', {255, 0, 0}},   {'g', {0, 255, 0}},     {'b', {0, 0, 255}},
        {'y', {255, 255, 0}}, {'w', {255, 255, 255}}, {'k', {0, 0, 0}},
    };
    for (const auto& [letter, colour] : letters)
        if (colour == pixel) return letter;
    return '?';
}

} // namespace

std::array<int, 3> pixelAt(const Picture& picture, int x, int y) {
    const std::uint8_t* pixel = picture.rows.data() + bytesPerRow(picture.width) * y + 3 * x;
    return {pixel[2], pixel[1], pixel[0]};
}

std::string lettersOf(const Picture& picture) {
    std::string letters;
    for (int y = picture.height - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width; ++x)
            letters += letterOf(pixelAt(picture, x, y));
        if (y > 0) letters += '/';
    }
    return letters;
}

} // namespace morvane::test
