#pragma once

#include "core/user_interface.h"

#include <QElapsedTimer>
#include <functional>
#include <map>
#include <optional>

namespace morvane {

/// Who answers the questions of a console run: the command line, somebody, or nobody, which is a No that says
/// how to say Yes.
enum class AnswerPolicy { yes, no, ask, nobody };

/// Raised out of a question that Ctrl-C ended, or that comes behind one: nothing more is done. It is no
/// std::exception, as a routine's boundary for failures is not to take it for one of its own.
struct RoadEnded {};

/// The seam's console: messages and progress on stderr, answers from the keyboard or from a policy.
/// Ctrl-C is the cancel button, already confirmed; a second one kills.
class ConsoleUser : public UserInterface {
public:
    struct Settings {
        AnswerPolicy policy = AnswerPolicy::no;
        bool enterMeansYes = false;            ///< what an empty line says when asked
        std::map<Question, bool> settled = {}; ///< answers that were given before, by the command line
    };
    explicit ConsoleUser(const Settings& settings);

    void showMessage(const Message& message) override;
    void updateProgress(const QString& title, const QString& text, double value) override;
    void setProgressFile(const QString& line) override { progressFile_ = line; }
    void hideMessage() override;
    void tellDone(const DoneLine& line) override;
    bool allowsRun(const RunSize& run) override;
    bool isMessageVisible() const override { return progressVisible_; }
    bool systemBox(const QString& text, const QString& title, SystemBoxButtons buttons) override;
    QString browseForFolder(const QString& startFolder) override;
    void showModal(Screen screen) override { onModal(screen); }
    void showScreen(Screen) override {}
    void hideScreen(Screen) override {}
    void refreshScreen(Screen) override {}
    void minimiseProgram() override {}
    void pumpMessages() override;

    /// Somebody types the answers.
    bool isAsked() const { return settings_.policy == AnswerPolicy::ask; }
    /// A line that is typed, without blanks around it; empty at the end of input.
    QString askText(const QString& prompt);

    /// What a modal screen does here; the command that expects one sets it.
    std::function<void(Screen)> onModal = [](Screen) {};

    /// True once a message of any kind but Information, Question and Progress was shown, or a plain box; but
    /// not for one that only asked for a folder and got it.
    bool hasFailed() const { return failed_; }
    /// The text of the last of those.
    const QString& lastFailure() const { return failure_; }
    /// What failed so far was made good in another way.
    void makeGood() { failed_ = failedBefore_ = false; }
    /// Ends the road where Ctrl-C was pressed since the last question; for a road that asks none.
    void endWhereInterrupted();
    /// True once nobody answered a question on which the whole command hangs.
    bool wasLeftOpen() const { return wasLeftOpen_; }

private:
    void noteFailure(const QString& text);
    std::optional<bool> answerOf(const QString& question);
    std::optional<bool> answerOfPending();
    void answerPending();
    std::optional<QString> typedLine();
    void endProgressLine();

    Settings settings_;
    bool failed_ = false, failedBefore_ = false; ///< now, and before the last failure
    bool wasLeftOpen_ = false;
    bool isInterrupted_ = false; ///< what was cancelled has ended by then, and may have forgotten it
    bool progressVisible_ = false;
    bool progressLineOpen_ = false;
    bool canChooseFolder_;
    QString progressTitle_, progressFile_, failure_;
    QElapsedTimer lastPaint_;
};

} // namespace morvane
