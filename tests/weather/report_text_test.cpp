#include "core/literals.h"
#include "core/text_decoding.h"
#include "support/printing.h"

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

} // namespace
} // namespace morvane
