#include "core/literals.h"
#include "support/printing.h"
#include "ui/controls/labels.h"
#include "ui/controls/palette.h"
#include "ui/controls/paper_style.h"
#include "ui/controls/picture_frame.h"
#include "ui/controls/sign_button.h"
#include "ui/controls/skinned_progress_bar.h"
#include "ui/controls/wrapped_tip.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
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
    EXPECT_GE(picture.width(), 16);
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

TEST(Labels, longTextsFitTheirPlaces) {
    struct Case {
        TextRole role;
        QSize place;
        QString text;
    };
    const Case cases[] = {
        {TextRole::longHelp,
         {568, 60},
         u"To create a series of ground texture sets please click the create button and then enter the "
         u"number of "
         "each cloud cover value required into the text boxes on the dialog screen that appears. Click the "
         "checkmark button to commence the creation process These sets take 10 - 20 minutes each to create "
         "therefore please allow sufficient time for the creation process. "_s},
        {TextRole::pageTitle, {536, 22}, u"Recommended Flight Simulator Related Links Page"_s},
        {TextRole::sliderName, {62, 20}, u"Brightness"_s},
        {TextRole::sliderValue, {44, 20}, u"default"_s},
        {TextRole::fieldCaption, {108, 16}, u"Original"_s},
        {TextRole::body,
         {294, 64},
         u"Processing your Ground Texture Files.  Please wait until the process has finished.  This may take "
         u"a "
         "few moments!"_s}};
    QWidget page;
    for (const Case& label : cases) {
        const QLabel* shown = makeLabel(&page, label.text, {{0, 0}, label.place}, label.role);
        EXPECT_EQ(QFontInfo(shown->font()).family(), u"Roboto"_s);
        EXPECT_LE(shown->heightForWidth(label.place.width()), label.place.height())
            << label.text.toStdString();
        EXPECT_TRUE(shown->wordWrap() || shown->sizeHint().width() <= label.place.width())
            << label.text.toStdString() << shown->sizeHint().width();
    }
}

TEST(Labels, everyRoleHasItsFontAndNoneIsUnderElevenPixels) {
    for (int role = 0; role <= static_cast<int>(TextRole::valueTip); ++role)
        EXPECT_GE(fontOf(static_cast<TextRole>(role)).pixelSize(), 11) << role;
    EXPECT_EQ(fontOf(TextRole::pageTitle).pixelSize(), 16);
    EXPECT_EQ(fontOf(TextRole::pageTitle).weight(), QFont::Bold);
    EXPECT_EQ(fontOf(TextRole::value).weight(), QFont::Medium);
}

TEST(Labels, markUpIsShownAsItReads) {
    QWidget page;
    const QLabel* label = makeLabel(&page, u"<b>Name</b>"_s, {0, 0, 200, 20}, TextRole::value);
    EXPECT_GT(label->sizeHint().width(), QFontMetrics(label->font()).horizontalAdvance(u"<b>Na"_s));
}

TEST(WrappedTip, linesAreNoWiderThanAskedAndKeepEveryWord) {
    const QString words =
        u"Click to install selected texture set into Flight Simulator. "_s.repeated(5).trimmed();
    const QString path = u"C:\\Documents"_s.repeated(30);
    const QFontMetrics metrics(QToolTip::font());
    for (const QString& text : {words, path}) {
        const QString wrapped = wrappedTip(text);
        EXPECT_GT(wrapped.count(u'\n'), 1);
        for (const QString& line : wrapped.split(u'\n'))
            EXPECT_LE(metrics.horizontalAdvance(line), 400);
        EXPECT_EQ(QString(wrapped).replace(u'\n', u' ').remove(u' '), QString(text).remove(u' '));
    }
    EXPECT_EQ(wrappedTip(u"Back"_s), u"Back"_s);
    EXPECT_EQ(wrappedTip(u"one\n\ntwo"_s), u"one\n\ntwo"_s);
    EXPECT_FALSE(wrappedTip(u"<b>Dusk</b>"_s).contains(u"<b>"_s)) << "a set's name is no mark-up";
    EXPECT_EQ(wrappedTip(QString()), QString());
}

