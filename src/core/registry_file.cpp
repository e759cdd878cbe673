#include "core/registry_file.h"

#include "core/literals.h"
#include "core/reading_limits.h"

#include <algorithm>
#include <optional>

namespace morvane {

namespace {

/// Takes the next line off, without its end.
QByteArrayView takeLine(QByteArrayView& rest) {
    const qsizetype end = rest.indexOf('\n');
    QByteArrayView line = end < 0 ? rest : rest.first(end);
    rest = end < 0 ? QByteArrayView() : rest.sliced(end + 1);
    if (line.endsWith('\r')) line.chop(1);
    return line;
}

/// Takes up to `most` digits off; nothing when there is none.
std::optional<char16_t> takeNumber(QByteArrayView& rest, int base, qsizetype most) {
    qsizetype count = 0;
    uint value = 0;
    for (; count < std::min(most, rest.size()); ++count) {
        const int digit = QByteArrayView("0123456789abcdef").indexOf(QChar::toLower(uchar(rest[count])));
        if (digit < 0 || digit >= base) break;
        value = value * static_cast<uint>(base) + static_cast<uint>(digit);
    }
    rest = rest.sliced(count);
    return count == 0 ? std::nullopt : std::optional(static_cast<char16_t>(value));
}

/// What stands behind a "\": a letter for a control character, a number, or the character itself. Letters
/// beyond ASCII are numbers of UTF-16.
char16_t takeEscaped(QByteArrayView& rest) {
    if (const std::optional<char16_t> number = takeNumber(rest, 8, 3)) return *number;
    const char c = rest.front();
    rest = rest.sliced(1);
    if (c == 'x') return takeNumber(rest, 16, 4).value_or(u'x');
    constexpr QByteArrayView letters("abefnrtv"), meanings("\a\b\x1B\f\n\r\t\v");
    const qsizetype at = letters.indexOf(c);
    return static_cast<uchar>(at < 0 ? c : meanings[at]);
}

/// Takes the text off up to `end`, and that too; nothing where the line has no end.
std::optional<QString> takeText(QByteArrayView& rest, char end) {
    QString text;
    while (!rest.isEmpty()) {
        const char c = rest.front();
        rest = rest.sliced(1);
        if (c == end) return text;
        if (c != '\\')
            text += QLatin1Char(c);
        else if (!rest.isEmpty())
            text += QChar(takeEscaped(rest));
    }
    return std::nullopt;
}

bool takeSign(QByteArrayView& rest, QByteArrayView sign) {
    if (!rest.startsWith(sign)) return false;
    rest = rest.sliced(sign.size());
    return true;
}

/// -1 for none.
qsizetype indexOf(const QStringList& keys, const std::optional<QString>& key) {
    const auto found = std::ranges::find_if(
        keys, [&](const QString& each) { return key && each.compare(*key, Qt::CaseInsensitive) == 0; });
    return found == keys.end() ? -1 : found - keys.begin();
}

/// The line's text when it is a line of that value; empty for a value of another type.
std::optional<QString> valueOf(QByteArrayView line, const QString& name) {
    if (!takeSign(line, "\"")) return std::nullopt;
    const std::optional<QString> found = takeText(line, '"');
    if (!found || found->compare(name, Qt::CaseInsensitive) != 0) return std::nullopt;
    if (!takeSign(line, "=\"") && !takeSign(line, "=str(2):\"")) return QString();
    const QString text = takeText(line, '"').value_or(QString());
    return text.left(text.indexOf(QChar(u'\0')));
}

} // namespace

QStringList textsInRegistryFile(const QByteArray& contents, const QStringList& keys, const QString& name) {
    QStringList texts(keys.size());
    qsizetype current = -1; // among the keys
    for (QByteArrayView rest = contents; !rest.isEmpty();) {
        QByteArrayView line = takeLine(rest);
        const bool isKey = takeSign(line, "[");
        if (isKey) current = -1;
        if ((!isKey && current < 0) || line.size() > longestRegistryLine) continue;
        if (isKey)
            current = indexOf(keys, takeText(line, ']'));
        else if (const std::optional<QString> text = valueOf(line, name))
            texts[current] = *text;
    }
    return texts;
}

} // namespace morvane
