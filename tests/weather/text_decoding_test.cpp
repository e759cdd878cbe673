#include "core/text_decoding.h"

#include "core/literals.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(TextDecoding, utf8WhereAllOfItIsValid) {
    const std::pair<QByteArray, QString> cases[] = {
        {"Z\xC3\xBCrich", u"Zürich"_s},
        {"Z\xFCrich", u"Zürich"_s},
        {"Z\xC3\xBCrich Z\xFCrich", u"ZÃ¼rich Zürich"_s},
        {"cut \xC3", u"cut Ã"_s},
        {"\xC0\x80 \xED\xA0\x80", u"À\u0080 í\u00A0\u0080"_s}, // overlong form, surrogate: no UTF-8
        {"\xEF\xBB\xBF"
         "EGLL",
         u"EGLL"_s},
        {QByteArray("a\0b\0", 4), u"a b "_s},
        {"", u""_s},
    };
    for (const auto& [bytes, text] : cases)
        EXPECT_EQ(decodeText(bytes), text) << bytes.toHex().toStdString();
}

TEST(TextDecoding, linesOfBothKinds) {
    const std::pair<QString, QStringList> cases[] = {
        {u""_s, {}},
        {u"a"_s, {u"a"_s}},
        {u"a\nb"_s, {u"a"_s, u"b"_s}},
        {u"a\r\nb\r\n"_s, {u"a"_s, u"b"_s, u""_s}},
        {u"a\nb\n"_s, {u"a"_s, u"b"_s, u""_s}},
        {u"\n\r\n\n"_s, {u""_s, u""_s, u""_s, u""_s}},
        {u"a\rb\r\r\nc\r"_s, {u"a\rb\r"_s, u"c\r"_s}},
    };
    for (const auto& [text, lines] : cases)
        EXPECT_EQ(splitLines(text), lines);
}

} // namespace
} // namespace morvane
