#pragma once

#include "cli/commands.h"

namespace morvane {

/// A command line as it was typed, before anybody judged it.
struct TypedLine {
    const Command* command = nullptr; ///< none when the words lead to no command
    QString words = {};               ///< those that lead on so far: "ground"
    QStringList operands = {};
    QStringList strays = {}; ///< words that nothing takes
    QStringList unknownOptions = {};
    QHash<QString, QString> options = {}; ///< by name, those of every command included
};

/// The options that every command takes.
const std::vector<CommandOption>& commonOptions();

/// The first thing that is wrong with a line, in one line; empty for a good one.
QString slipOf(const TypedLine& line);
/// That an option stands there without its value.
QString lackingValue(const QString& option);

/// The command with its operands and options, as the help spells it: "stock import [--from DIR]".
QString usageOf(const Command& command);
/// The meaning, with the words of a closed list that the operand's name does not spell.
QString helpOf(const QString& meaning, const Operand& operand);
/// "a, b or c", of one word or more.
QString either(QStringList words);
/// The words that may follow those: commands, or their second halves; each once, in the table's order.
QStringList nextWords(const QString& words);

} // namespace morvane
