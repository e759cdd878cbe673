#include "cli/commands.h"
#include "cli/terminal.h"
#include "core/install_folder.h"
#include "core/registry.h"
#include "core/writing.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace morvane;

namespace {

struct Arguments {
    QString home = defaultInstallFolder();
    AnswerPolicy policy = isTerminal() ? AnswerPolicy::ask : AnswerPolicy::no;
    QStringList words;
    bool isUnattended = false; ///< all answers were given beforehand
};

std::optional<AnswerPolicy> policyOf(const QString& word) {
    if (word == u"yes") return AnswerPolicy::yes;
    if (word == u"no") return AnswerPolicy::no;
    if (word == u"ask") return AnswerPolicy::ask;
    return std::nullopt;
}

/// Options stand before the command; nothing when one of them is wrong.
std::optional<Arguments> parse(QStringList words) {
    Arguments arguments;
    while (words.size() >= 2 && (words[0] == u"--home" || words[0] == u"--answer")) {
        const auto policy = policyOf(words[1]);
        if (words[0] == u"--home") {
            arguments.home = words[1];
        } else if (policy) {
            arguments.policy = *policy;
            arguments.isUnattended = *policy != AnswerPolicy::ask;
        } else {
            return std::nullopt;
        }
        words.remove(0, 2);
    }
    arguments.words = words;
    return arguments;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    const auto arguments = parse(QCoreApplication::arguments().mid(1));
    int status = exitWrongUsage;
    if (arguments) {
        NativeFileSystem files;
        SystemClock clock;
        ReseedingRandomSource random;
        ConsoleUser user({arguments->policy, false});
        const FilePath home(QFileInfo(arguments->home).absoluteFilePath());
        const auto registry = openRegistry(files, home);
        Session session({user, files, clock, random, *registry}, home);
        if (arguments->isUnattended) session.writing->beUnattended();
        status = runCommand(arguments->words, session, user);
    }
    if (status == exitWrongUsage) writeStandardError(usageText());
    return status;
}
