#include "core/text_decoding.h"

#include "core/literals.h"

namespace morvane {

QString decodeText(const QByteArray& bytes) {
    QString text = bytes.isValidUtf8() ? QString::fromUtf8(bytes) : QString::fromLatin1(bytes);
    if (text.startsWith(QChar(QChar::ByteOrderMark))) text.remove(0, 1);
    return text.replace(QChar(u'\0'), u' ');
}

QStringList splitLines(const QString& text) {
    if (text.isEmpty()) return {};
    QStringList lines = text.split(u'\n');
    for (qsizetype i = 0; i + 1 < lines.size(); ++i)
        if (lines[i].endsWith(u'\r')) lines[i].chop(1);
    return lines;
}

} // namespace morvane
