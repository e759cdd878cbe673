#include "app/content_process.h"

#include <QCoreApplication>
#include <QProcess>

namespace morvane {

namespace {

constexpr int otherWriterStatus = 3;

} // namespace

void startContentTool(QProcess& tool, const QStringList& arguments) {
    tool.start(QCoreApplication::applicationDirPath() + u"/morvane-content"_s,
               arguments + QStringList(u"--progress"_s));
}

int printedPercent(QProcess& tool) {
    int percent = 0;
    while (tool.canReadLine())
        if (const int printed = tool.readLine().trimmed().toInt()) percent = printed;
    return percent;
}

ContentToolRun endOfContentTool(QProcess& tool) {
    using End = ContentToolRun::End;
    tool.kill();
    tool.waitForFinished();
    if (tool.error() != QProcess::UnknownError) return {End::failed, tool.errorString()};
    // The toolkit may have written before it.
    const QString said = QString::fromLocal8Bit(tool.readAllStandardError());
    const QString cause = said.section(u"morvane-content: "_s, -1).trimmed();
    if (tool.exitStatus() != QProcess::NormalExit) return {End::failed, cause};
    if (tool.exitCode() == otherWriterStatus) return {End::otherWriter, cause};
    return {tool.exitCode() == 0 ? End::done : End::failed, cause};
}

} // namespace morvane
