#pragma once

#include "support/scripted_services.h"
#include "support/system_files.h"

namespace morvane::test {

/// Does `work` with its first file operation failing, then its second and so on, until none did; `check`
/// looks at what each run left, with healed files, and takes the operation's number. Returns how many failed;
/// with `forever` all operations behind the failed one do, too.
template <class Work, class Check>
int failEachOperation(FaultyFileSystem& files, bool forever, Work work, Check check) {
    for (int n = 1;; n += faultStride) {
        files.failAt(n, forever);
        work();
        const bool hasFailed = files.hasFailed();
        files.failAt(0, false);
        check(n);
        if (!hasFailed) return n - 1;
    }
}

} // namespace morvane::test
