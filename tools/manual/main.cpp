// morvane-manual DATE: writes the console's manual page, of the table that its help is of.

#include "cli/command_slips.h"
#include "core/literals.h"

#include <cstdio>

using namespace morvane;

namespace {

/// Plain text as the page's language spells it.
QString plain(QString text) {
    text.replace(u'\\', u"\\e"_s).replace(u'-', u"\\-"_s);
    return text.startsWith(u'.') || text.startsWith(u'\'') ? u"\\&"_s + text : text;
}

QString bold(const QString& text) {
    return u"\\fB"_s + plain(text) + u"\\fR"_s;
}

QString italic(const QString& text) {
    return u"\\fI"_s + plain(text) + u"\\fR"_s;
}

/// What a word means, behind the word.
QString entry(const QString& word, const QString& meaning) {
    return u".TP\n"_s + word + u'\n' + plain(meaning) + u'\n';
}

QString entryOf(const Operand& operand) {
    return entry(italic(operand.name), helpOf(operand.meaning, operand));
}

QString entryOf(const CommandOption& option) {
    const QString value = option.value.name.isEmpty() ? QString() : u' ' + italic(option.value.name);
    return entry(bold(option.name) + value, helpOf(option.meaning, option.value));
}

QString entryOf(const Command& command) {
    QString text = entry(bold(usageOf(command)), command.meaning) + u".RS\n"_s;
    for (const Operand& operand : command.operands)
        text += entryOf(operand);
    for (const CommandOption& option : command.options)
        text += entryOf(option);
    return text + u".PP\nExample: "_s + bold(u"morvane-cli "_s + command.example) + u"\n.RE\n"_s;
}

const QString beginning = uR"(.SH NAME
morvane\-cli \- drives Morvane from scripts and other programs
.SH SYNOPSIS
.B morvane\-cli
.RI [ OPTION ...]
.I COMMAND
.RI [ OPERAND ...]
.SH DESCRIPTION
Drives the engine of
.BR morvane (1).
What it prints on stdout is JSON, UTF\-8; messages, questions and progress go to stderr.
Options stand anywhere in the line.
Behind \fB\-\-\fR a word that begins with "\-" is a name; negative numbers are numbers anywhere.
.PP
Questions are asked at a terminal; elsewhere their answer is No, unless \fB\-\-answer\fR says otherwise.
One program at a time writes into an install: a second one waits, then says who writes and ends.
.PP
The first Ctrl\-C ends making a set at the next file; an install goes through its list first.
A second one kills, which is safe: no file of the simulator is ever half written.
.SH OPTIONS
)"_s;

const QString end = uR"(.SH EXIT STATUS
0 when done; 1 when a message told of a failure, when nothing was done because nobody answered, when Ctrl\-C ended
a question, and when stdout could not be written; 2 for wrong usage, which is told in one line before anything is
done.
.SH ENVIRONMENT
.TP
.B MORVANE_HOME
the install folder when
.B \-\-home
names none
.SH FILES
.TP
.I ~/.local/share/Morvane
the install folder when nothing names another; the first start of
.BR morvane (1)
fills it, as
.BR morvane\-content (1)
does
.SH SEE ALSO
.BR morvane (1),
.BR morvane\-content (1)
)"_s;

QString page(const QString& date) {
    const QString version = QStringLiteral(MORVANE_VERSION);
    QString text =
        u".TH MORVANE\\-CLI 1 \"%1\" \"Morvane %2\" \"User Commands\"\n"_s.arg(date, version) + beginning;
    for (const CommandOption& option : commonOptions())
        text += entryOf(option);
    text += entry(bold(u"-h"_s) + u", "_s + bold(u"--help"_s),
                  u"lists the commands, or shows the one in front of it"_s) +
            entry(bold(u"--version"_s), u"shows the version"_s) + u".SH COMMANDS\n"_s;
    for (const Command& command : commandTable())
        text += entryOf(command);
    return text + end;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("morvane-manual DATE\n", stderr);
        return 2;
    }
    std::fputs(page(QString::fromLocal8Bit(argv[1])).toUtf8().constData(), stdout);
    return 0;
}
