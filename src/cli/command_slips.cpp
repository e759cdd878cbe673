#include "cli/command_slips.h"

#include "cli/nearest_word.h"
#include "core/opened_file.h"

#include <algorithm>

namespace morvane {

namespace {

QString quoted(const QString& word) {
    return u'\'' + word + u'\'';
}

QString didYouMean(const QString& word) {
    return word.isEmpty() ? QString() : u"; did you mean "_s + quoted(word) + u'?';
}

/// What opens by a double click is no word of any list, but has an option of its own.
QString fileHint(const QString& word) {
    switch (openedFile(word)) {
    case OpenedFile::flightPlan:
        return u"; a flight plan is flown by fly --plan "_s + quoted(word);
    case OpenedFile::sharedSet:
        return u"; a shared set is taken by ground, sky or night import "_s + quoted(word);
    case OpenedFile::none:
        break;
    }
    return {};
}

/// "--home --answer yes" names no folder.
QString optionForValue(const TypedLine& line) {
    for (auto option = line.options.cbegin(); option != line.options.cend(); ++option)
        if (option->startsWith(u"--")) return lackingValue(option.key());
    return {};
}

QString unknownOption(const TypedLine& line) {
    if (line.unknownOptions.isEmpty()) return {};
    QStringList known{u"--help"_s, u"--version"_s};
    for (const CommandOption& option : commonOptions())
        known << option.name;
    if (line.command)
        for (const CommandOption& option : line.command->options)
            known << option.name;
    const QString typed = line.unknownOptions.first().section(u'=', 0, 0);
    return u"unknown option "_s + quoted(typed) + didYouMean(nearestWord(typed, known));
}

QString unknownCommand(const TypedLine& line) {
    if (line.command) return {};
    const QString lead = line.words.isEmpty() ? QString() : line.words + u' ';
    const QStringList known = nextWords(line.words);
    const QString choice = line.words.isEmpty() ? u"'morvane-cli --help' lists them"_s
                                                : quoted(line.words) + u" takes "_s + either(known);
    if (line.strays.isEmpty()) return line.words.isEmpty() ? u"a command is missing; "_s + choice : choice;
    const QString stray = line.strays.first();
    // As in "list ground".
    if (known.contains(stray)) return quoted(stray) + u" stands in the wrong place: "_s + lead + stray;
    if (const QString hint = fileHint(stray); !hint.isEmpty())
        return u"unknown command "_s + quoted(lead + stray) + hint;
    const QString nearest = nearestWord(stray, known);
    return u"unknown command "_s + quoted(lead + stray) +
           (nearest.isEmpty() ? u"; "_s + choice : didYouMean(lead + nearest));
}

QString wordTooMany(const TypedLine& line) {
    if (line.strays.isEmpty()) return {};
    const auto& operands = line.command->operands;
    const bool takesNames =
        !operands.empty() && operands.back().entries.isEmpty() && !operands.back().isTaken;
    return quoted(line.strays.first()) + u" is one word too many: "_s + usageOf(*line.command) +
           (takesNames ? u" (what has blanks stands in quotes)"_s : QString());
}

QString missingOperand(const TypedLine& line) {
    const auto given = static_cast<std::size_t>(line.operands.size());
    const auto& operands = line.command->operands;
    if (given >= operands.size() || operands[given].isOptional) return {};
    return operands[given].name + u" is missing: "_s + usageOf(*line.command);
}

/// `subject` takes the word, or why not.
QString refusal(const QString& subject, const Operand& operand, const QString& word) {
    if (!operand.entries.isEmpty()) {
        if (operand.entries.contains(word)) return {};
        const QString hint = fileHint(word);
        return subject + u" takes "_s + either(operand.entries) + u", not "_s + quoted(word) +
               (hint.isEmpty() ? didYouMean(nearestWord(word, operand.entries)) : hint);
    }
    if (!operand.isTaken || operand.isTaken(word)) return {};
    return subject + u" takes "_s + operand.takes + u", not "_s + quoted(word);
}

QString refusedOperand(const TypedLine& line) {
    const auto& operands = line.command->operands;
    for (qsizetype i = 0; i < line.operands.size(); ++i) {
        const Operand& operand = operands[std::min(static_cast<std::size_t>(i), operands.size() - 1)];
        if (QString text = refusal(operand.name, operand, line.operands[i]); !text.isEmpty()) return text;
    }
    return {};
}

QString refusedValue(const TypedLine& line, const std::vector<CommandOption>& options) {
    for (const CommandOption& option : options) {
        const auto given = line.options.constFind(option.name);
        if (given == line.options.cend()) continue;
        const bool isFlag = option.value.name.isEmpty();
        if (isFlag && !given->isEmpty()) return option.name + u" takes no value"_s;
        if (isFlag) continue;
        if (QString text = refusal(option.name, option.value, *given); !text.isEmpty()) return text;
    }
    return {};
}

QString refusedOption(const TypedLine& line) {
    const QString common = refusedValue(line, commonOptions());
    return common.isEmpty() ? refusedValue(line, line.command->options) : common;
}

QString problemOfCommand(const TypedLine& line) {
    return line.command->problem ? line.command->problem(line.operands, line.options) : QString();
}

} // namespace

const std::vector<CommandOption>& commonOptions() {
    static const auto isThere = [](const QString& word) { return !word.isEmpty(); };
    static const std::vector<CommandOption> options{
        {u"--home"_s,
         u"the install folder"_s,
         {.name = u"DIR"_s, .takes = u"a folder"_s, .isTaken = isThere}},
        {u"--answer"_s,
         u"what every question is answered with"_s,
         {.name = u"yes|no|ask"_s, .entries = {u"yes"_s, u"no"_s, u"ask"_s}}},
    };
    return options;
}

QString slipOf(const TypedLine& line) {
    for (const auto check : {optionForValue, unknownOption, unknownCommand, wordTooMany, missingOperand,
                             refusedOperand, refusedOption, problemOfCommand})
        if (QString text = check(line); !text.isEmpty()) return text;
    return {};
}

QString either(QStringList words) {
    const QString last = words.takeLast();
    return words.isEmpty() ? last : words.join(u", "_s) + u" or "_s + last;
}

QString helpOf(const QString& meaning, const Operand& operand) {
    const bool isClosed = !operand.entries.isEmpty() && !operand.name.contains(u'|');
    return isClosed ? meaning + u": "_s + either(operand.entries) : meaning;
}

QString lackingValue(const QString& option) {
    return option + u" stands without its value"_s;
}

QString usageOf(const Command& command) {
    QStringList parts{command.words};
    for (const Operand& operand : command.operands) {
        const QString name = operand.name + (operand.repeats ? u"..."_s : QString());
        parts << (operand.isOptional ? u'[' + name + u']' : name);
    }
    constexpr std::size_t mostSpeltOut = 2;
    if (command.options.size() > mostSpeltOut)
        parts << u"[OPTION...]"_s;
    else
        for (const CommandOption& option : command.options)
            parts << u'[' + (option.name + u' ' + option.value.name).trimmed() + u']';
    return parts.join(u' ');
}

QStringList nextWords(const QString& words) {
    const QString lead = words.isEmpty() ? QString() : words + u' ';
    QStringList next;
    for (const Command& command : commandTable())
        if (command.words.startsWith(lead)) next << command.words.mid(lead.size()).section(u' ', 0, 0);
    next.removeDuplicates();
    return next;
}

} // namespace morvane
