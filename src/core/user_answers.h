#pragma once

#include <QString>
#include <array>
#include <bitset>

namespace morvane {

/// The questions that a message screen can carry, in the order in which its buttons look for them.
enum class Question {
    setAction,           ///< delete or deactivate a set
    launch,              ///< start the simulator now
    installMatchingSets, ///< install the sets that fit the weather
    reset,               ///< go back to the "Default" sets on exit
    confirmDelete,       ///< second confirmation of a delete
    skyAction,           ///< a question about a sky set
    setInstall,          ///< install a set with its match
    backup,              ///< make a backup
    weatherChoice,       ///< a choice of weather; its answer says "cancelled", so the sense is turned round
    savedFlight,         ///< start a saved flight
    wideClient,          ///< is this PC a WideFS client
    largeRun,            ///< make as many sets as that
    undoInstall,         ///< give back what the last install replaced
    putOwnBack,          ///< give back what Morvane ever replaced
    takeOver,            ///< take over the simulator of another install
    replaceFile,         ///< write over a file of the user's
    saveReport,          ///< save a report of what happened before this start
};
inline constexpr std::size_t questionCount = 17;

/// What the user said: the answer flags of the message screen and the one flag of a wanted cancel.
/// A message returns nothing; the caller marks its question before showing it and reads the flag afterwards.
class UserAnswers {
public:
    void mark(Question question) {
        pending_.set(index(question));
        answered_.reset(index(question));
    }
    void unmark(Question question) { pending_.reset(index(question)); }
    bool isPending() const { return pending_.any(); }
    bool isPending(Question question) const { return pending_.test(index(question)); }

    /// Called by the message screen's buttons: the first pending question takes the answer.
    void answer(bool ok);
    /// False when the question was closed without anybody's answer.
    bool isAnswered(Question question) const { return answered_.test(index(question)); }
    bool flag(Question question) const { return flags_[index(question)]; }
    void setFlag(Question question, bool value) { flags_[index(question)] = value; }

    /// Set by the cancel button of a progress message; cleared when a job opens its progress message and when
    /// it ends, so a late click never answers the next question.
    bool cancelRequested = false;

private:
    static std::size_t index(Question question) { return static_cast<std::size_t>(question); }
    std::bitset<questionCount> pending_, answered_;
    std::array<bool, questionCount> flags_{};
};

} // namespace morvane
