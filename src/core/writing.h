#pragma once

#include "core/install_lock.h"

#include <chrono>

namespace morvane {

class Session;

/// The session's share in the lock that one writer of the install holds at a time. The store looks after its
/// own rows; sets, their folders, the simulator and the list of its files are many writes that belong
/// together.
struct WritingLock {
    explicit WritingLock(const FilePath& installFolder);

    /// For a run that nobody sits in front of: it can wait longer, and nothing in it may wait for a click.
    void beUnattended();

    InstallLock file;
    int holders = 0;                           ///< a job inside a command takes it once more
    std::chrono::milliseconds patience{10000}; ///< with another writer
    bool isUnattended = false;
    bool wasRefused = false; ///< to the last writer; an unattended run that was refused once writes no more
};

/// The right to write, as long as it lives. Another writer is waited for, with a message that can be
/// cancelled; one that takes too long is named in a message. Rows that were read before are read anew where
/// they may have changed.
class Writing {
public:
    enum class Waiting { wanted, none };

    explicit Writing(Session& session, Waiting waiting = Waiting::wanted);
    ~Writing();
    Writing(const Writing&) = delete;
    Writing& operator=(const Writing&) = delete;

    /// False when another program has it: leave, the user knows (but for `Waiting::none`, which says
    /// nothing).
    explicit operator bool() const { return isHeld_; }

private:
    bool waitForOther();
    void tellOfOther();

    Session& session_;
    bool isHeld_ = false;
};

} // namespace morvane
