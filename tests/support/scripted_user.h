#pragma once

#include "core/user_interface.h"

#include <QStringList>
#include <deque>
#include <functional>
#include <vector>

namespace morvane::test {

/// A user made of a script: records every call and gives the answers it was told to give.
class ScriptedUser : public UserInterface {
public:
    void showMessage(const Message& message) override;
    void updateProgress(const QString& title, const QString& text, double value) override;
    void setProgressFile(const QString& line) override { calls << u"file "_s + line; }
    void hideMessage() override;
    void tellDone(const DoneLine& line) override {
        calls << u"done "_s + line.text;
        doneRemark = line.remark;
    }
    bool allowsRun(const RunSize& run) override {
        runs.push_back(run);
        return run.fits() && allowsRuns;
    }
    bool isMessageVisible() const override { return messageVisible_; }
    bool systemBox(const QString& text, const QString& title, SystemBoxButtons buttons) override;
    QString browseForFolder(const QString& startFolder) override;
    void showModal(Screen screen) override;
    void showScreen(Screen screen) override { calls << u"show "_s + screenName(screen); }
    void hideScreen(Screen screen) override { calls << u"hide "_s + screenName(screen); }
    void refreshScreen(Screen screen) override { calls << u"refresh "_s + screenName(screen); }
    void minimiseProgram() override {
        calls << u"minimise"_s;
        onMinimise();
    }
    void pumpMessages() override { onPump(); }

    /// Answers of questions and system boxes, first to last; after the last one `otherwise` is given.
    std::deque<bool> answersToGive;
    bool otherwise = true;
    bool allowsRuns = true;
    std::deque<QString> foldersToChoose;
    std::function<void(Screen)> onModal = [](Screen) {};
    std::function<void()> onPump = [] {};
    std::function<void()> onQuestion = [] {}; ///< once, when the next one is shown
    std::function<void()> onHide = [] {};     ///< a message closes
    std::function<void()> onMinimise = [] {};

    /// What was shown, in order. Calls are lines such as "hide frm_Main", "progress 50", "file Processing
    /// ...".
    std::vector<Message> messages;
    std::vector<RunSize> runs; ///< those that were to start
    QString doneRemark;        ///< of the job that was done last
    QStringList calls;

    /// The messages that ask for attention: every kind but Progress, as "Kind|title|text".
    QStringList told() const;
    int countOfKind(MessageKind kind) const;

private:
    bool nextAnswer();
    bool messageVisible_ = false;
};

} // namespace morvane::test
