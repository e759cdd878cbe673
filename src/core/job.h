#pragma once

#include "core/program_log.h"
#include "core/session.h"
#include "core/writing.h"

#include <optional>

namespace morvane {

/// A long run with a progress message: generation, activation, installation. Events are served while it runs,
/// so a click could start the same job inside itself; the guard refuses that. It is this session's turn to
/// write: what the job reads of the install, it reads inside it. A cancel belongs to one job: the flag is
/// cleared when the job begins and when it ends.
class Job {
public:
    enum class Start { atOnce, behindQuestions };

    /// `what` the log calls it. `behindQuestions`: other programs may write as long as the user has not
    /// answered; `begin` comes behind that.
    Job(Session& session, const QString& what, Start start = Start::atOnce)
        : session_(session), what_(what), started_(!session.jobRunning) {
        if (!started_) return;
        setRunning(true);
        if (start == Start::atOnce) started_ = begin();
        if (!started_) setRunning(false);
    }
    ~Job() {
        if (!started_) return;
        if (hasBegun_) note(isCancelled() ? u" was cancelled"_s : u" ended"_s);
        setRunning(false);
    }
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    /// False when another job is running, or another program writes: leave without a word.
    explicit operator bool() const { return started_; }
    /// False when another program writes; the user was told.
    bool begin() {
        if (!writing_) writing_.emplace(session_);
        const bool isHeld = static_cast<bool>(*writing_);
        if (isHeld && !hasBegun_) note(u" began"_s);
        hasBegun_ = hasBegun_ || isHeld;
        return isHeld;
    }
    /// Nothing more is written: other programs may, while the user reads what the job has to tell.
    void end() { writing_.reset(); }
    /// By the user, or by the end of the program.
    bool isCancelled() const { return isWorkCancelled(session_); }

private:
    void setRunning(bool running) {
        session_.jobRunning = running;
        session_.user.answers().cancelRequested = false;
    }
    void note(const QString& verb) { session_.state<ProgramLog>().note(u"Job"_s, what_ + verb); }

    Session& session_;
    QString what_;
    bool started_;
    bool hasBegun_ = false;
    std::optional<Writing> writing_;
};

} // namespace morvane
