#pragma once

#include "cli/commands.h"

namespace morvane {

/// A command line that was read: a command with its words, or something to say instead.
struct CommandLine {
    const Command* command = nullptr; ///< none when one of the texts below is set
    QStringList operands = {};
    QHash<QString, QString> options = {}; ///< by name, those of every command included: "--home", "--answer"
    QString output = {};                  ///< help or version, for stdout; the exit status is then 0
    QString slip = {};                    ///< what is wrong, in one line
};

/// Reads the words behind the program's name. Options stand anywhere, "--name value" or "--name=value";
/// behind
/// "--" everything is an operand, as negative numbers are anywhere.
CommandLine readCommandLine(const QStringList& words);

} // namespace morvane
