#include "core/literals.h"
#include "core/text_decoding.h"
#include "support/printing.h"
#include "weather/metar_text.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(TextDecoding, utf8WhereAllOfItIsValid) {
    const std::pair<QByteArray, QString> cases[] = {
        {"Z\xC3\xBCrich", u"Zürich"_s},
        {"Z\xC3\xBCrich Z\xFCrich", u"ZÃ¼rich Zürich"_s},
        {"\xC0\x80 \xED\xA0\x80 \xC3", u"À\u0080 í\u00A0\u0080 Ã"_s}, // overlong, surrogate, cut: no UTF-8
        {"\xEF\xBB\xBFQ1018", u"Q1018"_s},
        {QByteArray("a\0b\0", 4), u"a b "_s},
    };
    for (const auto& [bytes, text] : cases)
        EXPECT_EQ(decodeText(bytes), text) << bytes.toHex().toStdString();
}

TEST(TextDecoding, linesOfBothKinds) {
    const std::pair<QString, QStringList> cases[] = {
        {u""_s, {}},
        {u"a\r\nb\n"_s, {u"a"_s, u"b"_s, u""_s}},
        {u"\n\r\n\na"_s, {u""_s, u""_s, u""_s, u"a"_s}},
        {u"a\rb\r\r\nc\r"_s, {u"a\rb\r"_s, u"c\r"_s}},
    };
    for (const auto& [text, lines] : cases)
        EXPECT_EQ(splitLines(text), lines);
}

TEST(MetarText, endsWithThePressure) {
    const std::pair<QString, QString> cases[] = {
        {u"KSEA 03007KT A2992 RMK AO2"_s, u"KSEA 03007KT A2992"_s},
        {u"EGLL  18/11 q1018 NOSIG Q1019"_s, u"EGLL  18/11 q1018"_s},
        {u"EGLL Q////  ABOVE Q10181 Q101"_s, u"EGLL Q////  ABOVE Q10181 Q101 "_s},
        {u""_s, u""_s},
    };
    for (const auto& [report, stored] : cases)
        EXPECT_EQ(trimMetarString(report), stored);
}

} // namespace
} // namespace morvane
