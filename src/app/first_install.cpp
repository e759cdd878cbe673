#include "app/first_install.h"

#include "app/first_values.h"
#include "core/install_folder.h"
#include "core/registry.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>

namespace morvane {

namespace {

const QString storeName = u"Morvane.mdb"_s, madeName = u"first start"_s;

/// What one start could not move the next one does. The tool's registry file stays behind: where the values
/// belong is settled by the folder that they are for.
bool moveUp(const QString& home) {
    QDir made(home + u'/' + madeName), place(home);
    const auto move = [&](const QString& name) {
        return place.exists(name) || made.rename(name, place.filePath(name));
    };
    QStringList names = made.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    names.removeOne(storeName);
    names.removeOne(u"registry.ini"_s);
    if (!std::all_of(names.begin(), names.end(), move)) return false;
    NativeFileSystem files;
    writeFirstValues(*openRegistry(files, FilePath(QFileInfo(home).absoluteFilePath())));
    return move(storeName) && made.removeRecursively();
}

} // namespace

bool awaitsFirstStart(const QString& home) {
    const QDir place(home);
    return !place.exists(storeName) && (!place.exists(u"Media"_s) || place.exists(madeName));
}

QString fillInstallFolder(const QString& home,
                          const std::function<ContentToolRun(const QStringList& arguments)>& runTool) {
    const QString failed = u"The install folder could not be made: "_s + QDir::toNativeSeparators(home);
    if (QDir(home).exists(madeName)) return moveUp(home) ? QString() : failed;
    if (!QDir().mkpath(home)) return failed;
    NativeFileSystem files;
    const FilePath place(QFileInfo(home).absoluteFilePath());
    if (const QString problem = installFolderProblem(files, place); !problem.isEmpty()) return problem;
    QTemporaryDir folder(home + u"/first start.XXXXXX"_s);
    const ContentToolRun run = runTool({u"--home"_s, folder.path()});
    if (run.end == ContentToolRun::End::done &&
        QDir(home).rename(QFileInfo(folder.path()).fileName(), madeName) && moveUp(home)) {
        folder.setAutoRemove(false);
        return {};
    }
    folder.remove();
    QDir().rmdir(home); // where nothing else is in it
    return failed + u'\n' + run.cause;
}

} // namespace morvane
