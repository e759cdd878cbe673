#pragma once

namespace morvane {

/// What a routine gives back that tells the user of its own failures: whether it came to its end. Where it
/// did not, the user has seen why by then, or ended it himself, and the caller adds no message. A routine
/// that gives anything else raises its failures, unless its comment says that it tells them.
class Reported {
public:
    // Both ways without a word: it stands for a bool that has a meaning.
    Reported(bool cameToItsEnd) : cameToItsEnd_(cameToItsEnd) {}
    operator bool() const { return cameToItsEnd_; }

private:
    bool cameToItsEnd_;
};

} // namespace morvane
