#pragma once

#include "cli/console_user.h"
#include "core/session.h"

#include <QStringList>
#include <optional>

namespace morvane {

/// Exit statuses of the console.
inline constexpr int exitDone = 0;
inline constexpr int exitFailed = 1;
inline constexpr int exitWrongUsage = 2;

/// The number of arguments of a command that looks at them itself.
inline constexpr int anyArguments = -1;

/// What a command works with.
struct CommandContext {
    Session& session;
    ConsoleUser& user;
    QStringList arguments; ///< behind the command's own words
};

/// One command of the console.
struct Command {
    QStringList words; ///< such as "ground", "create"
    int argumentCount; ///< or `anyArguments`
    bool needsInstall; ///< runs the start sequence first
    /// False for wrong usage. Failures are messages; the exit status follows from those.
    bool (*run)(CommandContext&);
    QString usage;
};

/// All of them, in the order of the help text.
const std::vector<Command>& commandTable();

/// Finds the command, starts what it needs, runs it and gives the exit status.
int runCommand(const QStringList& words, Session& session, ConsoleUser& user);

QString usageText();

} // namespace morvane
