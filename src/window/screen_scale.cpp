#include "window/screen_scale.h"

#include "ui/shaped_form.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cmath>
#include <vector>

namespace morvane {

namespace {

constexpr char scaleVariable[] = "QT_SCALE_FACTOR";

/// What the user multiplies the screen's own scale by.
double userFactor() {
    bool isNumber = false;
    const double factor = qgetenv(scaleVariable).toDouble(&isNumber);
    return isNumber && factor > 0 ? factor : 1;
}

} // namespace

double fittingScale(const QSize& room, double chosen) {
    const QSize& window = mainLook.size;
    const double share = std::min(static_cast<double>(room.width()) / window.width(),
                                  static_cast<double>(room.height()) / window.height());
    if (share >= 1 || chosen <= 1) return chosen;
    return std::max(std::floor(chosen * share * 100) / 100, 1.0);
}

/// Only an application knows of screens: one for a moment asks, with words of its own, as it takes those out
/// that it knows.
void fitScaleToScreen(int argc, char** argv) {
    std::vector<char*> words(argv, argv + argc);
    words.push_back(nullptr);
    const QGuiApplication inquiry(argc, words.data());
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double chosen = screen->devicePixelRatio();
    const double fitting = fittingScale(screen->availableSize(), chosen);
    if (fitting < chosen) qputenv(scaleVariable, QByteArray::number(userFactor() * fitting / chosen));
}

} // namespace morvane
