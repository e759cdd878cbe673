#include "sets/undo_record.h"

#include "core/bounded_reading.h"
#include "core/literals.h"

#include <QJsonArray>

namespace morvane {

namespace {

/// No fact begins so: whoever reads facts alone passes the line over.
constexpr char mark[] = "undo\t";

std::optional<QJsonObject> doneIn(const QByteArray& bytes) {
    const qsizetype begin = bytes.indexOf('\n') + 1;
    const QByteArray line = bytes.mid(begin, bytes.indexOf('\n', begin) - begin);
    if (!line.startsWith(mark)) return std::nullopt;
    const QJsonDocument document = parseJson(line.mid(qstrlen(mark)));
    return document.isObject() ? std::optional(document.object()) : std::nullopt;
}

} // namespace

QByteArray undoText(const UndoRecord& record) {
    const QJsonObject done{{u"parts"_s, QJsonArray::fromStringList(record.parts)},
                           {u"time"_s, record.time.toString(Qt::ISODate)},
                           {u"rows"_s, record.rows}};
    QByteArray lines = headLine(record.simulator, 0);
    lines += mark + QJsonDocument(done).toJson(QJsonDocument::Compact) + '\n';
    qsizetype size = lines.size();
    for (const OriginalFact& fact : record.stood)
        size += usualLength(fact);
    lines.reserve(size);
    for (const OriginalFact& fact : record.stood)
        addFactLine(lines, fact);
    return lines;
}

std::optional<UndoRecord> parseUndo(const QByteArray& bytes, const FilePath& file) {
    const auto done = doneIn(bytes);
    if (!done) return std::nullopt;
    const OriginalsText list = parseOriginals(bytes, file);
    return UndoRecord{list.simulator, (*done)[u"parts"_s].toVariant().toStringList(),
                      QDateTime::fromString((*done)[u"time"_s].toString(), Qt::ISODate),
                      (*done)[u"rows"_s].toObject(), list.facts};
}

} // namespace morvane
