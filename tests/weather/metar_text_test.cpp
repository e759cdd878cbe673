#include "weather/metar_text.h"

#include "core/literals.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(MetarText, endsWithThePressure) {
    const std::pair<QString, QString> cases[] = {
        {u"KSEA 03007KT A2992 RMK AO2"_s, u"KSEA 03007KT A2992"_s},
        {u"EGLL  18/11 q1018 NOSIG Q1019"_s, u"EGLL  18/11 q1018"_s},
        {u"A2992"_s, u"A2992"_s},
        {u"EGLL 18/11"_s, u"EGLL 18/11 "_s},
        {u"EGLL Q////  ABOVE Q10181 Q101"_s, u"EGLL Q////  ABOVE Q10181 Q101 "_s},
        {u" "_s, u"  "_s},
        {u""_s, u""_s},
    };
    for (const auto& [report, stored] : cases)
        EXPECT_EQ(trimMetarString(report), stored);
}

} // namespace
} // namespace morvane
