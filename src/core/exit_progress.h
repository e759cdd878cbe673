#pragma once

namespace morvane {

/// Where the program stands on its way out.
enum class ExitStage {
    running,
    asking,     ///< the user is asked whether to leave what runs
    leaving,    ///< the user wants out: what runs ends, and the exit flow follows
    inFlow,     ///< the exit flow with its one question
    sessionEnd, ///< the desktop's session ends and takes the program along
};

/// The way out, and what it means for everything that runs meanwhile:
///
///                work and waits       copies without a cancel   questions        sets
///   leaving      end as by a cancel   go through their list     answered "no"    -
///   inFlow       -                    -                         asked            go back to "Default" on OK
///   sessionEnd   end as by a cancel   end at the next file      answered "no"    stay
class ExitProgress {
public:
    ExitStage stage() const { return stage_; }
    /// Nothing leads back from the end of the session.
    void moveTo(ExitStage stage) {
        if (stage_ != ExitStage::sessionEnd) stage_ = stage;
    }

    bool endsWork() const { return stage_ == ExitStage::leaving || endsCopies(); }
    bool endsCopies() const { return stage_ == ExitStage::sessionEnd; }
    /// Nothing is shown that would wait for an answer; each caller gets a "no".
    bool isSilent() const { return endsWork(); }

private:
    ExitStage stage_ = ExitStage::running;
};

} // namespace morvane
