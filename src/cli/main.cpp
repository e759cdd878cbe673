#include "app/first_install.h"
#include "cli/command_line.h"
#include "cli/native_terminal.h"
#include "cli/terminal.h"
#include "core/install_folder.h"
#include "core/registry.h"
#include "core/writing.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <memory>
#include <optional>

using namespace morvane;

namespace {

AnswerPolicy policyOf(const QString& word) {
    if (word == u"yes") return AnswerPolicy::yes;
    if (word == u"no") return AnswerPolicy::no;
    return word == u"ask" || isTerminal() ? AnswerPolicy::ask : AnswerPolicy::nobody;
}

bool isAnsweredBeforehand(AnswerPolicy policy) {
    return policy == AnswerPolicy::yes || policy == AnswerPolicy::no;
}

/// False after the message of what went wrong.
bool fillInstall(const QString& home) {
    writeStandardError(u"The install folder is made in "_s + QDir::toNativeSeparators(home) + u"\n"_s);
    const QString problem = fillInstallFolder(home, [](const QStringList& arguments) {
        QProcess tool;
        startContentTool(tool, arguments);
        tool.waitForFinished(-1);
        return endOfContentTool(tool);
    });
    if (!problem.isEmpty()) writeStandardError(u"morvane-cli: "_s + problem + u'\n');
    return problem.isEmpty();
}

int run(const CommandLine& line) {
    NativeFileSystem files;
    SystemClock clock;
    ReseedingRandomSource random;
    const AnswerPolicy policy = policyOf(line.options.value(u"--answer"_s));
    ConsoleUser user({policy, false});
    const QString home = line.options.value(u"--home"_s, defaultInstallFolder());
    if (line.command->makesInstall && awaitsFirstStart(home) && !fillInstall(home)) return exitFailed;
    const FilePath folder(QFileInfo(home).absoluteFilePath());
    const bool isNamed = line.options.contains(u"--home"_s);
    const auto registry = openRegistry(files, folder, isNamed ? FolderChoice::named : FolderChoice::usual);
    Session session({user, files, clock, random, *registry}, folder);
    if (isAnsweredBeforehand(policy)) session.writing->beUnattended();
    return runCommand(*line.command, {session, user, line.operands, line.options});
}

int runLine(const QStringList& words) {
    const CommandLine line = readCommandLine(words);
    if (line.command) return run(line);
    writeStandardOutput(line.output);
    if (line.slip.isEmpty()) return exitDone;
    writeStandardError(u"morvane-cli: "_s + line.slip + u'\n');
    return exitWrongUsage;
}

/// A command that draws words, by a look at what was typed: the words are taken apart only later.
bool drawsWords(int argc, char** argv) {
    return std::any_of(argv, argv + argc, [](const char* word) { return QByteArrayView(word) == "sheet"; });
}

/// Words are drawn without a display; all other commands do without what that takes. Qt asks for the folder
/// of a user's session in any case, and complains where there is none.
std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv,
                                                  std::optional<QTemporaryDir>& runFolder) {
    if (!drawsWords(argc, argv)) return std::make_unique<QCoreApplication>(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", runFolder.emplace().path().toLocal8Bit());
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace

int main(int argc, char** argv) {
    keepFreedMemory();
    std::optional<QTemporaryDir> runFolder;
    const auto application = makeApplication(argc, argv, runFolder);
    leaveBytesAlone();
    const int status = runLine(QCoreApplication::arguments().mid(1));
    if (isOutputWhole()) return status;
    writeStandardError(u"morvane-cli: what was printed could not be written in full\n"_s);
    return std::max(status, exitFailed);
}
