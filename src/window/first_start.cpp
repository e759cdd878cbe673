#include "window/first_start.h"

#include "app/first_install.h"
#include "window/content_tool.h"

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QProgressDialog>

namespace morvane {

bool isThere(const QString& file) {
    if (QFileInfo(file).isFile()) return true;
    QMessageBox::critical(nullptr, u"Morvane"_s, u"There is no file "_s + QDir::toNativeSeparators(file));
    return false;
}

bool makeInstallFolder(const QString& home) {
    bool isCancelled = false;
    const QString problem = fillInstallFolder(home, [&](const QStringList& arguments) {
        QProgressDialog progress(u"Morvane is started for the first time and draws its base images into\n"_s +
                                     QDir::toNativeSeparators(home),
                                 u"Cancel"_s, 0, 100);
        ContentToolRun run = runContentTool(arguments, progress);
        isCancelled = progress.wasCanceled();
        if (isCancelled) run.end = ContentToolRun::End::failed;
        return run;
    });
    if (!problem.isEmpty() && !isCancelled) QMessageBox::critical(nullptr, u"Morvane"_s, problem);
    return problem.isEmpty();
}

} // namespace morvane
