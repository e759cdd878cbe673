#pragma once

#include <QString>
#include <cstdint>

namespace morvane {

/// What a run that makes sets is going to take, told before it starts.
struct RunSize {
    QString what;                  ///< "105 ground sets"
    double seconds = 0;            ///< of work, by the last measured file
    std::int64_t bytes = 0;        ///< of the disk that its files will fill
    std::int64_t freeBytes = 0;    ///< there now; below 0 where the system does not tell
    bool isQuestionWanted = false; ///< so large that someone at a window may have mistyped it

    bool fits() const { return freeBytes < 0 || bytes <= freeBytes; }
    /// "105 ground sets: about 4 minutes, 5.2 GB of 49 GB free".
    QString summary() const;
    /// "105 ground sets: 5.2 GB needed, 1.1 GB free".
    QString refusal() const;
};

/// "860 MB", "5.2 GB", "49 GB": thousands of thousands, as disks are sold; less than a megabyte counts as
/// one.
QString spaceText(std::int64_t bytes);
/// "less than a minute", "about 1 minute", "about 4 minutes", "about 2.5 hours".
QString durationText(double seconds);

} // namespace morvane
