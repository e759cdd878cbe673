#include "core/private_texts.h"

#include "core/literals.h"

#include <QDir>
#include <QRegularExpression>
#include <algorithm>

namespace morvane {

namespace {

constexpr qsizetype longestLine = 2000, longestTyped = 500, longestWord = 3;

const QStringList fileEndings{u"morvaneset"_s, u"pln"_s, u"lnmpln"_s, u"flt"_s,
                              u"wx"_s,         u"zip"_s, u"png"_s,    u"txt"_s};

using Option = QRegularExpression::PatternOption;
constexpr auto anyCase = Option::CaseInsensitiveOption | Option::UseUnicodePropertiesOption;

void add(std::vector<PrivateText>& texts, const std::vector<PrivateText>& more) {
    texts.insert(texts.end(), more.begin(), more.end());
}

/// Both separators mean the same, and so do runs of blanks and line breaks.
QString patternOf(const QString& text) {
    QString pattern;
    for (const QChar letter : text.simplified()) {
        if (letter == u'/' || letter == u'\\')
            pattern += u"[\\\\/]+"_s;
        else if (letter == u' ')
            pattern += u"\\s+"_s;
        else
            pattern += QRegularExpression::escape(letter);
    }
    return u"(?<![\\p{L}\\p{N}])"_s + pattern + u"(?![\\p{L}\\p{N}])"_s;
}

/// A look that costs little: there may be hundreds of sets.
bool mayHold(const QString& line, const QString& text) {
    static const QRegularExpression gap(u"[\\s\\\\/]+"_s);
    const QStringList parts = text.split(gap, Qt::SkipEmptyParts);
    return !parts.isEmpty() && line.contains(parts.first(), Qt::CaseInsensitive);
}

void replace(QString& line, const PrivateText& secret) {
    if (!mayHold(line, secret.text)) return;
    line.replace(QRegularExpression(patternOf(secret.text), anyCase),
                 QString(secret.standIn).replace(u'\\', u"\\\\"_s));
}

std::vector<PrivateText> homeTexts() {
    const QString home = QDir::homePath();
    if (home.size() < 2) return {}; // the root of a disk is no home of anybody's
    std::vector<PrivateText> texts = folderTexts(home, u"~"_s);
    const QString name = home.section(u'/', -1);
    for (const QString& folder : {u"users/"_s, u"Documents and Settings/"_s})
        texts.push_back({folder + name, folder + u'~'}); // as Wine has it inside its machine
    return texts;
}

/// Names that no list knows any more, such as that of a set that was removed; those of files; and a home in
/// the short spelling of Windows.
void replaceNames(QString& line) {
    struct Rule {
        QRegularExpression pattern; ///< made ready at its first use, which takes longer than the use
        QString standIn;
        QStringList hints; ///< one of them stands in what it finds
    };
    static const Rule rules[] = {
        {QRegularExpression(u"'(\\d{1,5})-[^\\n]*'"_s), u"'#\\1'"_s, {u"'"_s}},
        {QRegularExpression(u"\\bset (\\d{1,5})-[^\\n]*"_s), u"set #\\1"_s, {u"set "_s}},
        {QRegularExpression(u"(texture sets[\\\\/])(\\d{1,5})-[^\\\\/\\n]*"_s, anyCase),
         u"\\1#\\2"_s,
         {u"texture sets"_s}},
        {QRegularExpression(u"(users[\\\\/])[^\\\\/\\n\"]*~\\d"_s, anyCase), u"\\1~"_s, {u"~"_s}},
        {QRegularExpression(u"[^\\\\/\\n\"]*[^\\\\/\\n\"\\s]\\.("_s + fileEndings.join(u'|') +
                                u")(?![\\p{L}\\p{N}])"_s,
                            anyCase),
         u"<file>.\\1"_s, fileEndings}};
    for (const Rule& rule : rules)
        if (std::ranges::any_of(
                rule.hints, [&](const QString& hint) { return line.contains(hint, Qt::CaseInsensitive); }))
            line.replace(rule.pattern, rule.standIn);
}

QString asOneLine(QString text) {
    for (QChar& letter : text)
        if (!letter.isPrint() && letter != u'\n' && !letter.isSurrogate()) letter = u' ';
    return text.trimmed().replace(u'\n', u" / "_s).left(longestLine);
}

} // namespace

std::vector<PrivateText> PrivateTexts::all() const {
    std::vector<PrivateText> texts;
    for (const auto& source : sources)
        add(texts, source());
    return texts;
}

std::vector<PrivateText> typedTexts(const QString& typed) {
    const QString text = typed.simplified().left(longestTyped), standIn = u"<typed>"_s;
    bool isNumber = false;
    text.toDouble(&isNumber);
    if (text.size() < 2 || isNumber) return {};
    std::vector<PrivateText> texts{{text, standIn}};
    const QStringList words = text.split(u' ');
    for (const QString& word : words)
        if (words.size() > 1 && word.size() > longestWord) texts.push_back({word, standIn});
    return texts;
}

std::vector<PrivateText> folderTexts(const QString& folder, const QString& standIn) {
    const QString plain = QDir::cleanPath(folder);
    if (plain.size() < 2) return {};
    std::vector<PrivateText> texts{{plain, standIn}};
    if (plain.startsWith(u'/')) texts.push_back({u"Z:"_s + plain, standIn}); // Wine's name of it
    if (const QString real = QDir(folder).canonicalPath(); !real.isEmpty() && real != plain)
        texts.push_back({real, standIn});
    return texts;
}

QString withoutPrivate(const QString& text, const std::vector<PrivateText>& texts) {
    std::vector<PrivateText> secrets = texts;
    add(secrets, homeTexts());
    std::ranges::stable_sort(secrets, std::greater(), [](const auto& each) { return each.text.size(); });
    QString line = text.left(2 * longestLine);
    line.replace(QChar(u'\r'), QChar(u'\n'));
    for (const PrivateText& secret : secrets)
        replace(line, secret);
    replaceNames(line);
    return asOneLine(line);
}

} // namespace morvane
