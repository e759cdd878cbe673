#pragma once

#include "core/literals.h"

#include <QStringList>

class QProcess;

namespace morvane {

/// How a run of the content tool ended.
struct ContentToolRun {
    enum class End { done, otherWriter, failed };
    End end = End::failed;
    QString cause = {}; ///< of a failure, in the tool's or the system's words
};

/// Starts `morvane-content`, which lies beside this program, with `--progress` and these arguments.
void startContentTool(QProcess& tool, const QStringList& arguments);
/// What it has printed since of how far it is, in percent; 0 for nothing.
int printedPercent(QProcess& tool);
/// Kills it where it still runs, as one that still draws would leave something behind.
ContentToolRun endOfContentTool(QProcess& tool);

} // namespace morvane
