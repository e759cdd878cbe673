#pragma once

#include "core/session.h"
#include "sets/originals.h"

namespace morvane {

/// What gives files of the simulator back, and what it says while it does.
struct RestoreRun {
    QString title, text;
    /// As Originals::restore.
    std::function<OriginalsReport(const std::function<void(double)>& progress)> restore;
    /// Puts the rows right; not called when nothing could be given back.
    std::function<void(const OriginalsReport&)> finish;
};

/// Runs it as a job of its own under a progress message. Files that were left as they are are named in a
/// message, which is an Exclamation where a kept file is damaged; at the end one line says what was done.
/// Nothing after the message of a failure.
std::optional<OriginalsReport> runRestore(Session& session, const RestoreRun& run);

/// Which files, as many as a message holds; the rest is a number.
QString listedPaths(const QStringList& paths);

} // namespace morvane
