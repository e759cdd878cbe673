#include "cli/command_line.h"

#include "cli/command_slips.h"
#include "core/numbers.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iterator>

namespace morvane {

namespace {

const char* const programName = "morvane-cli";
const QString endOfOptions = u"--"_s;

bool isOption(const QString& word) {
    return word.size() > 1 && word.startsWith(u'-');
}

/// The library takes the words in reverse. It would take the next word for an empty value, and "-.5" for an
/// option.
std::vector<std::string> wordsForLibrary(const QStringList& words) {
    QStringList plain;
    const qsizetype end = words.indexOf(endOfOptions);
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString& word = words[i];
        const bool isOperand = end >= 0 && i > end;
        if (!isOperand && word.startsWith(u"--") && word.indexOf(u'=') == word.size() - 1)
            plain << word.chopped(1) << QString();
        else if (!isOperand && word.startsWith(u"-.") && isDigits(word.mid(2, 1)))
            plain << u"-0"_s + word.mid(1);
        else
            plain << word;
    }
    std::vector<std::string> reversed;
    std::ranges::transform(plain, std::back_inserter(reversed), &QString::toStdString);
    std::ranges::reverse(reversed);
    return reversed;
}

/// The words that lead to a level of the grammar: "" for the program, "ground", "ground install".
QString wordsOf(const CLI::App* app) {
    QString words;
    for (; app->get_parent(); app = app->get_parent())
        words.prepend(QString::fromStdString(app->get_name()) + u' ');
    return words.trimmed();
}

const Command* commandOf(const QString& words) {
    const auto command = std::ranges::find(commandTable(), words, &Command::words);
    return command == commandTable().end() ? nullptr : &*command;
}

/// The library's own form but for two parts: the usage line as messages spell it, and commands in full.
class HelpForm : public CLI::Formatter {
public:
    HelpForm() {
        constexpr std::size_t columnOfMeanings = 34;
        column_width(columnOfMeanings);
        label("Positionals", "Operands");
    }
    std::string make_usage(const CLI::App* app, std::string) const override {
        const QString words = wordsOf(app);
        const Command* command = commandOf(words);
        const QString behind = command ? usageOf(*command) : (words + u" COMMAND"_s).trimmed();
        return "\nUsage: " + std::string(programName) + ' ' + behind.toStdString() + '\n';
    }
    std::string make_subcommands(const CLI::App* app, CLI::AppFormatMode) const override {
        const QString lead = wordsOf(app) + u' ';
        std::stringstream text;
        for (const Command& command : commandTable()) {
            if (app->get_parent() && !command.words.startsWith(lead)) continue;
            if (text.str().empty()) text << "\nCommands:\n";
            CLI::detail::format_help(text, usageOf(command).toStdString(), command.meaning.toStdString(),
                                     column_width_);
        }
        return text.str();
    }
};

void addOption(CLI::App& app, const CommandOption& option) {
    const std::string name = option.name.toStdString(),
                      meaning = helpOf(option.meaning, option.value).toStdString();
    CLI::Option* added =
        option.value.name.isEmpty() ? app.add_flag(name, meaning) : app.add_option(name, meaning);
    added->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    if (!option.value.name.isEmpty()) added->type_name(option.value.name.toStdString());
}

/// The table as a grammar of the library. It only takes lines apart: what is wrong with one is told by
/// `slipOf`, in this program's words and in one line.
class Grammar {
public:
    /// Of all that such a line can mean: most of a command's start is the grammar of others.
    explicit Grammar(const QStringList& words);
    CommandLine read(const QStringList& words);

private:
    CLI::App& level(const QString& words);
    void add(const Command& command);
    const CLI::App& reached() const;
    TypedLine typedLine() const;

