#pragma once

#include "support/scripted_services.h"
#include "support/system_files.h"

namespace morvane::test {

enum class Fault { once, forever, kill };

/// Does `work` with its first file operation failing, then its second and so on, until none did; `check`
/// looks at what each run left, with healed files, and takes the operation's number. Returns how many failed.
template <class Work, class Check>
int failEachOperation(FaultyFileSystem& files, Fault fault, Work work, Check check) {
    for (int n = 1;; n += faultStride) {
        fault == Fault::kill ? files.killAt(n) : files.failAt(n, fault == Fault::forever);
        try {
            work();
        } catch (const Killed&) {
        }
        const bool hasFailed = files.hasFailed();
        files.heal();
        check(n);
        if (!hasFailed) return n - 1;
    }
}

} // namespace morvane::test
