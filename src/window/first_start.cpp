#include "window/first_start.h"

#include "core/literals.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QProgressDialog>
#include <QTemporaryDir>
#include <algorithm>

namespace morvane {

namespace {

/// Runs the tool to its end, or to the user's cancel or the end of the session, by which it is killed.
bool runTool(QProcess& tool, QProgressDialog& progress) {
    QEventLoop loop;
    QObject::connect(&tool, &QProcess::readyReadStandardOutput, &progress, [&] {
        while (tool.canReadLine())
            if (const int percent = tool.readLine().trimmed().toInt())
                progress.setValue(std::min(percent, 99));
    });
    QObject::connect(&tool, &QProcess::finished, &loop, &QEventLoop::quit);
    QObject::connect(&tool, &QProcess::errorOccurred, &loop, &QEventLoop::quit);
    QObject::connect(&progress, &QProgressDialog::canceled, &tool, &QProcess::kill);
    if (progress.wasCanceled()) tool.kill(); // before anybody listened
    if (tool.state() != QProcess::NotRunning) loop.exec();
    if (tool.state() != QProcess::NotRunning) progress.cancel(); // the loop was left before its end
    return tool.error() == QProcess::UnknownError && tool.exitStatus() == QProcess::NormalExit &&
           tool.exitCode() == 0;
}

const QString storeName = u"Morvane.mdb"_s, madeName = u"first start"_s;

/// What one start could not move the next one does.
bool moveUp(const QString& home) {
    QDir made(home + u'/' + madeName), place(home);
    const auto move = [&](const QString& name) {
        return place.exists(name) || made.rename(name, place.filePath(name));
    };
    QStringList names = made.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    names.removeOne(storeName);
    return std::all_of(names.begin(), names.end(), move) && move(storeName) && made.removeRecursively();
}

} // namespace

bool awaitsFirstStart(const QString& home) {
    const QDir place(home);
    return !place.exists(storeName) && (!place.exists(u"Media"_s) || place.exists(madeName));
}

bool makeInstallFolder(const QString& home) {
    if (QDir(home).exists(madeName)) return moveUp(home);
    QDir().mkpath(home);
    QTemporaryDir folder(home + u"/first start.XXXXXX"_s);
    QProgressDialog progress(u"Morvane is started for the first time and draws its base images into\n"_s +
                                 QDir::toNativeSeparators(home),
                             u"Cancel"_s, 0, 100);
    progress.setWindowTitle(u"Morvane"_s);
    progress.setMinimumDuration(0);
    progress.setAutoClose(false);
    progress.setValue(0);
    QProcess tool;
    tool.start(QCoreApplication::applicationDirPath() + u"/morvane-content"_s,
               {u"--home"_s, folder.path(), u"--progress"_s});
    const bool isMade = runTool(tool, progress);
    if (isMade && !progress.wasCanceled() &&
        QDir(home).rename(QFileInfo(folder.path()).fileName(), madeName) && moveUp(home)) {
        folder.setAutoRemove(false);
        return true;
    }
    tool.kill(); // one that still draws would leave something behind
    tool.waitForFinished();
    folder.remove();
    QDir().rmdir(home); // where nothing else is in it
    if (progress.wasCanceled()) return false;
    progress.hide();
    const bool hasStarted = tool.error() == QProcess::UnknownError;
    const QString cause =
        hasStarted ? QString::fromLocal8Bit(tool.readAllStandardError()) : tool.errorString();
    QMessageBox::critical(nullptr, u"Morvane"_s,
                          u"The install folder could not be made: "_s + QDir::toNativeSeparators(home) +
                              u'\n' + cause.trimmed());
    return false;
}

} // namespace morvane
