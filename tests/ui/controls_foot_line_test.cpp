#include "core/literals.h"
#include "support/printing.h"
#include "ui/controls/foot_line.h"
#include "ui/controls/wrapped_tip.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QToolTip>
#include <functional>
#include <gtest/gtest.h>

namespace morvane {
namespace {

struct FootLineTest : testing::Test {
    FootLineTest() {
        window.resize(880, 580);
        elsewhere.show();
        window.show();
    }
    QLabel& label(const QString& name) { return *line->findChild<QLabel*>(name); }
    QString text() { return label(u"lblFootText"_s).text(); }

    QWidget window;
    QPushButton elsewhere;
    FootLine* line = new FootLine(&window);
};

TEST_F(FootLineTest, theNextClickOrKeyAnywhereTakesALineAway) {
    EXPECT_FALSE(line->isVisible()) << "nothing to tell";
    const std::pair<std::function<void()>, bool> cases[] = {
        {[&] {
             QTest::mouseMove(&window, {50, 50});
         },
         false},
        {[&] { QTest::mouseRelease(&elsewhere, Qt::LeftButton); }, false}, // of the press that began the job
        {[&] { QTest::keyRelease(&elsewhere, Qt::Key_Space); }, false},
        {[&] { QTest::mousePress(&elsewhere, Qt::LeftButton); }, true},
        {[&] { QTest::keyPress(&elsewhere, Qt::Key_Shift); }, true}};
    for (int number = 0; const auto& [act, takesAway] : cases) {
        line->tellDone({u"1,183 textures backed up"_s, u"Backup 2"_s});
        EXPECT_TRUE(line->isVisible());
        EXPECT_EQ(text() + label(u"lblFootRemark"_s).text(), u"1,183 textures backed upBackup 2"_s);
        act();
        EXPECT_EQ(line->isVisible(), !takesAway) << number++;
    }
}

TEST_F(FootLineTest, aLongTextIsCutAndItsTipHasTheWhole) {
    const QString whole = u"files put back, "_s.repeated(20);
    line->tellDone({whole, u"since 21 Nov 2026, 23:47"_s});
    EXPECT_TRUE(text().endsWith(u'…')) << text().toStdString();
    EXPECT_EQ(label(u"lblFootText"_s).accessibleName(), whole);
    EXPECT_EQ(QString(line->toolTip()).remove(u'\n').remove(u' '), QString(whole).remove(u' '));
    EXPECT_LE(label(u"lblFootText"_s).geometry().right(), label(u"lblFootRemark"_s).geometry().left());
    line->tellDone({u"short"_s});
    EXPECT_EQ(line->toolTip(), QString());
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

} // namespace
} // namespace morvane
