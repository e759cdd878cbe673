#include "cli/console_user.h"

#include "cli/terminal.h"

#include <algorithm>

namespace morvane {

namespace {

constexpr int paintEveryMilliseconds = 33;

void print(const QString& text) {
    writeStandardError(text);
}

/// A No to one of these leaves nothing of the command; the other questions are about something beside it.
bool isWholeCommand(const UserAnswers& asked) {
    static constexpr Question deciding[] = {
        Question::setAction, Question::confirmDelete, Question::skyAction, Question::installMatchingSets,
        Question::backup,    Question::undoInstall,   Question::takeOver,  Question::replaceFile};
    return std::ranges::any_of(deciding, [&](Question question) { return asked.isPending(question); });
}

} // namespace

ConsoleUser::ConsoleUser(const Settings& settings)
    : settings_(settings), canChooseFolder_(isAsked() && isTerminal()) {
    catchInterrupts();
    lastPaint_.start();
}

void ConsoleUser::noteFailure(const QString& text) {
    failure_ = text;
    failedBefore_ = failed_;
    failed_ = true;
}

void ConsoleUser::endProgressLine() {
    if (progressLineOpen_) print(u"\n"_s);
    progressLineOpen_ = false;
}

void ConsoleUser::showMessage(const Message& message) {
    noteShown(message);
    endProgressLine();
    const bool harmless = message.kind == MessageKind::information || message.kind == MessageKind::question ||
                          message.kind == MessageKind::progress;
    if (!harmless) noteFailure(message.text);
    progressVisible_ = message.isProgress;
    progressTitle_ = message.title;
    progressFile_.clear();
    print(kindWord(message.kind) + u": "_s + message.title + u"\n  "_s +
          QString(message.text).replace(u"\n"_s, u"\n  "_s) + u'\n');
    if (!message.isProgress && message.withCancel && answers().isPending()) answerPending();
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
    noteShown(line);
    endProgressLine();
    print(line.text + (line.remark.isEmpty() ? QString() : u" ("_s + line.remark + u')') + u'\n');
}

bool ConsoleUser::allowsRun(const RunSize& run) {
    if (run.fits()) return true;
    failed_ = true;
    noteShown(u"Refused"_s, {}, run.refusal());
    print(run.refusal() + u"; 'morvane-cli space' tells what takes the room\n"_s);
    return false;
}

/// Nothing at the end of input.
std::optional<QString> ConsoleUser::typedLine() {
    std::optional<QString> line = readLine();
    if (!line && wasInterrupted()) {
        print(u"\n"_s);
        throw RoadEnded{};
    }
    return line;
}

QString ConsoleUser::askText(const QString& prompt) {
    print(prompt);
    return typedLine().value_or(QString()).trimmed();
}

/// Nothing when nobody answers.
std::optional<bool> ConsoleUser::answerOf(const QString& question) {
    if (settings_.policy == AnswerPolicy::nobody) return std::nullopt;
    if (settings_.policy != AnswerPolicy::ask) {
        const bool isYes = settings_.policy == AnswerPolicy::yes;
        print(isYes ? u"  Yes\n"_s : u"  No\n"_s);
        return isYes;
    }
    print(u"  "_s + question + (settings_.enterMeansYes ? u"? [Y/n] "_s : u"? [y/N] "_s));
    const std::optional<QString> line = typedLine();
    if (!line) return std::nullopt;
    const QString answer = line->trimmed().toLower();
    return answer.isEmpty() ? settings_.enterMeansYes : answer.startsWith(u'y');
}

/// Nothing when nobody answers, and for what only a person knows: a script's yes must not turn the install
/// into a client.
std::optional<bool> ConsoleUser::answerOfPending() {
    for (const auto& [question, answer] : settings_.settled)
        if (answers().isPending(question)) return answer;
    if (answers().isPending(Question::wideClient) && !isAsked()) return std::nullopt;
    return answerOf(u"OK"_s);
}

void ConsoleUser::endWhereInterrupted() {
    pumpMessages();
    if (isInterrupted_) throw RoadEnded{};
}

void ConsoleUser::answerPending() {
    endWhereInterrupted();
    const std::optional<bool> answer = answerOfPending();
    const bool isPersonal = answers().isPending(Question::wideClient);
    if (!answer) {
        print(isPersonal ? u"  No; use option set widefs on, or off\n"_s : u"  No; use --answer yes\n"_s);
        wasLeftOpen_ = wasLeftOpen_ || isWholeCommand(answers());
    }
    // A question for a person stays open, so that the next one who is asked can say it.
    if (answer || !isPersonal) answers().answer(answer.value_or(false));
}

bool ConsoleUser::systemBox(const QString& text, const QString& title, SystemBoxButtons buttons) {
    noteShown(u"Box"_s, title, text);
    endProgressLine();
    print((title.isEmpty() ? QString() : title + u": "_s) + text + u'\n');
    if (buttons == SystemBoxButtons::ok) {
        noteFailure(text);
        return true;
    }
    if (canChooseFolder_) return answerOf(u"Yes"_s).value_or(false);
    print(u"  No\n"_s); // "try again" makes no sense, and would never end, where nobody can choose
    return false;
}

QString ConsoleUser::browseForFolder(const QString&) {
    if (!canChooseFolder_) {
        print(u"  Nobody can choose a folder here; use config set simulator DIR, or flights DIR\n"_s);
        return {};
    }
    const QString typed = askText(u"Please select a folder... "_s);
    if (typed.isEmpty()) return {};
    failed_ = failedBefore_; // what was told last was that a folder is needed
    return fullPath(typed);
}

void ConsoleUser::pumpMessages() {
    if (!wasInterrupted()) return;
    isInterrupted_ = true;
    answers().cancelRequested = true;
}

} // namespace morvane
