#include "core/ini_file.h"

#include "core/bounded_reading.h"
#include "core/error.h"
#include "core/literals.h"
#include "core/numbers.h"
#include "core/reading_limits.h"
#include "core/text_decoding.h"

#include <QRegularExpression>
#include <QStringDecoder>

namespace morvane {

namespace {

constexpr qsizetype longestValue = 511;

bool sameName(QStringView a, QStringView b) {
    return trimmedBlanksView(a).compare(trimmedBlanksView(b), Qt::CaseInsensitive) == 0;
}

std::optional<QStringView> sectionName(QStringView line) {
    const QStringView text = line.trimmed();
    if (!text.startsWith(u'[')) return std::nullopt;
    const qsizetype close = text.lastIndexOf(u']'); // registry keys may hold brackets themselves
    return close > 0 ? text.mid(1, close - 1) : text.mid(1);
}

} // namespace

IniFile IniFile::parse(const QByteArray& bytes) {
    IniFile ini;
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder(bytes); // NULs stay: the registry cuts at them, an INI value turns them to blanks
    if (decoder.hasError()) text = QString::fromLatin1(bytes);
    ini.lines_ = splitLines(text);
    if (!ini.lines_.isEmpty() && ini.lines_.last().isEmpty()) ini.lines_.removeLast();
    return ini;
}

QByteArray IniFile::toBytes() const {
    QByteArray bytes;
    for (const QString& line : lines_)
        bytes += line.toUtf8() + "\r\n";
    return bytes;
}

std::optional<IniFile::Span> IniFile::linesOf(const QString& section) const {
    std::optional<Span> span;
    for (qsizetype i = 0; i < lines_.size(); ++i) {
        const auto name = sectionName(lines_[i]);
        if (!name) continue;
        if (span) return Span{span->first, i};
        if (sameName(*name, section)) span = Span{i + 1, lines_.size()};
    }
    return span;
}

qsizetype IniFile::lineOf(const QString& section, const QString& key) const {
    const auto span = linesOf(section);
    if (!span) return -1;
    for (qsizetype i = span->first; i < span->end; ++i) {
        const qsizetype equals = lines_[i].indexOf(u'=');
        if (equals > 0 && sameName(QStringView(lines_[i]).first(equals), key)) return i;
    }
    return -1;
}

bool IniFile::hasSection(const QString& section) const {
    return linesOf(section).has_value();
}

void IniFile::addSection(const QString& section) {
    if (!hasSection(section)) lines_ << u"["_s + section + u"]"_s;
}

std::optional<QString> IniFile::rawValue(const QString& section, const QString& key) const {
    const qsizetype line = lineOf(section, key);
    if (line < 0) return std::nullopt;
    return trimmedBlanks(QStringView(lines_[line]).mid(lines_[line].indexOf(u'=') + 1));
}

void IniFile::setRawValue(const QString& section, const QString& key, const QString& value) {
    const qsizetype line = lineOf(section, key);
    const QString text = key + u'=' + value;
    if (line >= 0) {
        lines_[line] = text;
        return;
    }
    addSection(section);
    lines_.insert(linesOf(section)->end, text);
}

QString IniFile::text(const QString& section, const QString& key) const {
    QString value = withoutQuotes(rawValue(section, key).value_or(QString()));
    value.replace(QChar(u'\0'), u' ');
    return trimmedBlanks(value.left(longestValue));
}

int IniFile::number(const QString& section, const QString& key) const {
    static const QRegularExpression digits(u"^-?[0-9]+"_s);
    return digits.match(text(section, key)).captured().toInt();
}

IniFile loadIni(FileSystem& files, const FilePath& file) {
    try {
        return IniFile::parse(readAtMost(files, file, largestSettings, u"a file of settings"_s));
    } catch (const Error& error) {
        if (error.code() == ErrorCode::fileNotFound) return {};
        throw;
    }
}

IniFile readIni(FileSystem& files, const FilePath& file) {
    try {
        return loadIni(files, file);
    } catch (const Error&) {
        return {};
    }
}

QString withoutQuotes(const QString& value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == u'"' || value.front() == u'\'');
    return quoted ? value.mid(1, value.size() - 2) : value;
}

int GetIniInt(FileSystem& files, const QString& section, const QString& key, const FilePath& file) {
    return readIni(files, file).number(section, key);
}

QString GetIniString(FileSystem& files, const QString& section, const QString& key, const FilePath& file) {
    return readIni(files, file).text(section, key);
}

int WriteIni(FileSystem& files, const QString& section, const QString& key, const QString& value,
             const FilePath& file) {
    try {
        IniFile ini = loadIni(files, file);
        ini.setRawValue(section, key, value);
        files.write(file, ini.toBytes());
        return 1;
    } catch (const Error&) {
        return 0;
    }
}

} // namespace morvane