    CLI::App program_;
};

Grammar::Grammar(const QStringList& words)
    : program_("Drives Morvane's engine. JSON goes to stdout, messages and progress to stderr.",
               programName) {
    program_.formatter(std::make_shared<HelpForm>());
    program_.allow_windows_style_options(false); // "/home/me" is a path on every system
    program_.fallthrough();
    program_.allow_extras();
    program_.require_subcommand(0, 1);
    program_.set_help_flag("-h,--help", "shows this text, or that of the command in front of it");
    program_.set_version_flag("--version", std::string(programName) + ' ' + MORVANE_VERSION,
                              "shows the version");
    for (const CommandOption& option : commonOptions())
        addOption(program_, option);
    for (const Command& command : commandTable())
        if (words.contains(subjectOf(command))) add(command);
    program_.footer(
        "'morvane-cli COMMAND --help' shows a command's operands and an example. Questions are asked at a\n"
        "terminal; elsewhere their answer is No, unless --answer says otherwise.");
}

/// Makes the level where it is new.
CLI::App& Grammar::level(const QString& words) {
    CLI::App* app = &program_;
    for (const QString& word : words.split(u' ')) {
        const std::string name = word.toStdString();
        const auto found = app->get_subcommands([&](CLI::App* each) { return each->get_name() == name; });
        app = found.empty() ? app->add_subcommand(name) : found.front();
    }
    return *app;
}

void Grammar::add(const Command& command) {
    CLI::App& app = level(command.words);
    app.description((command.meaning.left(1).toUpper() + command.meaning.mid(1) + u'.').toStdString());
    for (const Operand& operand : command.operands) {
        const std::string meaning = helpOf(operand.meaning, operand).toStdString();
        app.add_option(operand.name.toStdString(), meaning);
    }
    for (const CommandOption& option : command.options)
        addOption(app, option);
    app.footer(u"Example:\n  %1 %2\n\nEvery command takes --home DIR and --answer yes|no|ask, too."_s
                   .arg(QLatin1StringView(programName), command.example)
                   .toStdString());
}

/// The level that the typed words lead to.
const CLI::App& Grammar::reached() const {
    const CLI::App* app = &program_;
    while (!app->get_subcommands().empty())
        app = app->get_subcommands().front();
    return *app;
}

/// A flag that stands there has an empty value.
QString resultOf(const CLI::Option& option) {
    const QString result = QString::fromStdString(option.results().back());
    return option.get_expected_max() == 0 && result == u"true" ? QString() : result;
}

TypedLine Grammar::typedLine() const {
    const CLI::App& app = reached();
    TypedLine line{.words = wordsOf(&app)};
    line.command = commandOf(line.words);
    const auto take = [&line](const CLI::Option* option) {
        if (option->count() == 0) return;
        if (option->get_positional())
            line.operands << resultOf(*option);
        else
            line.options.insert(QString::fromStdString(option->get_name()), resultOf(*option));
    };
    std::ranges::for_each(program_.get_options(), take);
    if (&app != &program_) std::ranges::for_each(app.get_options(), take);
    const bool repeats = line.command && !line.operands.isEmpty() && line.command->operands.back().repeats;
    for (const std::string& rest : program_.remaining(true)) {
        const QString word = QString::fromStdString(rest);
        if (word == endOfOptions) continue;
        (isOption(word) ? line.unknownOptions : repeats ? line.operands : line.strays) << word;
    }
    return line;
}

CommandLine Grammar::read(const QStringList& words) {
    bool wantsHelp = false;
    try {
        program_.parse(wordsForLibrary(words));
    } catch (const CLI::CallForHelp&) {
        wantsHelp = true;
    } catch (const CLI::CallForVersion& version) {
        return {.output = QString::fromUtf8(version.what()) + u'\n'};
    } catch (const CLI::ArgumentMismatch& error) { // "--home: 1 required DIR missing"
        return {.slip = lackingValue(QString::fromUtf8(error.what()).section(u':', 0, 0))};
    } catch (const CLI::ParseError& error) { // none that is known of
        return {.slip = QString::fromUtf8(error.what()).section(u'\n', 0, 0)};
    }
    const TypedLine line = typedLine();
    // Help on a command that is none says so.
    if (wantsHelp && (line.command || line.strays.isEmpty()))
        return {.output = QString::fromStdString(program_.help())};
    if (const QString slip = slipOf(line); !slip.isEmpty()) return {.slip = slip};
    return {.command = line.command, .operands = line.operands, .options = line.options};
}

} // namespace

CommandLine readCommandLine(const QStringList& words) {
    return Grammar(words).read(words);
}

} // namespace morvane
