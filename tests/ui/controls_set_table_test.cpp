#include "core/literals.h"
#include "support/printing.h"
#include "ui/controls/set_table.h"

#include <QTest>
#include <gtest/gtest.h>

namespace morvane {
namespace {

class SetTableTest : public testing::Test {
protected:
    SetTableTest() {
        table.resize(330, 266);
        table.setColumns({{u"Name"_s, 160}, {u"Activated"_s, 68}, {u"Cloud Cover"_s, 84}}, true);
        table.addRow({u"Key:1"_s, {u"Banks"_s, u"True"_s, u"Overcast"_s}, {}});
        table.addRow({u"Key:2"_s, {u"alto"_s, u"False"_s, u"Overcast"_s}, {u"a tip"_s}, qRgb(255, 0, 0)});
        table.addRow({u"Key:3"_s, {u"cirrus"_s, u"True"_s, u"Overcast"_s}, {}});
        table.show();
        QObject::connect(&table, &SetTable::rowClicked, [this](const QString& key) { clicked += key; });
    }
    QStringList takeClicked() { return std::exchange(clicked, {}); }
    QRect cell(int row, int column = 0) const {
        return table.visualRect(table.model()->index(row - 1, column));
    }
    void click(int row, Qt::KeyboardModifiers keys = {}) {
        QTest::mouseClick(table.viewport(), Qt::LeftButton, keys, cell(row).topLeft() + QPoint(60, 10));
    }

    SetTable table;
    QStringList clicked;
};

// Wanted: pages do different things on a click and on a selection of their own,
// and must be able to tell.
TEST_F(SetTableTest, onlyTheUserTellsOfARow) {
    table.selectRow(3);
    EXPECT_EQ(table.selectedNames(), QStringList{u"cirrus"_s});
    table.selectName(u"alto"_s);
    EXPECT_EQ(table.selectedNames(), (QStringList{u"alto"_s, u"cirrus"_s})) << "a name is added";
    table.selectRow(1);
    EXPECT_EQ(table.selectedNames(), QStringList{u"Banks"_s}) << "a row stands alone";
    table.selectRow(0);
    table.selectRow(4);
    table.selectName(u"no such"_s);
    EXPECT_EQ(table.selectedNames(), QStringList{u"Banks"_s});
    EXPECT_EQ(takeClicked(), QStringList());

    click(2);
    QTest::keyClick(&table, Qt::Key_Down);
    QTest::keyClick(&table, Qt::Key_Down); // already on the last row
    QTest::keyClick(&table, Qt::Key_Home);
    QTest::keyClick(&table, Qt::Key_Shift);
    EXPECT_EQ(takeClicked(), (QStringList{u"Key:2"_s, u"Key:3"_s, u"Key:3"_s, u"Key:1"_s}));
    click(1);
    EXPECT_EQ(takeClicked(), QStringList{u"Key:1"_s}) << "a click on the selected row counts, too";
}

TEST_F(SetTableTest, aDragOverRowsTellsOfTheOneItEndsOn) {
    QTest::mousePress(table.viewport(), Qt::LeftButton, {}, cell(1).center());
    QTest::mouseMove(table.viewport(), cell(3).center());
    QTest::mouseRelease(table.viewport(), Qt::LeftButton, {}, cell(3).center());
    EXPECT_EQ(table.selectedNames().size(), 3);
    EXPECT_EQ(clicked, QStringList{u"Key:3"_s});
}

/// With a key held rows are being picked, and on a box each click ticks.
TEST_F(SetTableTest, aDoubleClickTellsOfARowAndNotOfItsBox) {
    int told = 0;
    QObject::connect(&table, &SetTable::rowDoubleClicked, [&] { ++told; });
    const QPoint row = cell(2).topLeft();
    const std::tuple<QPoint, Qt::KeyboardModifier, int> cases[] = {
        {row + QPoint(60, 10), Qt::NoModifier, 1},
        {row + QPoint(12, 10), Qt::NoModifier, 0},
        {row + QPoint(60, 10), Qt::ControlModifier, 0},
        {QPoint(60, 200), Qt::NoModifier, 0}};
    for (const auto& [place, key, expected] : cases) {
        told = 0;
        QTest::mouseClick(table.viewport(), Qt::LeftButton, key, place);
        QTest::mouseDClick(table.viewport(), Qt::LeftButton, key, place);
        EXPECT_EQ(told, 0) << "the button is still down";
        QTest::mouseRelease(table.viewport(), Qt::LeftButton, key, place);
        EXPECT_EQ(told, expected) << place.x() << ' ' << key;
    }
}

} // namespace
} // namespace morvane
