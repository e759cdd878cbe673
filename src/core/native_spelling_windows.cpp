#include "core/native_spelling.h"

#include <QDir>

namespace morvane {

QString spelledAsOnDisk(const QString& root, const QStringList& names) {
    return withSeparator(root) + names.join(u'/');
}

bool tellNamesOfFiles(const QString& folder, const std::function<void(QStringView)>& tell) {
    const QDir directory(folder);
    if (!directory.exists()) return true;
    if (!directory.isReadable()) return false;
    for (const QString& name : directory.entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Unsorted))
        tell(name);
    return true;
}

int countNamelessFiles(const QString&, const QString&) {
    return 0;
}

} // namespace morvane
