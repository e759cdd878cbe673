#include "core/statement_translation.h"

#include "core/literals.h"
#include "core/text_collation.h"

#include <algorithm>
#include <vector>

namespace morvane {

namespace {

enum class TokenKind { word, text, quotedName, blank, symbol };

struct Token {
    TokenKind kind;
    QString spelling;

    bool isWord(QStringView word) const {
        return kind == TokenKind::word && spelling.compare(word, Qt::CaseInsensitive) == 0;
    }
    bool isSymbol(QChar symbol) const { return kind == TokenKind::symbol && spelling.front() == symbol; }
};

using Tokens = std::vector<Token>;
using TokenIterator = Tokens::const_iterator;

bool isWordCharacter(QChar character) {
    return character.isLetterOrNumber() || character == u'_';
}

/// End of a quoted run that starts at `begin`, -1 when it is never closed. Two quotes in a row are one quote
/// inside it.
qsizetype endOfQuoted(const QString& statement, qsizetype begin, QChar closing) {
    for (qsizetype i = begin + 1; i < statement.size(); ++i) {
        if (statement[i] != closing) continue;
        if (i + 1 == statement.size() || statement[i + 1] != closing) return i + 1;
        ++i;
    }
    return -1;
}

template <class Predicate>
qsizetype endOfRun(const QString& statement, qsizetype begin, Predicate belongs) {
    return std::find_if_not(statement.begin() + begin, statement.end(), belongs) - statement.begin();
}

Token tokenAt(const QString& statement, qsizetype begin) {
    const QChar first = statement[begin];
    const auto upTo = [&](TokenKind kind, qsizetype end) {
        return Token{kind, statement.mid(begin, end - begin)};
    };
    if (first == u'\'' || first == u'"' || first == u'[') {
        const qsizetype end = endOfQuoted(statement, begin, first == u'[' ? QChar(u']') : first);
        if (end < 0) return upTo(TokenKind::symbol, statement.size()); // left to SQLite to refuse
        return upTo(first == u'\'' ? TokenKind::text : TokenKind::quotedName, end);
    }
    if (isWordCharacter(first)) return upTo(TokenKind::word, endOfRun(statement, begin, isWordCharacter));
    if (first.isSpace())
        return upTo(TokenKind::blank, endOfRun(statement, begin, [](QChar c) { return c.isSpace(); }));
    return upTo(TokenKind::symbol, begin + 1);
}

Tokens tokensOf(const QString& statement) {
    Tokens tokens;
    for (qsizetype position = 0; position < statement.size(); position += tokens.back().spelling.size())
        tokens.push_back(tokenAt(statement, position));
    return tokens;
}

TokenIterator afterBlanks(TokenIterator token, TokenIterator end) {
    return std::find_if(token, end, [](const Token& t) { return t.kind != TokenKind::blank; });
}

QString joined(TokenIterator begin, TokenIterator end) {
    QString text;
    std::for_each(begin, end, [&](const Token& token) { text += token.spelling; });
    return text;
}

QString valueOf(const Token& text) {
    return text.spelling.mid(1, text.spelling.size() - 2).replace(u"''"_s, u"'"_s);
}

/// Of a table's definition, the parts between the commas; commas inside parentheses do not part.
std::vector<Tokens> splitAtCommas(TokenIterator begin, TokenIterator end) {
    std::vector<Tokens> parts(1);
    int depth = 0;
    for (auto token = begin; token != end; ++token) {
        depth += token->isSymbol(u'(') - token->isSymbol(u')');
        if (depth == 0 && token->isSymbol(u','))
            parts.emplace_back();
        else
            parts.back().push_back(*token);
    }
    return parts;
}

QString textType(const QString& column, const QString& width) {
    const QString compared = u" COLLATE "_s + QLatin1StringView(textCollation);
    if (width.isEmpty()) return u"TEXT"_s + compared;
    // SQLite keeps any length in a TEXT(n). The constraint's name is what the user reads when it is broken.
    return u"TEXT(%2)%3 CONSTRAINT \"%1 takes at most %2 characters\" CHECK(length(%1) <= %2)"_s.arg(
        column, width, compared);
}

/// Width in parentheses behind the type word at `token`, with `token` moved to its closing parenthesis.
QString takeWidth(TokenIterator& token, TokenIterator end) {
    const auto open = afterBlanks(token + 1, end);
    if (open == end || !open->isSymbol(u'(')) return {};
    const auto width = afterBlanks(open + 1, end);
    token = std::find_if(open, end, [](const Token& t) { return t.isSymbol(u')'); });
    return width == end ? QString() : width->spelling;
}

/// One column of a CREATE or ALTER TABLE: its name, its type, constraints.
QString translateColumn(const Tokens& tokens) {
    const auto end = tokens.end();
    const auto name = afterBlanks(tokens.begin(), end);
    if (name == end) return joined(tokens.begin(), end);
    QString column = joined(tokens.begin(), name + 1);
    bool isCounter = false;
    for (auto token = name + 1; token != end; ++token) {
        if (token->isWord(u"COUNTER")) {
            // SQLite takes COUNTER for a type of its own and would leave every key empty.
            isCounter = true;
            column += u"INTEGER"_s;
        } else if (token->isWord(u"KEY") && isCounter) {
            column += u"KEY AUTOINCREMENT"_s; // a key is never used twice: folders are named by it
        } else if (token->isWord(u"YESNO")) {
            column += u"BOOLEAN NOT NULL DEFAULT 0"_s;
        } else if (token->isWord(u"TEXT")) {
            const QString width = takeWidth(token, end);
            column += textType(name->spelling, width);
            if (token == end) break;
        } else {
            column += token->spelling;
        }
    }
    return column;
}

QStringList translateColumns(TokenIterator begin, TokenIterator end) {
    QStringList columns;
    for (const Tokens& part : splitAtCommas(begin, end))
        columns << translateColumn(part);
    return columns;
}

QStringList translateCreateTable(const Tokens& tokens) {
    const auto open =
        std::find_if(tokens.begin(), tokens.end(), [](const Token& t) { return t.isSymbol(u'('); });
    const auto close =
        std::find_if(tokens.rbegin(), tokens.rend(), [](const Token& t) { return t.isSymbol(u')'); }).base();
    if (open == tokens.end() || close <= open + 1) return {joined(tokens.begin(), tokens.end())};
    return {joined(tokens.begin(), open + 1) + translateColumns(open + 1, close - 1).join(u',') +
            joined(close - 1, tokens.end())};
}

QStringList translateAlterTable(const Tokens& tokens) {
    const auto column =
        std::find_if(tokens.begin(), tokens.end(), [](const Token& t) { return t.isWord(u"COLUMN"); });
    if (column == tokens.end()) return {joined(tokens.begin(), tokens.end())};
    const QString beginning = joined(tokens.begin(), column + 1);
    QStringList statements;
    for (const QString& definition : translateColumns(column + 1, tokens.end()))
        statements << beginning + u' ' + definition;
    return statements;
}

/// The statement with its texts taken out and ISNULL(x) turned into (x IS NULL).
QString translateExpressions(TokenIterator begin, TokenIterator end, QStringList& texts) {
    QString statement;
    int depth = 0;
    std::vector<int> openTests; // depth of the parenthesis behind each ISNULL that is still open
    for (auto token = begin; token != end; ++token) {
        if (token->isSymbol(u')') && !openTests.empty() && openTests.back() == depth) {
            statement += u" IS NULL"_s;
            openTests.pop_back();
        }
        depth += token->isSymbol(u'(') - token->isSymbol(u')');
        const auto following = afterBlanks(token + 1, end);
        if (token->isWord(u"ISNULL") && following != end && following->isSymbol(u'(')) {
            openTests.push_back(depth + 1);
        } else if (token->kind == TokenKind::text) {
            statement += u'?';
            texts << valueOf(*token);
        } else {
            statement += token->spelling;
        }
    }
    return statement;
}

bool startsWith(const Tokens& tokens, std::initializer_list<QStringView> words) {
    auto token = tokens.begin();
    for (QStringView word : words) {
        token = afterBlanks(token, tokens.end());
        if (token == tokens.end() || !token->isWord(word)) return false;
        ++token;
    }
    return true;
}

QString tableOf(const Tokens& tokens) {
    const auto from =
        std::find_if(tokens.begin(), tokens.end(), [](const Token& t) { return t.isWord(u"FROM"); });
    if (from == tokens.end()) return {};
    const auto table = afterBlanks(from + 1, tokens.end());
    return table == tokens.end() ? QString() : table->spelling;
}

} // namespace

TranslatedStatement translateStatement(const QString& statement) {
    const Tokens tokens = tokensOf(statement);
    if (startsWith(tokens, {u"CREATE", u"TABLE"})) return {translateCreateTable(tokens), {}, true};
    if (startsWith(tokens, {u"ALTER"})) return {translateAlterTable(tokens), {}, true};
    if (startsWith(tokens, {u"CREATE"}) || startsWith(tokens, {u"DROP"})) return {{statement}, {}, true};
    TranslatedStatement translated;
    translated.statements << translateExpressions(tokens.begin(), tokens.end(), translated.texts);
    return translated;
}

TranslatedSelection translateSelection(const QString& statement) {
    const Tokens tokens = tokensOf(statement);
    TranslatedSelection selection;
    selection.statement = translateExpressions(tokens.begin(), tokens.end(), selection.texts);
    if (!startsWith(tokens, {u"SELECT"}) || startsWith(tokens, {u"SELECT", u"DISTINCT"})) return selection;
    selection.table = tableOf(tokens);
    if (!selection.table.isEmpty())
        selection.statement.insert(selection.statement.indexOf(u"SELECT"_s, 0, Qt::CaseInsensitive) + 6,
                                   u" rowid, "_s);
    return selection;
}

QString makeStatementSafe(QString text) {
    return text.replace(u"'"_s, u"''"_s);
}

} // namespace morvane
