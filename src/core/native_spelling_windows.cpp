#include "core/native_spelling.h"

#include <QDir>

namespace morvane {

QString spelledAsOnDisk(const QString& root, const QStringList& names) {
    return withSeparator(root) + names.join(u'/');
}

std::optional<QStringList> namesOfFiles(const QString& folder) {
    const QDir directory(folder);
    if (!directory.exists()) return QStringList();
    if (!directory.isReadable()) return std::nullopt;
    return directory.entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Unsorted);
}

int countNamelessFiles(const QString&, const QString&) {
    return 0;
}

} // namespace morvane
