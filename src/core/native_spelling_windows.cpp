#include "core/native_spelling.h"

namespace morvane {

QString spelledAsOnDisk(const QString& root, const QStringList& names) {
    return withSeparator(root) + names.join(u'/');
}

} // namespace morvane
