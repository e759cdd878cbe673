#include "sets/fact_format.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace morvane {

namespace {

/// Names may hold what ends columns and lines.
bool isEscaped(char c) {
    return c == '%' || c == '\t' || c == '\n' || c == '\r' || c == '\0';
}

void addEscaped(QByteArray& line, const QString& text) {
    const QByteArray bytes = text.toUtf8();
    if (std::ranges::none_of(bytes, isEscaped)) {
        line += bytes;
        return;
    }
    for (const char c : bytes)
        if (isEscaped(c))
            line += '%' + QByteArray(1, c).toHex();
        else
            line += c;
}

/// Columns in which no name stands, gathered here: to join each to the list takes longer than to make it.
class PlainColumns {
public:
    void add(QByteArrayView text) { end_ = std::copy(text.begin(), text.end(), end_); }
    void endColumn() { *end_++ = '\t'; }
    /// None for zero.
    template <class Number>
    void addNumber(Number number, int base = 10) {
        if (number) end_ = std::to_chars(end_, std::end(text_), number, base).ptr;
    }
    /// As Qt::ISODate.
    void addDay(const QDate& day) {
        if (!day.isValid()) return;
        addDigits(day.year() / 100);
        addDigits(day.year() % 100);
        for (const int part : {day.month(), day.day()}) {
            *end_++ = '-';
            addDigits(part);
        }
    }
    QByteArrayView text() const { return {text_, end_ - text_}; }

private:
    void addDigits(int two) {
        if (two < 10) *end_++ = '0';
        end_ = std::to_chars(end_, std::end(text_), two).ptr;
    }

    char text_[192]; // 134 at most
    char* end_ = text_;
};

} // namespace

QByteArray headLine(const QString& simulator, std::uint64_t folderNumber) {
    QByteArray line = factFormatName.toByteArray() + '\t' + QByteArray::number(factFormatVersion) + '\t' +
                      QByteArray::number(qulonglong{folderNumber}) + '\t';
    addEscaped(line, simulator);
    return line += '\n';
}

void addFactLine(QByteArray& lines, const OriginalFact& fact) {
    PlainColumns columns;
    columns.add(std::ranges::find(factWords, fact.kind, &std::pair<FactKind, QByteArrayView>::first)->second);
    columns.endColumn();
    columns.addNumber(fact.print.size);
    columns.endColumn();
    columns.add(fact.print.checksum.hex());
    columns.endColumn();
    columns.addNumber(fact.time);
    columns.endColumn();
    columns.addNumber(fact.number);
    columns.endColumn();
    columns.addNumber(fact.mode, baseOfModes);
    columns.endColumn();
    columns.addDay(fact.day);
    columns.endColumn();
    lines.append(columns.text());
    addEscaped(lines, fact.where);
    lines += '\t';
    addEscaped(lines, fact.path);
    lines += '\n';
}

qsizetype usualLength(const OriginalFact& fact) {
    constexpr qsizetype otherColumns = 120;
    return otherColumns + fact.where.size() + fact.path.size();
}

} // namespace morvane
