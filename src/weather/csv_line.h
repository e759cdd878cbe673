#pragma once

#include <QStringView>
#include <vector>

namespace morvane {

/// The fields of one line of a table whose fields are parted by commas, as they stand there. A comma between
/// double quotes parts nothing; a quote that is left open ends with the line, so that it costs no other.
/// Beyond 500 fields the rest is one.
std::vector<QStringView> csvFields(QStringView line);

/// What a field says: without the quotes round it, and with one quote for each two inside.
QString csvText(QStringView field);

} // namespace morvane
