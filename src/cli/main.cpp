#include "cli/command_line.h"
#include "cli/native_terminal.h"
#include "cli/terminal.h"
#include "core/install_folder.h"
#include "core/registry.h"
#include "core/writing.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <algorithm>

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

int run(const CommandLine& line) {
    NativeFileSystem files;
    SystemClock clock;
    ReseedingRandomSource random;
    const AnswerPolicy policy = policyOf(line.options.value(u"--answer"_s));
    ConsoleUser user({policy, false});
    const QString home = line.options.value(u"--home"_s, defaultInstallFolder());
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

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    leaveBytesAlone();
    const int status = runLine(QCoreApplication::arguments().mid(1));
    if (isOutputWhole()) return status;
    writeStandardError(u"morvane-cli: what was printed could not be written in full\n"_s);
    return std::max(status, exitFailed);
}
