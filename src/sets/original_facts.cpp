#include "sets/original_facts.h"

#include "core/error.h"
#include "core/literals.h"
#include "sets/fact_format.h"

#include <QHash>
#include <QVarLengthArray>
#include <algorithm>
#include <optional>
#include <utility>

namespace morvane {

namespace {

std::optional<FactKind> kindOf(QByteArrayView word) {
    for (const auto& [kind, known] : factWords)
        if (word == known) return kind;
    return std::nullopt;
}

QString unescaped(QByteArrayView text) {
    if (!text.contains('%')) return QString::fromUtf8(text);
    return QString::fromUtf8(QByteArray::fromPercentEncoding(text.toByteArray()));
}

/// The path as the program joins it; empty for one that would lead out of its folder.
QString insidePath(const QString& text) {
    try {
        return (FilePath() / text).relative();
    } catch (const Error&) {
        return {};
    }
}

/// Reads columns that most lines have in common with the one before.
class CommonColumns {
public:
    /// One text for all facts of a path.
    QString path(QByteArrayView text) {
        if (text != pathText_) path_ = inside(unescaped(text));
        pathText_ = text;
        return path_;
    }
    QDate day(QByteArrayView text) {
        if (text != dayText_) day_ = QDate::fromString(QString::fromLatin1(text), Qt::ISODate);
        dayText_ = text;
        return day_;
    }

private:
    QString inside(const QString& text) {
        const QString folder = folderOf(text);
        const bool isKnown = !folder.isEmpty() && folder == folder_;
        if (isKnown && FilePath::isChildName(text.mid(folder.size() + 1))) return text;
        const QString path = insidePath(text);
        if (path == text) folder_ = folder;
        return path;
    }

    QByteArrayView pathText_, dayText_;
    QString path_, folder_;
    QDate day_;
};

using Columns = QVarLengthArray<QByteArrayView, 12>;

Columns columnsOf(QByteArrayView line) {
    Columns columns;
    while (true) {
        const qsizetype end = line.indexOf('\t');
        columns.append(end < 0 ? line : line.first(end));
        if (end < 0) return columns;
        line = line.sliced(end + 1);
    }
}

/// The columns in their order: fact, size, check sum, time, number, mode, day, where, path.
constexpr int columnCount = 9;

std::optional<OriginalFact> factOf(const Columns& columns, CommonColumns& common) {
    if (columns.size() != columnCount) return std::nullopt;
    const std::optional<FactKind> kind = kindOf(columns[0]);
    const QString path = common.path(columns[8]), where = unescaped(columns[7]);
    if (!kind || path.isEmpty()) return std::nullopt;
    return OriginalFact{*kind,
                        path,
                        {columns[1].toLongLong(), CheckSum::ofHex(columns[2].toByteArray())},
                        columns[3].toLongLong(),
                        columns[4].toULongLong(),
                        columns[5].toUInt(nullptr, baseOfModes),
                        common.day(columns[6]),
                        where == path ? path : where};
}

/// Lists of old: "kept" or "ours", size, check sum, path. Their paths were spelled as our own files are and
/// stood for every spelling, so all facts of one file come under the first; a kept file lay under its path.
class OldList {
public:
    std::optional<OriginalFact> factOf(const Columns& columns) {
        if (columns.size() != 4) return std::nullopt;
        const std::optional<FactKind> kind = kindOf(columns[0]);
        const QString path = insidePath(QString::fromUtf8(columns[3]));
        if (path.isEmpty() || !kind) return std::nullopt;
        QString& spelling = spellings_[path.toCaseFolded()];
        if (spelling.isEmpty()) spelling = path;
        OriginalFact fact{
            *kind, spelling, {columns[1].toLongLong(), CheckSum::ofHex(columns[2].toByteArray())}};
        if (fact.kind == FactKind::kept) fact.where = path;
        return fact;
    }

private:
    QHash<QString, QString> spellings_;
};

/// False when the line is no head.
bool readHead(QByteArrayView line, const FilePath& file, OriginalsText& text) {
    const Columns columns = columnsOf(line);
    if (columns[0] != factFormatName) return false;
    if (columns.value(1).toInt() > factFormatVersion)
        throw Error::withDescription(ErrorCode::permissionDenied,
                                     u"The list of your kept files was written by a newer version of Morvane "
                                     u"and is left as it is: "_s +
                                         file.text());
    text.hasHead = true;
    text.folderNumber = columns.value(2).toULongLong();
    text.simulator = unescaped(columns.value(3));
    return true;
}

/// Takes the first line off the text, which ends in a line end.
QByteArrayView takeLine(QByteArrayView& text) {
    const qsizetype end = text.indexOf('\n');
    const QByteArrayView line = text.first(end);
    text = text.sliced(end + 1);
    return line.endsWith('\r') ? line.chopped(1) : line;
}

} // namespace

QString folderOf(const QString& path) {
    return path.left(std::max<qsizetype>(path.lastIndexOf(u'\\'), 0));
}

OriginalsText parseOriginals(const QByteArray& bytes, const FilePath& file) {
    OriginalsText text;
    QByteArrayView left(bytes);
    left.truncate(bytes.lastIndexOf('\n') + 1); // without the line that a kill tore
    CommonColumns common;
    OldList old;
    for (bool isFirst = true; !left.isEmpty(); isFirst = false) {
        const QByteArrayView line = takeLine(left);
        if (isFirst && readHead(line, file, text)) continue;
        if (line.contains('\0')) continue; // blocks that a cut of power left out: two lines in one
        const Columns columns = columnsOf(line);
        const auto fact = text.hasHead ? factOf(columns, common) : old.factOf(columns);
        if (fact) text.facts.push_back(*fact);
    }
    return text;
}

} // namespace morvane
