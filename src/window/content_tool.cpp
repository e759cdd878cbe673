#include "window/content_tool.h"

#include "core/literals.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProcess>
#include <QProgressDialog>
#include <algorithm>

namespace morvane {

namespace {

constexpr int otherWriterStatus = 3;

void waitForEnd(QProcess& tool, QProgressDialog& progress) {
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
}

} // namespace

ContentToolRun runContentTool(const QStringList& arguments, QProgressDialog& progress) {
    progress.setWindowTitle(u"Morvane"_s);
    progress.setMinimumDuration(0);
    progress.setAutoClose(false);
    progress.setValue(0);
    QProcess tool;
    tool.start(QCoreApplication::applicationDirPath() + u"/morvane-content"_s,
               arguments + QStringList(u"--progress"_s));
    waitForEnd(tool, progress);
    tool.kill(); // one that still draws would leave something behind
    tool.waitForFinished();
    using End = ContentToolRun::End;
    if (tool.error() != QProcess::UnknownError) return {End::failed, tool.errorString()};
    // The toolkit may have written before it.
    const QString said = QString::fromLocal8Bit(tool.readAllStandardError());
    const QString cause = said.section(u"morvane-content: "_s, -1).trimmed();
    if (tool.exitStatus() != QProcess::NormalExit) return {End::failed, cause};
    if (tool.exitCode() == otherWriterStatus) return {End::otherWriter, cause};
    return {tool.exitCode() == 0 ? End::done : End::failed, cause};
}

} // namespace morvane
