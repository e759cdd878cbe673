#include "core/install_folder.h"

#include "core/attempts.h"
#include "core/file_system.h"
#include "core/literals.h"
#include "core/registry.h"
#include "core/safe_copy.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcessEnvironment>
#include <QStandardPaths>

namespace morvane {

namespace {

QString installedDataFolder() {
    NativeFileSystem files;
    std::unique_ptr<Registry> system = systemRegistry();
    return system ? ownValue(UserRegistry(files, std::move(system)), u"DataFolder"_s) : QString();
}

} // namespace

QString defaultInstallFolder() {
    const QString home = QProcessEnvironment::systemEnvironment().value(u"MORVANE_HOME"_s);
    if (!home.isEmpty()) return home;
    const QString beside = QCoreApplication::applicationDirPath();
    for (const QString& mark : {u"/Morvane.mdb"_s, u"/registry.ini"_s})
        if (QFileInfo::exists(beside + mark)) return beside;
    const QString installed = installedDataFolder();
    return installed.isEmpty() ? userInstallFolder() : installed;
}

QString userInstallFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Morvane"_s;
}

/// A full disk is told of by what is written next.
bool canWriteInto(FileSystem& files, const FilePath& folder) {
    const FilePath trial = folder.exactChild(
        u"writing."_s + QString::number(QCoreApplication::applicationPid()) + partialCopySuffix);
    try {
        files.append(trial, {});
    } catch (const Error& error) {
        return error.code() == ErrorCode::diskFull;
    }
    attempt([&] { files.remove(trial); });
    return true;
}

QString installFolderProblem(FileSystem& files, const FilePath& folder, InstallUse use) {
    if (!files.isFolder(folder))
        return u"The install folder does not exist: "_s + folder.text() +
               u"\nSet MORVANE_HOME to the folder that holds Morvane.mdb."_s;
    if (use == InstallUse::writing && !canWriteInto(files, folder))
        return u"Morvane may not write into its install folder: "_s + folder.text() +
               u"\nMake the folder writable for you, or copy it to a place of your own and set MORVANE_HOME to it."_s;
    return {};
}

} // namespace morvane
