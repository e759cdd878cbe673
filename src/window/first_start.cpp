#include "window/first_start.h"

#include "app/first_values.h"
#include "core/install_folder.h"
#include "core/registry.h"
#include "window/content_tool.h"

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QProgressDialog>
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

bool refuse(const QString& cause) {
    QMessageBox::critical(nullptr, u"Morvane"_s, cause);
    return false;
}

} // namespace

bool awaitsFirstStart(const QString& home) {
    const QDir place(home);
    return !place.exists(storeName) && (!place.exists(u"Media"_s) || place.exists(madeName));
}

bool makeInstallFolder(const QString& home) {
    if (QDir(home).exists(madeName)) return moveUp(home);
    const QString failed = u"The install folder could not be made: "_s + QDir::toNativeSeparators(home);
    if (!QDir().mkpath(home)) return refuse(failed);
    NativeFileSystem files;
    const FilePath place(QFileInfo(home).absoluteFilePath());
    if (const QString problem = installFolderProblem(files, place); !problem.isEmpty())
        return refuse(problem);
    QTemporaryDir folder(home + u"/first start.XXXXXX"_s);
    QProgressDialog progress(u"Morvane is started for the first time and draws its base images into\n"_s +
                                 QDir::toNativeSeparators(home),
                             u"Cancel"_s, 0, 100);
    const ContentToolRun run = runContentTool({u"--home"_s, folder.path()}, progress);
    if (run.end == ContentToolRun::End::done && !progress.wasCanceled() &&
        QDir(home).rename(QFileInfo(folder.path()).fileName(), madeName) && moveUp(home)) {
        folder.setAutoRemove(false);
        return true;
    }
    folder.remove();
    QDir().rmdir(home); // where nothing else is in it
    if (progress.wasCanceled()) return false;
    progress.hide();
    return refuse(failed + u'\n' + run.cause);
}

} // namespace morvane
