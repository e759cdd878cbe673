#include "core/text_collation.h"

#include <QChar>
#include <cstddef>
#include <sqlite3.h>

namespace morvane {

namespace {

/// Reads one character after another with the case folded away.
class FoldedReader {
public:
    explicit FoldedReader(std::string_view text) : text_(text) {}

    bool atEnd() const { return text_.empty(); }
    char32_t next() {
        const auto first = static_cast<unsigned char>(text_.front());
        if (first < 0x80) { // nearly every text of the store: codes, names, flags
            text_.remove_prefix(1);
            return first >= 'A' && first <= 'Z' ? first + ('a' - 'A') : first;
        }
        return QChar::toCaseFolded(nextWide(first));
    }

private:
    /// Bytes that are no UTF-8 count as the characters of their values: a foreign file must not stop a
    /// search.
    char32_t nextWide(unsigned char first) {
        const std::size_t length = first >= 0xf0 ? 4 : first >= 0xe0 ? 3 : first >= 0xc0 ? 2 : 1;
        if (length == 1 || length > text_.size()) {
            text_.remove_prefix(1);
            return first;
        }
        char32_t character = first & (0xffU >> (length + 1));
        for (std::size_t i = 1; i < length; ++i)
            character = (character << 6) | (static_cast<unsigned char>(text_[i]) & 0x3fU);
        text_.remove_prefix(length);
        return character;
    }

    std::string_view text_;
};

/// A place in text and pattern to go back to: the last "%" seen, which may take one character more.
struct Retry {
    FoldedReader text;
    FoldedReader pattern;
    bool isSet = false;
};

std::string_view textOf(sqlite3_value* value) {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return {bytes, static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

int collate(void*, int leftSize, const void* left, int rightSize, const void* right) {
    return compareWithoutCase({static_cast<const char*>(left), static_cast<std::size_t>(leftSize)},
                              {static_cast<const char*>(right), static_cast<std::size_t>(rightSize)});
}

/// "A LIKE B" arrives as like(B, A).
void like(sqlite3_context* context, int, sqlite3_value** values) {
    if (sqlite3_value_type(values[0]) == SQLITE_NULL || sqlite3_value_type(values[1]) == SQLITE_NULL) return;
    sqlite3_result_int(context, isLike(textOf(values[1]), textOf(values[0])) ? 1 : 0);
}

} // namespace

int compareWithoutCase(std::string_view left, std::string_view right) {
    FoldedReader leftReader(left), rightReader(right);
    while (!leftReader.atEnd() && !rightReader.atEnd()) {
        const char32_t leftCharacter = leftReader.next(), rightCharacter = rightReader.next();
        if (leftCharacter != rightCharacter) return leftCharacter < rightCharacter ? -1 : 1;
    }
    return static_cast<int>(rightReader.atEnd()) - static_cast<int>(leftReader.atEnd());
}

bool isLike(std::string_view text, std::string_view pattern) {
    FoldedReader textReader(text), patternReader(pattern);
    Retry retry{textReader, patternReader};
    while (true) {
        if (patternReader.atEnd()) {
            if (textReader.atEnd()) return true;
        } else if (const char32_t wanted = patternReader.next(); wanted == U'%') {
            if (patternReader.atEnd()) return true;
            retry = {textReader, patternReader, true};
            continue;
        } else if (!textReader.atEnd() && (textReader.next() == wanted || wanted == U'_')) {
            continue;
        }
        if (!retry.isSet || retry.text.atEnd()) return false;
        retry.text.next();
        textReader = retry.text;
        patternReader = retry.pattern;
    }
}

void installTextRules(sqlite3* connection) {
    sqlite3_create_collation(connection, textCollation, SQLITE_UTF8, nullptr, collate);
    sqlite3_create_function(connection, "like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, like, nullptr,
                            nullptr);
}

} // namespace morvane
