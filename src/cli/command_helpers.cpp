#include "cli/command_helpers.h"

#include "core/error.h"
#include "core/numbers.h"
#include "imaging/picture_reader.h"

#include <QDir>

namespace morvane {

FilePath pathOfArgument(const QString& argument) {
    return FilePath(QDir::current().absoluteFilePath(argument));
}

void fail(CommandContext& context, const QString& text) {
    context.user.showMessage({MessageKind::error, u"Morvane Error"_s, text, true, false, false});
}

std::optional<std::array<std::int16_t, 5>> countsOfArguments(const QStringList& arguments, qsizetype first) {
    std::array<std::int16_t, 5> counts{};
    for (std::size_t i = 0; i < counts.size(); ++i) {
        const QString& text = arguments[first + static_cast<qsizetype>(i)];
        if (!isDigits(text)) return std::nullopt;
        counts[i] = toInteger(text.toLongLong());
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
