#pragma once

#include <QString>

namespace morvane {

/// u"text"_s is a QString, built at compile time.
using namespace Qt::Literals::StringLiterals;

} // namespace morvane
