#pragma once

#include "core/session.h"

namespace morvane {

/// A long run with a progress message: generation, activation, installation. Events are served while it runs,
/// so a click could start the same job inside itself; the guard refuses that. A cancel belongs to one job:
/// the flag is cleared when the job begins and when it ends.
class Job {
public:
    explicit Job(Session& session) : session_(session), started_(!session.jobRunning) {
        if (started_) begin(true);
    }
    ~Job() {
        if (started_) begin(false);
    }
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    /// False when another job is running: leave without a word.
    explicit operator bool() const { return started_; }
    bool isCancelled() const { return session_.user.answers().cancelRequested; }

private:
    void begin(bool running) {
        session_.jobRunning = running;
        session_.user.answers().cancelRequested = false;
    }
    Session& session_;
    bool started_;
};

} // namespace morvane
