#include "support/scripted_user.h"

#include <algorithm>
#include <utility>

namespace morvane::test {

bool ScriptedUser::nextAnswer() {
    if (answersToGive.empty()) return otherwise;
    const bool answer = answersToGive.front();
    answersToGive.pop_front();
    return answer;
}

void ScriptedUser::showMessage(const Message& message) {
    messages.push_back(message);
    calls << u"message "_s + kindWord(message.kind) + u' ' + message.title;
    messageVisible_ = message.isProgress;
    if (message.isProgress || !message.withCancel) return;
    std::exchange(onQuestion, [] {})();
    answers().answer(nextAnswer());
}

void ScriptedUser::updateProgress(const QString&, const QString& text, double value) {
    calls << u"progress "_s + QString::number(value) + (text.isEmpty() ? text : u' ' + text);
    pumpMessages();
}

void ScriptedUser::hideMessage() {
    calls << u"hide message"_s;
    onHide();
    messageVisible_ = false;
}

bool ScriptedUser::systemBox(const QString& text, const QString&, SystemBoxButtons buttons) {
    calls << u"box "_s + text;
    return buttons == SystemBoxButtons::ok || nextAnswer();
}

QString ScriptedUser::browseForFolder(const QString&) {
    calls << u"browse"_s;
    if (foldersToChoose.empty()) return {};
    const QString folder = foldersToChoose.front();
    foldersToChoose.pop_front();
    return folder;
}

void ScriptedUser::showModal(Screen screen) {
    calls << u"modal "_s + screenName(screen);
    onModal(screen);
}

QStringList ScriptedUser::told() const {
    QStringList lines;
    for (const Message& message : messages)
        if (message.kind != MessageKind::progress)
            lines << kindWord(message.kind) + u'|' + message.title + u'|' + message.text;
    return lines;
}

int ScriptedUser::countOfKind(MessageKind kind) const {
    return static_cast<int>(
        std::count_if(messages.begin(), messages.end(), [kind](const Message& m) { return m.kind == kind; }));
}

} // namespace morvane::test
