#include "core/native_spelling.h"

namespace morvane {

QString spelledAsOnDisk(const QString& root, const QStringList& names) {
    return withSeparator(root) + names.join(u'/');
}

int countNamelessFiles(const QString&, const QString&) {
    return 0;
}

} // namespace morvane
