#include "sets/original_facts.h"

#include "core/error.h"
#include "core/literals.h"
#include "core/text_decoding.h"

#include <QHash>
#include <algorithm>
#include <optional>
#include <utility>

namespace morvane {

namespace {

constexpr int currentVersion = 2, octal = 8;
const QString formatName = u"morvane-originals"_s;

constexpr std::pair<FactKind, QLatin1StringView> factWords[] = {
    {FactKind::kept, QLatin1StringView("kept")},     {FactKind::added, QLatin1StringView("added")},
    {FactKind::ours, QLatin1StringView("ours")},     {FactKind::mode, QLatin1StringView("mode")},
    {FactKind::folder, QLatin1StringView("folder")}, {FactKind::gone, QLatin1StringView("gone")}};

std::optional<FactKind> kindOf(const QString& word) {
    for (const auto& [kind, known] : factWords)
        if (word == known) return kind;
    return std::nullopt;
}

/// Names may hold what ends columns and lines.
QString escaped(QString text) {
    for (const char16_t c : {u'%', u'\t', u'\n', u'\r', u'\0'})
        text.replace(QChar(c), u"%%1"_s.arg(int(c), 2, 16, QChar(u'0')));
    return text;
}

QString unescaped(const QString& text) {
    return QString::fromUtf8(QByteArray::fromPercentEncoding(text.toUtf8()));
}

/// The path as the program joins it; empty for one that would lead out of its folder.
QString insidePath(const QString& text) {
    try {
        return (FilePath() / text).relative();
    } catch (const Error&) {
        return {};
    }
}

template <class Number>
QString textOf(Number number, int base = 10) {
    return number ? QString::number(number, base) : QString();
}

QByteArray lineOf(const QStringList& columns) {
    return columns.join(u'\t').toUtf8() + '\n';
}

/// The columns in their order: fact, size, check sum, time, number, mode, day, where, path.
constexpr int columnCount = 9;

std::optional<OriginalFact> factOf(const QStringList& columns) {
    if (columns.size() != columnCount) return std::nullopt;
    const std::optional<FactKind> kind = kindOf(columns[0]);
    const QString path = insidePath(unescaped(columns[8]));
    if (!kind || path.isEmpty()) return std::nullopt;
    return OriginalFact{*kind,
                        path,
                        {columns[1].toLongLong(), columns[2]},
                        columns[3].toLongLong(),
                        columns[4].toULongLong(),
                        columns[5].toUInt(nullptr, octal),
                        QDate::fromString(columns[6], Qt::ISODate),
                        unescaped(columns[7])};
}

/// Lists of old: "kept" or "ours", size, check sum, path. Their paths were spelled as our own files are and
/// stood for every spelling, so all facts of one file come under the first; a kept file lay under its path.
class OldList {
public:
    std::optional<OriginalFact> factOf(const QStringList& columns) {
        const std::optional<FactKind> kind = kindOf(columns[0]);
        const QString path = insidePath(columns.value(3));
        if (columns.size() != 4 || path.isEmpty() || !kind) return std::nullopt;
        QString& spelling = spellings_[path.toCaseFolded()];
        if (spelling.isEmpty()) spelling = path;
        OriginalFact fact{*kind, spelling, {columns[1].toLongLong(), columns[2]}};
        if (fact.kind == FactKind::kept) fact.where = path;
        return fact;
    }

private:
    QHash<QString, QString> spellings_;
};

/// False when the line is no head.
bool readHead(const QString& line, const FilePath& file, OriginalsText& text) {
    const QStringList columns = line.split(u'\t');
    if (columns[0] != formatName) return false;
    if (columns.value(1).toInt() > currentVersion)
        throw Error::withDescription(ErrorCode::permissionDenied,
                                     u"The list of your kept files was written by a newer version of Morvane "
                                     u"and is left as it is: "_s +
                                         file.text());
    text.hasHead = true;
    text.folderNumber = columns.value(2).toULongLong();
    text.simulator = unescaped(columns.value(3));
    return true;
}

} // namespace

QString folderOf(const QString& path) {
    return path.left(std::max<qsizetype>(path.lastIndexOf(u'\\'), 0));
}

QByteArray headLine(const QString& simulator, std::uint64_t folderNumber) {
    return lineOf(
        {formatName, QString::number(currentVersion), QString::number(folderNumber), escaped(simulator)});
}

QByteArray factLine(const OriginalFact& fact) {
    const auto word =
        std::ranges::find(factWords, fact.kind, &std::pair<FactKind, QLatin1StringView>::first)->second;
    return lineOf({word, textOf(fact.print.size), fact.print.checksum, textOf(fact.time), textOf(fact.number),
                   textOf(fact.mode, octal), fact.day.toString(Qt::ISODate), escaped(fact.where),
                   escaped(fact.path)});
}

OriginalsText parseOriginals(const QByteArray& bytes, const FilePath& file) {
    OriginalsText text;
    const QByteArray whole = bytes.first(bytes.lastIndexOf('\n') + 1); // without the line that a kill tore
    QStringList lines = splitLines(QString::fromUtf8(whole));
    if (!lines.isEmpty() && readHead(lines[0], file, text)) lines.removeFirst();
    OldList old;
    for (const QString& line : lines) {
        if (line.contains(QChar())) continue; // blocks that a cut of power left out: two lines in one
        const QStringList columns = line.split(u'\t');
        const auto fact = text.hasHead ? factOf(columns) : old.factOf(columns);
        if (fact) text.facts.push_back(*fact);
    }
    return text;
}

} // namespace morvane
