#pragma once

#include <QByteArray>

namespace morvane::skin {

/// The help page that opens where there is no compiled help file: one HTML file that needs no other, UTF-8.
QByteArray helpPage();

} // namespace morvane::skin
