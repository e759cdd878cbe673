#include "core/literals.h"
#include "support/printing.h"
#include "ui/controls/foot_line.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>
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

} // namespace
} // namespace morvane
