#pragma once

#include <QString>

namespace morvane {

/// A report as it is stored: up to its pressure group, so without trend and remarks. The group is a token of
/// five characters, "Q" or "A" in either case and four digits. A report without one comes back whole, with a
/// blank behind it; an empty one stays empty.
QString trimMetarString(const QString& report);

} // namespace morvane
