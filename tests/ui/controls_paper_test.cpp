#include "core/literals.h"
#include "support/printing.h"
#include "ui/controls/skinned_progress_bar.h"
#include "ui/controls/wrapped_tip.h"

#include <QApplication>
#include <QToolTip>
#include <gtest/gtest.h>

namespace morvane {
namespace {

QImage picture(QWidget& widget) {
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

TEST(WrappedTip, linesAreNoWiderThanAskedAndKeepEveryWord) {
    const QString words = u"Click to install selected texture set. "_s.repeated(8).trimmed();
    for (const QString& text : {words, u"Documents"_s.repeated(30)}) {
        const QString wrapped = wrappedTip(text);
        EXPECT_GT(wrapped.count(u'\n'), 1);
        for (const QString& line : wrapped.split(u'\n'))
            EXPECT_LE(QFontMetrics(QToolTip::font()).horizontalAdvance(line), 400);
        EXPECT_EQ(QString(wrapped).replace(u'\n', u' ').remove(u' '), QString(text).remove(u' '));
    }
    for (const QString& text : {u"Back"_s, u"one\n\ntwo"_s, QString()})
        EXPECT_EQ(wrappedTip(text), text);
    EXPECT_FALSE(wrappedTip(u"<b>Dusk</b>"_s).contains(u"<b>"_s)) << "a set's name is no mark-up";
}

TEST(SkinnedProgressBar, fillsByItsValueAndHoldsItWithinTheEnds) {
    SkinnedProgressBar bar;
    bar.resize(206, 16);
    const std::tuple<double, double, int> cases[] = {// set, held, pixels lit in the middle line
                                                     {0, 0, 0},       {50, 50, 100},   {12.5, 12.5, 25},
                                                     {100, 100, 200}, {250, 100, 200}, {-3, 0, 0}};
    for (const auto& [set, held, lit] : cases) {
        bar.setValue(set);
        EXPECT_DOUBLE_EQ(bar.value(), held);
        const QImage shown = picture(bar);
        int count = 0;
        for (int x = 0; x < shown.width(); ++x)
            count += qGreen(shown.pixel(x, 8)) > 150;
        EXPECT_NEAR(count, lit, 2) << set;
    }
}

} // namespace
} // namespace morvane
