#pragma once

#include "cli/console_user.h"
#include "core/session.h"

#include <QHash>
#include <QStringList>

namespace morvane {

/// Exit statuses of the console.
inline constexpr int exitDone = 0;
inline constexpr int exitFailed = 1;
inline constexpr int exitWrongUsage = 2;

/// A word behind a command, or the value of an option. What it does not take is told before anything runs.
struct Operand {
    QString name; ///< as the help spells it: "NAME"
    QString meaning = {};
    QStringList entries = {};                       ///< the only words taken, where it is a closed list
    QString takes = {};                             ///< else what a good word is: "a whole number"
    bool (*isTaken)(const QString& word) = nullptr; ///< any word is, without it
    bool isOptional = false;
    bool repeats = false; ///< the last operand of a command, once or several times
};

/// An option of one command, "--from DIR"; a flag when its value has no name.
struct CommandOption {
    QString name;
    QString meaning = {};
    Operand value = {};
};

/// What a command works with.
struct CommandContext {
    Session& session;
    ConsoleUser& user;
    QStringList arguments;                ///< the operands, checked
    QHash<QString, QString> options = {}; ///< those given, by name; a flag has an empty value
};

/// What has to stand before a command runs.
enum class Needs {
    nothing,
    folder,   ///< the install folder
    simulator ///< the start sequence: folder, simulator, store, switches
};

/// One command of the console.
struct Command {
    QString words; ///< such as "ground create"
    std::vector<Operand> operands = {};
    std::vector<CommandOption> options = {};
    Needs needs = Needs::simulator;
    bool writes = false;       ///< into the install or the simulator
    bool makesInstall = false; ///< an install folder in which nothing lies yet is filled first
    /// Failures are messages; the exit status follows from those.
    void (*run)(CommandContext&);
    /// What is wrong with operands and options that are good each by itself; empty when nothing is.
    QString (*problem)(const QStringList& operands, const QHash<QString, QString>& options) = nullptr;
    QString meaning = {};
    QString example; ///< behind the program's name
};

/// Its first word.
QStringView subjectOf(const Command& command);

/// All of them, in the order of the help text.
const std::vector<Command>& commandTable();

/// Starts what the command needs, runs it and gives the exit status.
int runCommand(const Command& command, CommandContext context);

} // namespace morvane
