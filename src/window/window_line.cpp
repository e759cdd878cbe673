#include "window/window_line.h"

#include "core/literals.h"
#include "core/opened_file.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <algorithm>

namespace morvane {

namespace {

const QString help = u"help"_s, version = u"version"_s, home = u"home"_s;

QString helpText() {
    return u"Usage: morvane [--home DIR] [CLR|FEW|SCT|BKN|OVC|FILE]\n\n"
           "Opens the windows. With a cloud cover it installs the sets for that cover and ends, so that "
           "another\nprogram can drive it. A FILE ends in .pln or .lnmpln, a flight plan, which is shown "
           "with its weather,\nor in .morvaneset, a set of another pilot's, which is imported.\n\n"
           "Options:\n"
           "  --home DIR   the install folder\n"
           "  -h, --help   shows this text\n"
           "  --version    shows the version\n\n"
           "Example:\n"
           "  morvane OVC\n"_s;
}

QString slipOf(const QCommandLineParser& parser, bool isUnderstood) {
    if (!isUnderstood) return parser.errorText();
    if (parser.isSet(home) && parser.value(home).isEmpty()) return u"--home stands without its value"_s;
    const QStringList words = parser.positionalArguments();
    const auto dashed =
        std::ranges::find_if(words, [](const QString& word) { return word.startsWith(u'-'); });
    return dashed == words.end() ? QString() : u"Unknown option '%1'."_s.arg(*dashed);
}

} // namespace

WindowLine readWindowLine(const QStringList& typed) {
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions); // "-OVC" is one word
    parser.addOption({{u"h"_s, help}, {}});
    parser.addOption({version, {}});
    parser.addOption({home, {}, u"DIR"_s});
    const bool isUnderstood = parser.parse(QStringList{u"morvane"_s} + typed);
    if (parser.isSet(help)) return {.output = helpText()};
    if (parser.isSet(version))
        return {.output = u"morvane "_s + QCoreApplication::applicationVersion() + u'\n'};
    const QString words = parser.positionalArguments().join(u' '); // a name with blanks may lack its quotes
    const bool isFile = openedFile(words) != OpenedFile::none;
    return {.home = parser.value(home),
            .coverCode = isFile ? QString() : words,
            .file = isFile ? words : QString(),
            .slip = slipOf(parser, isUnderstood)};
}

} // namespace morvane
