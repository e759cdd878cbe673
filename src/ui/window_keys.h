#pragma once

#include "ui/form.h"

#include <vector>

namespace morvane {

/// The medium keys of the main window and of the list windows, with "exit" and "minimize".
std::vector<ButtonSetup> mainWindowKeys();
/// `imageOfColour` and the two colour texts differ between ground, sky and night.
struct HostKeys {
    QString setsKey;   ///< "texture sets"
    QString colourKey; ///< "ground"
    QString colourPicture;
    QString minimiseTip;
};
std::vector<ButtonSetup> hostWindowKeys(const HostKeys& host);

/// Sets every medium key of the window to "enabled" and the one of that key to "disabled", which is how the
/// current page is marked.
void markWindowKey(QWidget& window, const QString& key);

} // namespace morvane
