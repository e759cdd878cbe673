#include "core/literals.h"
#include "support/printing.h"
#include "ui/controls/paper_style.h"
#include "ui/controls/set_table.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

namespace morvane {
namespace {

class SetTableTest : public testing::Test {
protected:
    SetTableTest() {
        table.resize(330, 266);
        table.setColumns({{u"Name"_s, 160}, {u"Activated"_s, 68}, {u"Cloud Cover"_s, 84}}, true);
        const std::pair<QString, QString> sets[] = {
            {u"banks"_s, u"True"_s}, {u"Alto"_s, u"False"_s}, {u"cirrus"_s, u"True"_s}};
        for (int number = 1; const auto& [name, activated] : sets) {
            table.addRow({.key = u"Key:%1"_s.arg(number),
                          .texts = {name, activated, u"Overcast"_s},
                          .tips = {name, u"Activated?"_s, u"Cloud Cover"_s},
                          .colour = number == 2 ? qRgb(255, 0, 0) : palette::textBlue,
                          .isChecked = number == 3});
            ++number;
        }
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
    void clickHead(int column) {
        QTest::mouseClick(table.header()->viewport(), Qt::LeftButton, {},
                          QPoint(table.columnViewportPosition(column) + 20, 11));
    }
    QStringList shownNames() const {
        QStringList names;
        for (int row = 1; row <= table.rowCount(); ++row)
            names += table.textOf(row, 0);
        return names;
    }

    SetTable table;
    QStringList clicked;
};

// Wanted: pages do different things on a click and on a selection of their own, and must be able to tell.
TEST_F(SetTableTest, onlyTheUserTellsOfARow) {
    table.selectRow(3);
    EXPECT_EQ(table.selectedNames(), QStringList{u"cirrus"_s});
    table.selectName(u"Alto"_s);
    EXPECT_EQ(table.selectedNames(), (QStringList{u"Alto"_s, u"cirrus"_s})) << "a name is added";
    table.selectRow(1);
    EXPECT_EQ(table.selectedNames(), QStringList{u"banks"_s}) << "a row stands alone";
    table.selectRow(0);
    table.selectRow(4);
    table.selectName(u"no such"_s);
    EXPECT_EQ(table.selectedNames(), QStringList{u"banks"_s});
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
    table.show();
    const auto placeOf = [this](int row) {
        return table.visualItemRect(table.topLevelItem(row - 1)).center();
    };
    QTest::mousePress(table.viewport(), Qt::LeftButton, {}, placeOf(1));
    QTest::mouseMove(table.viewport(), placeOf(3));
    QTest::mouseRelease(table.viewport(), Qt::LeftButton, {}, placeOf(3));
    EXPECT_EQ(table.selectedNames().size(), 3);
    EXPECT_EQ(takeClicked(), QStringList{u"Key:3"_s});
}

TEST_F(SetTableTest, severalRowsAreSelectedWithControlAndShift) {
    click(1);
    click(3, Qt::ControlModifier);
    EXPECT_EQ(table.selectedNames(), (QStringList{u"banks"_s, u"cirrus"_s}));
    click(1);
    click(3, Qt::ShiftModifier);
    EXPECT_EQ(table.selectedNames().size(), 3);
}

TEST_F(SetTableTest, everyClickOnAHeadTurnsTheOrderRound) {
    table.selectRow(2);
    const std::pair<int, QStringList> clicks[] = {{0, {u"Alto"_s, u"banks"_s, u"cirrus"_s}},
                                                  {0, {u"cirrus"_s, u"banks"_s, u"Alto"_s}},
                                                  {1, {u"Alto"_s, u"cirrus"_s, u"banks"_s}},
                                                  {0, {u"cirrus"_s, u"banks"_s, u"Alto"_s}}};
    for (const auto& [column, names] : clicks) {
        clickHead(column);
        EXPECT_EQ(shownNames(), names);
        EXPECT_EQ(table.selectedNames(), QStringList{u"Alto"_s}) << "the selection goes along";
    }
    EXPECT_EQ(table.keyOf(3), u"Key:2"_s) << "rows are numbered as shown";
    EXPECT_EQ(takeClicked(), QStringList());
}

/// With a key held rows are being picked, and on a box each click ticks.
TEST_F(SetTableTest, aDoubleClickTellsOfARowAndNotOfItsBox) {
    int told = 0;
    QObject::connect(&table, &SetTable::rowDoubleClicked, [&] { ++told; });
    struct Case {
        QPoint place;
        Qt::KeyboardModifier key;
        int told;
    };
    const QPoint row = cell(2).topLeft();
    const Case cases[] = {{row + QPoint(60, 10), Qt::NoModifier, 1},
                          {cell(2, 1).center(), Qt::NoModifier, 1},
                          {row + QPoint(12, 10), Qt::NoModifier, 0},
                          {row + QPoint(60, 10), Qt::ControlModifier, 0},
                          {QPoint(60, 200), Qt::NoModifier, 0}};
    for (const Case& example : cases) {
        told = 0;
        QTest::mouseClick(table.viewport(), Qt::LeftButton, example.key, example.place);
        QTest::mouseDClick(table.viewport(), Qt::LeftButton, example.key, example.place);
        EXPECT_EQ(told, 0) << "the button is still down";
        QTest::mouseRelease(table.viewport(), Qt::LeftButton, example.key, example.place);
        EXPECT_EQ(told, example.told) << example.place.x() << ' ' << example.key;
    }
}

TEST_F(SetTableTest, boxesAreCheckedByTheMouseAndTheSpaceKey) {
    EXPECT_EQ(table.checkedNames(), QStringList{u"cirrus"_s});
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, cell(1).topLeft() + QPoint(12, 10));
    EXPECT_EQ(table.checkedNames(), (QStringList{u"banks"_s, u"cirrus"_s}));
    EXPECT_EQ(table.selectedNames(), QStringList());
    EXPECT_EQ(takeClicked(), QStringList()) << "a box is not its row";
    table.selectRow(1);
    QTest::keyClick(&table, Qt::Key_Space);
    EXPECT_EQ(table.checkedNames(), QStringList{u"cirrus"_s});
}

// Wanted: the stored colours are too faint on white, so they are kept and others are painted.
TEST_F(SetTableTest, storedRedAndBluePaintAsTheDesignsOwn) {
    const std::pair<QRgb, QRgb> cases[] = {{qRgb(255, 0, 0), qRgb(200, 0, 0)},
                                           {qRgb(0, 0, 255), qRgb(0, 101, 161)},
                                           {qRgb(0, 101, 161), qRgb(0, 101, 161)},
                                           {qRgb(254, 0, 0), qRgb(254, 0, 0)}};
    for (const auto& [stored, painted] : cases)
        EXPECT_EQ(paintedColour(stored), painted);
    EXPECT_EQ(table.storedColour(2), qRgb(255, 0, 0));
    EXPECT_EQ(table.topLevelItem(1)->foreground(2).color(), QColor(200, 0, 0));
    EXPECT_EQ(table.topLevelItem(1)->toolTip(1), u"Activated?"_s);
}

TEST_F(SetTableTest, rowsAreTwentyHighAndASelectedOneKeepsItsColour) {
    table.selectRow(2);
    EXPECT_EQ(cell(1).height(), 20);
    EXPECT_EQ(table.header()->height(), 22);
    const QImage shown = table.viewport()->grab().toImage();
    const QRect row = cell(2, 2);
    EXPECT_EQ(shown.pixel(row.left() + 2, row.top() + 10), palette::selectedRow);
    EXPECT_EQ(shown.pixel(1, row.top() + 10), palette::accentOnPaper) << "the bar at its left";
    int leastGreen = 255; // of the text: dark only where it is red
    for (int x = row.left(); x < row.right(); ++x)
        if (const QRgb pixel = shown.pixel(x, row.top() + 10); qRed(pixel) > 190)
            leastGreen = std::min(leastGreen, qGreen(pixel));
    EXPECT_LT(leastGreen, 80);
}

TEST_F(SetTableTest, aRowSelectedFromCodeIsBroughtIntoView) {
    for (int number = 4; number <= 40; ++number)
        table.addRow({u"Key:%1"_s.arg(number), {u"set"_s}, {}});
    table.selectRow(40);
    EXPECT_TRUE(table.viewport()->rect().contains(cell(40).center()));
    table.clearRows();
    table.selectRow(1);
    EXPECT_EQ(table.selectedNames(), QStringList());
    EXPECT_EQ(table.keyOf(1), QString());
}

} // namespace
} // namespace morvane
