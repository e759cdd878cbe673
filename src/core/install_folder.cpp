#include "core/install_folder.h"

#include "core/file_system.h"
#include "core/literals.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcessEnvironment>
#include <QStandardPaths>

namespace morvane {

QString defaultInstallFolder() {
    const QString home = QProcessEnvironment::systemEnvironment().value(u"MORVANE_HOME"_s);
    if (!home.isEmpty()) return home;
    const QString beside = QCoreApplication::applicationDirPath();
#ifdef Q_OS_WIN
    return beside;
#else
    if (QFileInfo::exists(beside + u"/Morvane.mdb"_s)) return beside;
    return userInstallFolder();
#endif
}

QString userInstallFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Morvane"_s;
}

QString installFolderProblem(FileSystem& files, const FilePath& folder) {
    if (!files.isFolder(folder))
        return u"The install folder does not exist: "_s + folder.text() +
               u"\nSet MORVANE_HOME to the folder that holds Morvane.mdb."_s;
    if (!QFileInfo(folder.native()).isWritable())
        return u"Morvane may not write into its install folder: "_s + folder.text() +
               u"\nMake the folder writable for you, or copy it to a place of your own and set MORVANE_HOME to it."_s;
    return {};
}

} // namespace morvane
