#include "core/program_start.h"

#include "core/literals.h"
#include "core/wine_call.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <memory>
#include <unistd.h>
#include <vector>

namespace morvane {

namespace {

const QString drivesFolder = u"/dosdevices"_s;

bool isWindowsProgram(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(2) == "MZ";
}

/// The prefix that the runner uses by itself.
QString usualPrefix() {
    return qEnvironmentVariable("WINEPREFIX", QDir::homePath() + u"/.wine"_s);
}

bool isBelow(const QString& path, const QString& folder) {
    return folder == u"/" || path == folder || path.startsWith(folder + u'/');
}

/// On its own: it outlives us, keeps no terminal or pipe of ours open, and hears no Ctrl-C.
void prepare(QProcess& process, const ProgramCall& call) {
    process.setProgram(call.program);
    process.setArguments(call.arguments);
    process.setWorkingDirectory(call.workingFolder);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setChildProcessModifier([] { setsid(); });
    if (call.winePrefix.isEmpty()) return;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"WINEPREFIX"_s, call.winePrefix);
    process.setProcessEnvironment(environment);
}

} // namespace

QString prefixAbove(const QString& file) {
    for (QDir folder = QFileInfo(QFileInfo(file).canonicalFilePath()).dir(); !folder.isRoot();) {
        if (QFileInfo(folder.path() + drivesFolder).isDir()) return folder.path();
        if (!folder.cdUp()) break;
    }
    return {};
}

QString wineDocumentPath(const QString& path, const QString& winePrefix) {
    const QString file = QFileInfo(path).canonicalFilePath();
    QString drive = u"Z:"_s, root = u"/"_s;
    const QDir drives(winePrefix + drivesFolder);
    // "?:" is a letter; "c::" beside it is the device itself, and "com1" is a port.
    for (const QString& name : drives.entryList({u"?:"_s}, QDir::AllEntries | QDir::System)) {
        const QString reached = QFileInfo(drives.filePath(name)).canonicalFilePath();
        if (reached.isEmpty() || reached.size() <= root.size() || !isBelow(file, reached)) continue;
        drive = name.toUpper();
        root = reached;
    }
    const QString below = root == u"/" ? file : file.mid(root.size());
    return drive + QDir::cleanPath(u'/' + below).replace(u'/', u'\\');
}

ProgramCall programCall(const FilePath& program, const FilePath& document, const QString& runner,
                        const QString& winePrefix) {
    const QString path = program.native(), argument = document.isEmpty() ? QString() : document.native();
    ProgramCall call{path, {}, QFileInfo(path).path(), {}};
    QStringList words = QProcess::splitCommand(runner);
    if (words.isEmpty() || !isWindowsProgram(path)) {
        if (!argument.isEmpty()) call.arguments << argument;
        return call;
    }
    // A simulator in a prefix of its own is started in that one, whichever the session's usual one is.
    call.winePrefix = prefixAbove(path);
    if (call.winePrefix.isEmpty()) call.winePrefix = winePrefix;
    const QString& prefix = call.winePrefix.isEmpty() ? usualPrefix() : call.winePrefix;
    call.program = words.takeFirst();
    call.arguments = words << path;
    if (!argument.isEmpty()) call.arguments << wineDocumentPath(argument, prefix);
    return call;
}

bool lacksRunner(const FilePath& program, const QString& runner) {
    return QProcess::splitCommand(runner).isEmpty() && isWindowsProgram(program.native());
}

bool startProgram(const FilePath& program, const FilePath& document, const QString& runner,
                  const QString& winePrefix) {
    constexpr int firstMoments = 2000; // milliseconds
    auto process = std::make_unique<QProcess>();
    prepare(*process, programCall(program, document, runner, winePrefix));
    process->start();
    if (!process->waitForStarted()) return false;
    if (process->waitForFinished(firstMoments))
        return process->exitStatus() == QProcess::NormalExit && process->exitCode() == 0;
    // The object would take the program along, so it stays longer than anything of ours.
    static auto& started = *new std::vector<std::unique_ptr<QProcess>>;
    started.push_back(std::move(process));
    return true;
}

} // namespace morvane
