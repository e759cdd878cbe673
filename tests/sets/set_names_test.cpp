#include "sets/set_names.h"

#include "core/literals.h"

#include "support/printing.h"

#include <gtest/gtest.h>

namespace morvane {
namespace {

TEST(SetNames, nothingThatAPathDoesNotTake) {
    const QString fifty = u"12-"_s + QString(47, u'n');
    const QString emoji = u"\U0001F324"_s;
    const QString cases[][2] = {
        {u"Storm"_s, u"12-Storm"_s},
        {u"Storm på Ålborg's \"1.5\""_s, u"12-Storm på Ålborg's _1.5_"_s},
        {u"a:b*c?d<e>f|g"_s, u"12-a_b_c_d_e_f_g"_s},
        {u"a\r\nb\tc"_s + QChar(0) + QChar(0x7f) + QChar(0x85), u"12-a__b_c___"_s},
        {u"calm . .. "_s, u"12-calm"_s},
        {QString(300, u'n'), fifty},
        {QString(44, u'n') + u" . storm"_s,
         u"12-"_s + QString(44, u'n')}, // the cut lays bare a dot and a blank
        {QString(46, u'n') + emoji, u"12-"_s + QString(46, u'n')},
        {QString(45, u'n') + emoji, u"12-"_s + QString(45, u'n') + emoji},
    };
    for (const auto& [title, name] : cases)
        EXPECT_EQ(newSetName(12, title), name) << title.toStdString();
}

} // namespace
} // namespace morvane
