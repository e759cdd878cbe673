#pragma once

#include <QString>
#include <QStringList>

class QProgressDialog;

namespace morvane {

/// How a run of the content tool ended.
struct ContentToolRun {
    enum class End { done, otherWriter, failed };
    End end = End::failed;
    QString cause; ///< of a failure, in the tool's or the system's words
};

/// Runs `morvane-content` with `--progress` and these arguments to its end, or to the user's cancel or the
/// end of the session, by which it is killed and `progress` is cancelled. It has ended when this returns.
ContentToolRun runContentTool(const QStringList& arguments, QProgressDialog& progress);

} // namespace morvane
