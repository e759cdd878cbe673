#include "core/wine_prefixes.h"

#include "core/attempts.h"
#include "core/file_helpers.h"
#include "core/reading_limits.h"
#include "core/registry.h"
#include "core/registry_file.h"
#include "core/session.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>

namespace morvane {

namespace {

/// A character that stands as "\x", "\u" or "\U" and its number, or as itself behind a "\".
QString withoutEscapes(const QString& text) {
    static const QRegularExpression escape(
        u"\\\\(?:x([0-9A-Fa-f]{2})|u([0-9A-Fa-f]{4})|U([0-9A-Fa-f]{8})|(.))"_s);
    QString plain;
    qsizetype end = 0;
    for (QRegularExpressionMatchIterator found = escape.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        plain += text.mid(end, match.capturedStart() - end);
        const QString number = match.captured(1) + match.captured(2) + match.captured(3);
        const char32_t character = number.toUInt(nullptr, 16);
        plain += number.isEmpty() ? match.captured(4) : QString::fromUcs4(&character, 1);
        end = match.capturedEnd();
    }
    return plain + text.mid(end);
}

/// Each drive of a prefix is a link below "dosdevices", in lower case.
QString driveRoot(const WinePrefix& prefix, const QString& path) {
    static const QRegularExpression drive(u"^[A-Za-z]:(?=[\\\\/]|$)"_s);
    const QString letter = drive.match(path).captured().toLower();
    if (letter.isEmpty()) return {};
    return QFileInfo(prefix.folder + u"/dosdevices/"_s + letter).canonicalFilePath();
}

/// Empty where there is none.
FilePath simulatorAt(FileSystem& files, const WinePrefix& prefix, const QString& path) {
    FilePath found;
    attempt([&] {
        const QString root = driveRoot(prefix, path);
        if (root.isEmpty()) return;
        const FilePath folder = FilePath(root) / QStringView(path).sliced(2);
        if (holdsSimulator(files, folder.native())) found = FilePath(folder.native());
    });
    return found;
}

QStringList pathsInRegistry(FileSystem& files, const WinePrefix& prefix) {
    QString view = simulatorKey;
    view.replace(u"Software\\"_s, u"Software\\Wow6432Node\\"_s);
    QStringList paths;
    for (const QString& name : {u"/system.reg"_s, u"/user.reg"_s}) {
        const QByteArray contents = readBounded(files, FilePath(prefix.folder + name), largestRegistryFile);
        paths << textsInRegistryFile(contents, {view, simulatorKey}, u"EXE Path"_s);
    }
    return paths;
}

qsizetype indentOf(const QByteArray& line) {
    return std::ranges::find_if(line, [](char c) { return c != ' '; }) - line.begin();
}

/// A long text goes on in lines that lie further in. Their ends are blanks, but where a "\\" stands before.
QString unfolded(QList<QByteArray>::const_iterator line, QList<QByteArray>::const_iterator end) {
    const qsizetype indent = indentOf(*line);
    QByteArray text = line->trimmed();
    while (++line != end && indentOf(*line) > indent && !line->trimmed().isEmpty()) {
        if (text.endsWith('\\'))
            text.chop(1);
        else
            text += ' ';
        text += line->trimmed();
    }
    return QString::fromUtf8(text);
}

QString unquoted(const QString& text) {
    const bool isQuoted = text.size() > 1 && text.front() == text.back();
    const QString inside = isQuoted ? text.sliced(1, text.size() - 2) : text;
    if (isQuoted && text.front() == u'"') return withoutEscapes(inside);
    return isQuoted && text.front() == u'\'' ? QString(inside).replace(u"''"_s, u"'"_s) : text;
}

} // namespace

QString textOfLine(const QByteArray& lines, const QByteArray& name) {
    const QList<QByteArray> all = lines.split('\n');
    const auto isNamed = [&](const QByteArray& line) { return line.trimmed().startsWith(name + ':'); };
    const auto line = std::ranges::find_if(all, isNamed);
    return line == all.end() ? QString()
                             : unquoted(unfolded(line, all.end()).sliced(name.size() + 1).trimmed());
}

std::vector<PrefixSimulator> simulatorsInPrefixes(FileSystem& files) {
    std::vector<PrefixSimulator> found;
    for (const WinePrefix& prefix : winePrefixes(files))
        for (const QString& path : pathsInRegistry(files, prefix)) {
            const FilePath folder = simulatorAt(files, prefix, path);
            const auto isSame = [&](const PrefixSimulator& other) {
                return isSameFolder(other.folder, folder);
            };
            if (!folder.isEmpty() && std::ranges::none_of(found, isSame)) found.push_back({folder, prefix});
        }
    return found;
}

} // namespace morvane
