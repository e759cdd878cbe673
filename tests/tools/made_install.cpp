#include "made_install.h"

#include "app/start_up.h"
#include "core/store_connection.h"

#include <QProcess>
#include <stdexcept>

namespace morvane::test {

std::unique_ptr<TemporaryFolder> MadeInstall::folder_;

ToolRun runContentTool(const FilePath& home, const FilePath& simulator, const QStringList& options) {
    QProcess tool;
    tool.start(QStringLiteral(MORVANE_BIN_DIR "/morvane-content"),
               QStringList{u"--home"_s, home.native(), u"--simulator"_s, simulator.native()} + options);
    tool.waitForFinished(-1);
    const bool hasExited =
        tool.exitStatus() == QProcess::NormalExit && tool.error() == QProcess::UnknownError;
    return {hasExited ? tool.exitCode() : -1, QString::fromUtf8(tool.readAllStandardError())};
}

void MadeInstall::SetUpTestSuite() {
    if (folder_) return; // another suite has made it
    folder_ = std::make_unique<TemporaryFolder>();
    const ToolRun run = runContentTool(home(), simulator());
    if (run.status != 0) throw std::runtime_error("no install: " + run.errors.toStdString());
}

StartedInstall::StartedInstall() : hasStarted(startUp(session)) {}

StartedInstall::~StartedInstall() {
    closeDatabase(session);
}

} // namespace morvane::test
