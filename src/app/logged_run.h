#pragma once

#include "core/session.h"

namespace morvane {

/// A run of a program from its start to its end, as the log has it. What the pilot named himself is left out:
/// sets, folders, weather servers and what `PrivateTexts` has beside them.
class LoggedRun {
public:
    /// `what` is started, where that is less than the whole program: a command's words.
    LoggedRun(Session& session, const QString& program, const QString& what = {});
    ~LoggedRun();
    LoggedRun(const LoggedRun&) = delete;
    LoggedRun& operator=(const LoggedRun&) = delete;

private:
    Session& session_;
};

/// `text` without what is the pilot's own, as the log has it.
QString withoutPrivate(Session& session, const QString& text);

} // namespace morvane
