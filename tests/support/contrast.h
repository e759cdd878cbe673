#pragma once

#include <QHash>
#include <QImage>
#include <algorithm>
#include <cmath>

namespace morvane::test {

/// As WCAG 2 has it.
inline double luminance(QRgb colour) {
    const auto linear = [](int part) {
        const double share = part / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

/// 1 to 21.
inline double contrast(QRgb one, QRgb other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

/// The colour that most pixels have.
inline QRgb commonest(const QImage& picture) {
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    QRgb found = 0;
    for (auto colour = counts.cbegin(); colour != counts.cend(); ++colour)
        if (colour.value() > counts.value(found)) found = colour.key();
    return found;
}

/// The least and the most of the picture's pixels against that colour, the key colour left out.
inline std::pair<double, double> contrasts(const QImage& picture, QRgb other) {
    std::pair<double, double> found{21, 1};
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) == qRgb(255, 0, 255)) continue;
            const double each = contrast(picture.pixel(x, y), other);
            found = {std::min(found.first, each), std::max(found.second, each)};
        }
    return found;
}

} // namespace morvane::test
