#include "cli/console_user.h"

#include "cli/terminal.h"

namespace morvane {

namespace {

constexpr int paintEveryMilliseconds = 33;

void print(const QString& text) {
    writeStandardError(text);
}

} // namespace

ConsoleUser::ConsoleUser(const Settings& settings)
    : settings_(settings), canChooseFolder_(settings.policy == AnswerPolicy::ask && isTerminal()) {
    catchInterrupts();
    lastPaint_.start();
}

void ConsoleUser::endProgressLine() {
    if (progressLineOpen_) print(u"\n"_s);
    progressLineOpen_ = false;
}

void ConsoleUser::showMessage(const Message& message) {
    endProgressLine();
    const bool harmless = message.kind == MessageKind::information || message.kind == MessageKind::question ||
                          message.kind == MessageKind::progress;
    failed_ = failed_ || !harmless;
    progressVisible_ = message.isProgress;
    progressTitle_ = message.title;
    progressFile_.clear();
    print(kindWord(message.kind) + u": "_s + message.title + u"\n  "_s +
          QString(message.text).replace(u"\n"_s, u"\n  "_s) + u'\n');
    if (!message.isProgress && message.withCancel) answers().answer(answerOfPending());
}

void ConsoleUser::updateProgress(const QString& title, const QString&, double value) {
    if (!title.isEmpty()) progressTitle_ = title;
    pumpMessages();
    if (!isErrorTerminal() || (lastPaint_.elapsed() < paintEveryMilliseconds && value < 100)) return;
    lastPaint_.restart();
    print(u"\r  %1%  %2 \x1b[K"_s.arg(static_cast<int>(value), 3).arg(progressFile_));
    progressLineOpen_ = true;
}

void ConsoleUser::hideMessage() {
    endProgressLine();
    progressVisible_ = false;
}

void ConsoleUser::tellDone(const DoneLine& line) {
    endProgressLine();
    print(line.text + (line.remark.isEmpty() ? QString() : u" ("_s + line.remark + u')') + u'\n');
}

bool ConsoleUser::allowsRun(const RunSize& run) {
    if (run.fits()) return true;
    failed_ = true;
    print(run.refusal() + u'\n');
    return false;
}

bool ConsoleUser::answerOf(const QString& question) {
    if (settings_.policy != AnswerPolicy::ask) return settings_.policy == AnswerPolicy::yes;
    print(u"  "_s + question + (settings_.enterMeansYes ? u"? [Y/n] "_s : u"? [y/N] "_s));
    const std::optional<QString> line = readLine();
    if (!line) return false;
    const QString answer = line->trimmed().toLower();
    return answer.isEmpty() ? settings_.enterMeansYes : answer.startsWith(u'y');
}

bool ConsoleUser::answerOfPending() {
    for (const auto& [question, answer] : settings_.settled)
        if (answers().isPending(question)) return answer;
    return answerOf(u"OK"_s);
}

bool ConsoleUser::systemBox(const QString& text, const QString& title, SystemBoxButtons buttons) {
    endProgressLine();
    print((title.isEmpty() ? QString() : title + u": "_s) + text + u'\n');
    if (buttons == SystemBoxButtons::ok) {
        failed_ = true;
        return true;
    }
    // "Try again" makes no sense, and would never end, where nobody can choose.
    return canChooseFolder_ && answerOf(u"Yes"_s);
}

QString ConsoleUser::browseForFolder(const QString&) {
    if (!canChooseFolder_) return {};
    print(u"Please select a folder... "_s);
    return readLine().value_or(QString()).trimmed();
}

void ConsoleUser::pumpMessages() {
    if (wasInterrupted()) answers().cancelRequested = true;
}

} // namespace morvane
