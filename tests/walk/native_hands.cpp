#include "walk/native_hands.h"

#include "core/literals.h"
#include "sheets/screens/sheet_view.h"
#include "ui/controls/picture_frame.h"
#include "ui/controls/slider.h"
#include "ui/skinned_button.h"
#include "walk/screen_contents.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTest>
#include <QTreeView>
#include <QWindow>
#include <gtest/gtest.h>

#include <tuple>

namespace morvane::test {

namespace {

constexpr int longestTabRoad = 120;
constexpr int keyboardPatience = 1'000; ///< milliseconds

QWindow& nativeWindow(const QWidget& widget) {
    return *widget.window()->windowHandle();
}

bool isEdit(const QWidget& widget) {
    return qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QPlainTextEdit*>(&widget);
}

/// Options of one group are one stop of Tab.
bool isSameStop(const QWidget* stop, const QWidget& control) {
    const auto *at = qobject_cast<const QRadioButton*>(stop),
               *wanted = qobject_cast<const QRadioButton*>(&control);
    return stop == &control || (at && wanted && at->group() == wanted->group());
}

void tabTo(QWidget& control) {
    for (int i = 0; i < longestTabRoad && !isSameStop(control.window()->focusWidget(), control); ++i)
        pressKey(control, Qt::Key_Tab);
}

/// From option to option, as they lie.
void arrowTo(QWidget& option) {
    for (int i = 0; i < longestTabRoad && option.window()->focusWidget() != &option; ++i) {
        const QWidget* from = option.window()->focusWidget();
        if (!from) return;
        const QPoint way = option.geometry().center() - from->geometry().center();
        const Qt::Key across = way.x() > 0 ? Qt::Key_Right : Qt::Key_Left;
        pressKey(option, way.y() == 0 ? across : way.y() > 0 ? Qt::Key_Down : Qt::Key_Up);
        if (option.window()->focusWidget() == from) pressKey(option, across);
    }
}

/// The row after the one in hand, or before it at the end.
QModelIndex otherRow(const QAbstractItemView& list) {
    const int row = list.currentIndex().row();
    return list.model()->index(row + 1 < list.model()->rowCount() ? row + 1 : row - 1, 0);
}

void clickRow(QAbstractItemView& list, const QModelIndex& row, int offset) {
    list.scrollTo(row);
    const QRect place = list.visualRect(row);
    click(*list.viewport(), {place.left() + offset, place.center().y()});
}

/// The list below a box takes no click for a moment after it came, lest a double click choose.
void clickInPopup(QComboBox& choice) {
    click(choice, livePoint(choice));
    QAbstractItemView& list = *choice.view();
    const QModelIndex wanted = otherRow(list);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        if (list.isVisible()) clickRow(list, wanted, 20);
        return !list.isVisible();
    }));
}

void clickPart(QTreeView& list, const QString& part) {
    constexpr int inBox = 9, besideBox = 40;
    if (part ==
        u"head") { // the first click may find the rows in its order, and a second one would turn it back
        const QString before = stateOf(list);
        // Not the first head of boxes alone, over which lies the box for all.
        const QPoint head(list.header()->sectionSize(0) > 30 ? 20 : 60, 11);
        click(*list.header()->viewport(), head);
        if (stateOf(list) == before) click(*list.header()->viewport(), head);
        return;
    }
    if (part == u"tick") return clickRow(list, list.model()->index(0, 0), inBox);
    clickRow(list, otherRow(list), besideBox);
}

/// What stands there already, from another way of using it, would change nothing.
void typeInto(QWidget& control, const QString& typed) {
    const QString text = stateOf(control) == typed ? typed + u'0' : typed;
    for (const QChar letter : text)
        QTest::keyClick(&nativeWindow(control), letter.toLatin1());
}

void useMouse(QWidget& control, const QString& part, const QString& typed) {
    if (auto* list = qobject_cast<QTreeView*>(&control)) {
        clickPart(*list, part);
        if (part == u"twice")
            QTest::mouseDClick(
                &nativeWindow(control), Qt::LeftButton, {},
                list->viewport()->mapTo(control.window(), list->visualRect(list->currentIndex()).center()));
        return;
    }
    if (auto* choice = qobject_cast<QComboBox*>(&control)) return clickInPopup(*choice);
    QPoint place = livePoint(control);
    if (part == u"twice")
        return QTest::mouseDClick(&nativeWindow(control), Qt::LeftButton, {},
                                  control.mapTo(control.window(), place));
    if (auto* sheet = qobject_cast<SheetView*>(&control)) place = sheet->middleOf(1);
    if (qobject_cast<ucSlider*>(&control)) place.setX(control.width() * 3 / 4);
    click(control, place);
    if (isEdit(control)) typeInto(control, typed);
}

void useArrows(QWidget& control) {
    if (qobject_cast<QRadioButton*>(&control)) return arrowTo(control);
    if (auto* list = qobject_cast<QTreeView*>(&control))
        return pressKey(control,
                        otherRow(*list).row() > list->currentIndex().row() ? Qt::Key_Down : Qt::Key_Up);
    const auto* choice = qobject_cast<QComboBox*>(&control);
    const bool isAtEnd = choice && choice->currentIndex() + 1 == choice->count();
    pressKey(control, !choice ? Qt::Key_Right : isAtEnd ? Qt::Key_Up : Qt::Key_Down);
}

} // namespace

QString wayName(Way way) {
    static const QStringList names{u"mouse"_s, u"Space"_s, u"Enter"_s, u"arrows"_s, u"letters"_s, u"key"_s};
    return names[static_cast<int>(way)];
}

std::vector<Way> waysOf(const QWidget& control, const QString& part) {
    const bool isPicture = qobject_cast<const PictureFrame*>(&control);
    if (part == u"twice" && isPicture) return {Way::mouse, Way::enter};
    if (part == u"head" || part == u"twice") return {Way::mouse};
    if (part == u"tick") return {Way::mouse, Way::space};
    if (qobject_cast<const SkinnedButton*>(&control)) return {Way::mouse, Way::space, Way::enter};
    if (isEdit(control)) return {Way::mouse, Way::letters};
    const bool isOption = qobject_cast<const QRadioButton*>(&control);
    if (qobject_cast<const QAbstractButton*>(&control) && !isOption) return {Way::mouse, Way::space};
    return {Way::mouse, Way::arrows};
}

void use(QWidget& control, const QString& part, Way way, const QString& typed) {
    if (way == Way::mouse) return useMouse(control, part, typed);
    // An arrow among options asks the application who has the keyboard, and does nothing while nobody has.
    std::ignore = QTest::qWaitFor([] { return QApplication::focusWidget(); }, keyboardPatience);
    tabTo(control);
    if (way == Way::arrows) return useArrows(control);
    if (way == Way::space) return pressKey(control, Qt::Key_Space);
    if (way == Way::enter) return pressKey(control, Qt::Key_Return);
    typeInto(control, typed);
}

void click(QWidget& control, const QPoint& place) {
    QTest::mouseClick(&nativeWindow(control), Qt::LeftButton, {}, control.mapTo(control.window(), place));
}

void pressKey(QWidget& widget, Qt::Key key) {
    QTest::keyClick(&nativeWindow(widget), key);
}

} // namespace morvane::test