TEST(PaperStyle, tipsHaveTheirTimesAndColours) {
    QCheckBox box;
    box.ensurePolished();
    EXPECT_EQ(box.toolTipDuration(), 10'000);
    EXPECT_EQ(box.style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay), 250);
    EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipBase), QColor(231, 231, 231));
    EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipText), QColor(45, 45, 45));
}

TEST(PaperStyle, captionsStartWhereTheDesignHasThem) {
    QCheckBox check(u"Inhibit FS splash"_s);
    QRadioButton option(u"Overcast"_s), narrow(u"Overcast"_s);
    setCaptionOffset(narrow, 18);
    const std::tuple<QAbstractButton*, QStyle::SubElement, int> cases[] = {
        {&check, QStyle::SE_CheckBoxContents, 23},
        {&option, QStyle::SE_RadioButtonContents, 21},
        {&narrow, QStyle::SE_RadioButtonContents, 18}};
    for (const auto& [button, element, left] : cases) {
        QStyleOptionButton look;
        look.initFrom(button);
        look.rect = {0, 0, 150, 20};
        EXPECT_EQ(button->style()->subElementRect(element, &look, button).left(), left);
    }
}

TEST(PaperStyle, scrollBarIsAllGrooveAndItsHandleReachesBothEnds) {
    QScrollBar bar(Qt::Vertical);
    bar.resize(bar.sizeHint().width(), 200);
    bar.setRange(0, 5000);
    bar.setPageStep(10);
    EXPECT_EQ(bar.width(), 12);
    const auto part = [&](QStyle::SubControl which) {
        QStyleOptionSlider look;
        look.initFrom(&bar);
        look.orientation = Qt::Vertical;
        look.maximum = bar.maximum();
        look.pageStep = bar.pageStep();
        look.sliderPosition = bar.value();
        return bar.style()->subControlRect(QStyle::CC_ScrollBar, &look, which, &bar);
    };
    EXPECT_EQ(part(QStyle::SC_ScrollBarSlider), QRect(0, 0, 12, 24)) << "long enough to be taken hold of";
    EXPECT_TRUE(part(QStyle::SC_ScrollBarAddLine).isEmpty());
    QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(6, 150));
    EXPECT_EQ(bar.value(), 10) << "a click below the handle goes on by a page";
    bar.setValue(5000);
    EXPECT_EQ(part(QStyle::SC_ScrollBarSlider).bottom(), 199);
}

TEST(PaperStyle, stateShowsInBoxesAndTheFocusInEdits) {
    QCheckBox box;
    box.resize(20, 20);
    EXPECT_EQ(picture(box).pixel(3, 5), palette::field);
    box.setChecked(true);
    EXPECT_EQ(picture(box).pixel(3, 5), palette::textBlue);

    QWidget page;
    QLineEdit first(&page), second(&page);
    first.setGeometry(0, 0, 90, 22);
    second.setGeometry(0, 30, 90, 22);
    page.show();
    QApplication::setActiveWindow(&page);
    first.setFocus();
    EXPECT_EQ(picture(first).pixel(45, 0), palette::accentOnPaper);
    EXPECT_EQ(picture(second).pixel(45, 0), palette::fieldLine);
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
    EXPECT_EQ(frame.geometry().topLeft() + frame.picturePlace().topLeft(), QPoint(20, 20));
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

TEST(SignButton, isNamedByItsTipAndPressedByKeys) {
    SignButton plus(ButtonSign::plus, u"Increment by 5%"_s);
    int pressed = 0;
    QObject::connect(&plus, &QPushButton::clicked, [&] { ++pressed; });
    QTest::keyClick(&plus, Qt::Key_Space);
    EXPECT_EQ(pressed, 1);
    EXPECT_EQ(plus.accessibleName(), u"Increment by 5%"_s);
    EXPECT_EQ(plus.toolTip(), u"Increment by 5%"_s);
}

} // namespace
} // namespace morvane
