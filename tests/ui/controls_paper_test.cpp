#include "core/literals.h"
#include "support/printing.h"
#include "ui/controls/palette.h"
#include "ui/controls/paper_style.h"
#include "ui/controls/picture_frame.h"
#include "ui/controls/skinned_progress_bar.h"
#include "ui/controls/wrapped_tip.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QScrollBar>
#include <QStyleOption>
#include <QTest>
#include <QToolTip>
#include <gtest/gtest.h>

namespace morvane {
namespace {

QImage picture(QWidget& widget) {
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

TEST(PaperStyle, aRowsPictureKeepsClearOfItsText) {
    const QStyle& style = *QApplication::style();
    QStyleOptionViewItem row;
    row.rect = {0, 0, 200, 20};
    row.text = u"Flights"_s;
    row.decorationSize = {16, 16};
    row.features = QStyleOptionViewItem::HasDisplay | QStyleOptionViewItem::HasDecoration;
    const QRect picture = style.subElementRect(QStyle::SE_ItemViewItemDecoration, &row);
    EXPECT_GT(style.subElementRect(QStyle::SE_ItemViewItemText, &row).left(), picture.right());
}

TEST(PaperStyle, aListOfThousandsIsFourteenRowsHigh) {
    QWidget page;
    auto* choice = new QComboBox(&page);
    for (int i = 0; i < 5000; ++i)
        choice->addItem(u"CITY"_s);
    page.show();
    choice->showPopup();
    const QAbstractItemView& list = *choice->view();
    EXPECT_LE(list.viewport()->height(), 14 * list.sizeHintForRow(0));
    EXPECT_GE(list.viewport()->height(), 10 * list.sizeHintForRow(0));
    choice->hidePopup();
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

TEST(PaperStyle, scrollBarIsAllGrooveAndItsHandleReachesBothEnds) {
    struct Bar : QScrollBar {
        using QScrollBar::QScrollBar;
        void initLook(QStyleOptionSlider& look) const { initStyleOption(&look); }
    } bar(Qt::Vertical);
    bar.resize(bar.sizeHint().width(), 200);
    bar.setRange(0, 5000);
    bar.setPageStep(10);
    EXPECT_EQ(bar.width(), 12);
    const auto part = [&](QStyle::SubControl which) {
        QStyleOptionSlider look;
        bar.initLook(look);
        return bar.style()->subControlRect(QStyle::CC_ScrollBar, &look, which, &bar);
    };
    EXPECT_EQ(part(QStyle::SC_ScrollBarSlider), QRect(0, 0, 12, 24)) << "long enough to be taken hold of";
    EXPECT_TRUE(part(QStyle::SC_ScrollBarAddLine).isEmpty());
    QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(6, 150));
    EXPECT_EQ(bar.value(), 10) << "a click below the handle goes on by a page";
    bar.setValue(5000);
    EXPECT_EQ(part(QStyle::SC_ScrollBarSlider).bottom(), 199);
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

TEST(PictureFrame, enlargesWithoutSmoothingWhenAsked) {
    QImage two(2, 1, QImage::Format_RGB32);
    two.setPixel(0, 0, qRgb(255, 0, 0));
    two.setPixel(1, 0, qRgb(0, 0, 255));
    PictureFrame frame;
    frame.placePicture({20, 20, 80, 80});
    const QPoint corner = frame.picturePlace().topLeft();
    EXPECT_EQ(picture(frame).pixel(corner + QPoint(40, 40)), palette::paperFoot) << "no picture, but paper";
    frame.setPicture(two);
    const QRgb left = qRgb(255, 0, 0);
    EXPECT_NE(picture(frame).pixel(corner + QPoint(39, 40)), left) << "smooth, it shades over";
    frame.setSmooth(false);
    EXPECT_EQ(picture(frame).pixel(corner + QPoint(39, 40)), left);
    EXPECT_EQ(picture(frame).pixel(corner + QPoint(40, 40)), qRgb(0, 0, 255));
    EXPECT_EQ(picture(frame).pixel(corner + QPoint(-1, 40)), palette::pictureLine);
}

} // namespace
} // namespace morvane
