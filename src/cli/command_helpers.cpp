#include "cli/command_helpers.h"

#include "cli/terminal.h"
#include "core/error.h"
#include "core/numbers.h"
#include "imaging/picture_reader.h"
#include "sets/cloud_cover.h"

#include <QLocale>

namespace morvane {

const Operand setName{u"NAME"_s, u"the set's name, in quotes where it has blanks"_s};
const Operand inPicture{u"IN"_s, u"the picture that is read"_s};
const CommandOption jsonOption{u"--json"_s, u"prints one JSON object instead of lines"_s};
const CommandOption dryRunOption{u"--dry-run"_s, u"says what would be done, and changes nothing"_s};
const Operand outFile{u"OUT"_s, u"the file that is written"_s};

Operand countOperand(const QString& name, const QString& meaning) {
    const auto isCount = [](const QString& word) { return isDigits(word); };
    return {.name = name, .meaning = meaning, .takes = u"a whole number"_s, .isTaken = isCount};
}

Operand coverOperand() {
    Operand cover{.name = u"WORD"_s, .meaning = u"the cloud cover"_s};
    for (int number = 1; number <= cloudCoverCount; ++number)
        cover.entries << cloudCover(number)->code;
    return cover;
}

std::vector<Operand> fiveCounts() {
    return {countOperand(u"N1"_s, u"how many for clear skies"_s),
            countOperand(u"N2"_s, u"how many for mostly clear skies"_s),
            countOperand(u"N3"_s, u"how many for partly cloudy skies"_s),
            countOperand(u"N4"_s, u"how many for mostly cloudy skies"_s),
            countOperand(u"N5"_s, u"how many for overcast skies"_s)};
}

bool isNumberWithin(const QString& word, double lowest, double highest) {
    bool isNumber = false;
    const double number = QLocale::c().toDouble(word, &isNumber);
    return isNumber && number >= lowest && number <= highest;
}

FilePath pathOfArgument(const QString& argument) {
    return FilePath(fullPath(argument));
}

void fail(CommandContext& context, const QString& text) {
    context.user.showMessage({MessageKind::error, u"Morvane Error"_s, text, true, false, false});
}

std::array<std::int16_t, 5> countsOfArguments(const QStringList& arguments, qsizetype first) {
    std::array<std::int16_t, 5> counts{};
    for (std::size_t i = 0; i < counts.size(); ++i) {
        bool fits = false;
        const qlonglong count = arguments[first + static_cast<qsizetype>(i)].toLongLong(&fits);
        if (!fits) throw Error(ErrorCode::overflow);
        counts[i] = toInteger(count);
    }
    return counts;
}

void recolourFile(CommandContext& context,
                  const std::function<void(const cDIBSection& source, cDIBSection& result)>& recolour) {
    const qsizetype last = context.arguments.size() - 1;
    cDIBSection source, result;
    source.CreateFromPicture(loadPicture(context.session.files, pathOfArgument(context.arguments[last - 1])));
    if (!result.Create(source.Width(), source.Height())) throw Error(ErrorCode::outOfMemory);
    recolour(source, result);
    const FilePath target = pathOfArgument(context.arguments[last]);
    if (!result.SavePicture(target)) throw Error(ErrorCode::diskFull, target.text());
}

} // namespace morvane
