#include "weather/source_notes.h"

#include "core/literals.h"
#include "core/row_set.h"
#include "core/session.h"
#include "core/statement_translation.h"
#include "core/store.h"
#include "core/store_records.h"

namespace morvane {

namespace {

const QString table = u"WEATHER_SOURCES"_s, everyNote = u"SELECT * FROM WEATHER_SOURCES"_s;
/// As wide as their columns.
constexpr qsizetype longestOutcome = 255, longestMark = 255;

QDateTime timeOf(const QString& text) {
    return QDateTime::fromString(text, Qt::ISODate).toUTC();
}

QString textOf(const QDateTime& time) {
    return time.isValid() ? time.toUTC().toString(Qt::ISODate) : QString();
}

SourceNote noteAt(const RowSet& row) {
    return {QUrl(row.text(u"SOURCE_ADDRESS")),
            row.text(u"SOURCE_TEXT"),
            timeOf(row.text(u"ASKED_AT")),
            timeOf(row.text(u"NOT_BEFORE")),
            row.longInteger(u"REFUSALS"),
            row.flag(u"HAS_ANSWERED"),
            row.text(u"OUTCOME"),
            row.flag(u"IS_STORED"),
            QUrl(row.text(u"STORED_FILE")),
            {row.text(u"ENTITY_TAG").toLatin1(), row.text(u"LAST_MODIFIED").toLatin1()}};
}

/// A mark that was cut would be another one.
QString markText(const QByteArray& mark) {
    return mark.size() > longestMark ? QString() : QString::fromLatin1(mark);
}

void writeNote(RowSet& row, const SourceNote& note) {
    const std::pair<QString, QString> texts[] = {{u"SOURCE_ADDRESS"_s, note.address.toString()},
                                                 {u"SOURCE_TEXT"_s, note.text},
                                                 {u"ASKED_AT"_s, textOf(note.asked)},
                                                 {u"NOT_BEFORE"_s, textOf(note.notBefore)},
                                                 {u"OUTCOME"_s, note.outcome.left(longestOutcome)},
                                                 {u"STORED_FILE"_s, note.file.toString()},
                                                 {u"ENTITY_TAG"_s, markText(note.marks.entityTag)},
                                                 {u"LAST_MODIFIED"_s, markText(note.marks.lastModified)}};
    for (const auto& [field, text] : texts)
        row.setText(field, text);
    row.setNumber(u"REFUSALS", note.refusals);
    row.setFlag(u"HAS_ANSWERED", note.hasAnswered);
    row.setFlag(u"IS_STORED", note.isStored);
    row.update();
}

QString rowOf(const QUrl& address) {
    return everyNote + u" WHERE SOURCE_ADDRESS = '"_s + makeStatementSafe(address.toString()) + u'\'';
}

} // namespace

SourceNote noteOf(const Session& session, const QUrl& address) {
    Store& store = connectedStore(session);
    if (store.hasTable(table)) // one that could not be brought up to date, or is only read, may have none
        if (const RowSet row(store, rowOf(address)); !row.atEnd()) return noteAt(row);
    return {.address = address};
}

std::optional<SourceNote> storedNote(const Session& session) {
    if (!hasStore(session) || !connectedStore(session).hasTable(table)) return std::nullopt;
    for (RowSet row(connectedStore(session), everyNote); !row.atEnd(); row.next())
        if (row.flag(u"IS_STORED")) return noteAt(row);
    return std::nullopt;
}

void keepNote(const Session& session, const SourceNote& note) {
    if (!connectedStore(session).hasTable(table)) return;
    RowSet row(connectedStore(session), rowOf(note.address));
    if (row.atEnd()) row.addNew();
    writeNote(row, note);
}

void keepStoredNote(const Session& session, SourceNote note) {
    if (!connectedStore(session).hasTable(table)) return;
    for (RowSet row(connectedStore(session), everyNote); !row.atEnd(); row.next()) {
        row.setFlag(u"IS_STORED", false);
        row.update();
    }
    note.isStored = true;
    keepNote(session, note);
}

} // namespace morvane
