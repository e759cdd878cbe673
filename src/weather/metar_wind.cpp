#include "weather/metar_wind.h"

#include "core/numbers.h"

namespace morvane {

namespace {

bool isDigitAt(QStringView text, qsizetype index) {
    return isDigits(text.mid(index, 1));
}

bool endsToken(QChar c, bool isVariable) {
    return c == u'k' || (!isVariable && c == u'm');
}

/// A variable wind keeps only the letters of its word; any other wind keeps whatever stands there, so that a
/// misprint makes the text too long and is thrown out as a whole.
bool keepsCharacter(QChar c, bool isVariable) {
    return !isVariable || c == u'v' || c == u'r' || c == u'b';
}

} // namespace

void WindReader::read(const MetarToken& token) {
    const QStringView lower = token.lower;
    const bool isVariable = lower.startsWith(u"vrb");
    for (qsizetype i = 0; i < lower.size();) {
        if (lower[i] == u'g') {
            i = readGust(token, i);
            continue;
        }
        if (lower[i] == u'/') return readSlashes(token, i);
        if (endsToken(lower[i], isVariable)) return;
        if (isDigitAt(lower, i) || keepsCharacter(lower[i], isVariable)) text_ += token.text[i];
        ++i;
    }
}

qsizetype WindReader::readGust(const MetarToken& token, qsizetype start) {
    gusting_ = true;
    qsizetype next = start + 1;
    for (qsizetype i = next; i < token.lower.size() && token.lower[i] != u'k'; ++i) {
        if (!isDigitAt(token.lower, i)) continue;
        gust_ += token.text[i];
        next = i + 1;
    }
    return next;
}

void WindReader::readSlashes(const MetarToken& token, qsizetype start) {
    const QStringView lower = token.lower;
    qsizetype slashes = 0;
    // The digit to keep lags behind the character read once a letter was met: no digit behind a letter is
    // taken unless a slash moves it on.
    qsizetype digit = start;
    for (qsizetype i = start; i < lower.size(); ++i) {
        const bool isSlash = lower[i] == u'/';
        if (isSlash || isDigitAt(lower, digit)) {
            text_ += isSlash ? QChar(u'/') : lower[digit];
            slashes += isSlash;
            ++digit;
        } else if (lower[i] == u'k') {
            break;
        }
    }
    if (slashes > 3) text_.clear();
}

} // namespace morvane
