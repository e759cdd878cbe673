#include "window/content_tool.h"

#include <QEventLoop>
#include <QProcess>
#include <QProgressDialog>
#include <algorithm>

namespace morvane {

namespace {

void waitForEnd(QProcess& tool, QProgressDialog& progress) {
    QEventLoop loop;
    QObject::connect(&tool, &QProcess::readyReadStandardOutput, &progress, [&] {
        if (const int percent = printedPercent(tool)) progress.setValue(std::min(percent, 99));
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
    startContentTool(tool, arguments);
    waitForEnd(tool, progress);
    return endOfContentTool(tool);
}

} // namespace morvane
