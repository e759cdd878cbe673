#include "ui/controls/paper_style.h"

#include "core/literals.h"
#include "ui/controls/labels.h"
#include "ui/controls/palette.h"
#include "ui/controls/paper_drawing.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QPainter>
#include <QStyleOption>
#include <QToolTip>
#include <algorithm>

namespace morvane {

namespace {

constexpr int headMargin = 6, mostRowsOfChoice = 14;
constexpr int boxSize = 15, tipDelay = 250, tipTime = 10'000, shortestHandle = 24;
constexpr char onDarkName[] = "onDark", captionOffsetName[] = "captionOffset", aliveName[] = "captionIsAlive";

bool isOnDark(const QWidget* widget) {
    return widget && widget->property(onDarkName).toBool();
}

int captionSpacing(const QWidget* widget, int usual) {
    const QVariant offset = widget ? widget->property(captionOffsetName) : QVariant();
    return (offset.isValid() ? offset.toInt() : usual) - boxSize;
}

/// A list's check box stands in the first 22 pixels of its cell, the text beside it.
constexpr int cellBoxInset = 5, cellBoxRoom = 22;
/// A text has the inset at its left only: the next column's own keeps it apart from that.
constexpr int cellTextInset = 6;

QRect cellBoxPlace(const QRect& cell) {
    return {cell.left() + cellBoxInset, cell.top() + (cell.height() - boxSize) / 2, boxSize, boxSize};
}

bool hasFeature(const QStyleOption* option, QStyleOptionViewItem::ViewItemFeature feature) {
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    return item && item->features.testFlag(feature);
}

/// A scroll bar has no arrow keys at its ends: the groove takes its whole length.
QRect scrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part) {
    const bool isUpright = bar.orientation == Qt::Vertical;
    const int length = isUpright ? bar.rect.height() : bar.rect.width();
    const qint64 steps = qint64(bar.maximum) - bar.minimum;
    const qint64 shown = steps > 0 ? length * qint64(bar.pageStep) / (steps + bar.pageStep) : length;
    const int handle = static_cast<int>(std::clamp<qint64>(shown, std::min(shortestHandle, length), length));
    const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                      length - handle, bar.upsideDown);
    const auto along = [&](int from, int size) {
        return isUpright ? QRect(bar.rect.left(), bar.rect.top() + from, bar.rect.width(), size)
                         : QRect(bar.rect.left() + from, bar.rect.top(), size, bar.rect.height());
    };
    switch (part) {
    case QStyle::SC_ScrollBarGroove:
        return bar.rect;
    case QStyle::SC_ScrollBarSlider:
        return along(start, handle);
    case QStyle::SC_ScrollBarSubPage:
        return along(0, start);
    case QStyle::SC_ScrollBarAddPage:
        return along(start + handle, length - start - handle);
    default:
        return {};
    }
}

} // namespace

PaperStyle::PaperStyle() : QProxyStyle(u"Fusion"_s) {}

QPalette PaperStyle::standardPalette() const {
    return palette::ofWidgets();
}

void PaperStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (widget->toolTipDuration() < 0) widget->setToolTipDuration(tipTime);
    if (qobject_cast<QAbstractButton*>(widget)) widget->setAttribute(Qt::WA_Hover);
    if (auto* choice = qobject_cast<QComboBox*>(widget)) choice->setMaxVisibleItems(mostRowsOfChoice);
}

int PaperStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* result) const {
    switch (hint) {
    case SH_ToolTip_WakeUpDelay:
        return tipDelay;
    case SH_ToolTipLabel_Opacity:
        return 255;
    case SH_ComboBox_Popup: // the list of all cities would be as high as the screen
    case SH_ScrollBar_LeftClickAbsolutePosition:
    case SH_EtchDisabledText:
    case SH_ItemView_ActivateItemOnSingleClick:
    case SH_DialogButtonBox_ButtonsHaveIcons: // the toolkit's are red and green
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, result);
    }
}

int PaperStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return boxSize;
    case PM_CheckBoxLabelSpacing:
        return captionSpacing(widget, 23) + 1; // Qt counts a check box from its last pixel
    case PM_RadioButtonLabelSpacing:
        return captionSpacing(widget, 21);
    case PM_DefaultFrameWidth:
    case PM_ComboBoxFrameWidth:
        return 1;
    case PM_FocusFrameHMargin: // with the 1 that Qt adds, the texts of a list are 6 from the left of their
                               // cell
        return 5;
    case PM_HeaderMargin:
        return headMargin;
    case PM_ScrollBarExtent:
        return 12;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QRect PaperStyle::subElementRect(SubElement element, const QStyleOption* option,
                                 const QWidget* widget) const {
    switch (element) {
    case SE_LineEditContents: // Qt's edit adds 2 of its own to come to 6
        return option->rect.adjusted(4, 1, -4, -1);
    case SE_ItemViewItemCheckIndicator:
        return cellBoxPlace(option->rect);
    case SE_ItemViewItemText:
        // A row with a picture is none of ours but the folder browser's, and its layout Qt's.
        if (hasFeature(option, QStyleOptionViewItem::HasDecoration)) break;
        return option->rect.adjusted(hasFeature(option, QStyleOptionViewItem::HasCheckIndicator) ? cellBoxRoom
                                                                                                 : 0,
                                     0, cellTextInset, 0);
    default:
        break;
    }
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect PaperStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                 const QWidget* widget) const {
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        bar && control == CC_ScrollBar)
        return scrollBarPart(*bar, part);
    if (control == CC_ComboBox && part == SC_ComboBoxEditField) return option->rect.adjusted(5, 1, -20, -1);
    return QProxyStyle::subControlRect(control, option, part, widget);
}

void PaperStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    switch (element) {
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        return drawCheckBox(*painter, *option);
    case PE_IndicatorRadioButton:
        return drawOptionBox(*painter, *option);
    case PE_PanelButtonCommand:
        return isOnDark(widget) ? drawDarkButton(*painter, *option) : drawPlainButton(*painter, *option);
    case PE_PanelLineEdit:
    case PE_Frame: // of a list or a text box
        return drawField(*painter, *option);
    case PE_PanelItemViewItem:
        return drawRowCell(*painter, *qstyleoption_cast<const QStyleOptionViewItem*>(option));
    case PE_PanelTipLabel:
        return drawPaperBox(*painter, option->rect,
                            {palette::now(paper::tipGround), palette::now(paper::tipGround),
                             palette::now(paper::fieldLine), 0});
    case PE_PanelItemViewRow: // the cells draw their own ground
    case PE_FrameFocusRect:   // each control shows the focus by its own border
    case PE_PanelStatusBar:
        return;
    default:
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void PaperStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
    switch (element) {
    case CE_HeaderSection: {
        const auto* head = qstyleoption_cast<const QStyleOptionHeader*>(option);
        const bool isLast =
            head->position == QStyleOptionHeader::End || head->position == QStyleOptionHeader::OnlyOneSection;
        return drawListHead(*painter, option->rect, !isLast);
    }
    case CE_HeaderLabel: {
        // The margin that was taken off all round is for the sides; above and below it would cut the letters.
        QStyleOptionHeader label(*qstyleoption_cast<const QStyleOptionHeader*>(option));
        label.rect.adjust(0, -headMargin, headMargin - 2, headMargin);
        return QProxyStyle::drawControl(element, &label, painter, widget);
    }
    case CE_CheckBoxLabel: {
        QStyleOptionButton label(*qstyleoption_cast<const QStyleOptionButton*>(option));
        if (widget && widget->property(aliveName).toBool()) {
            label.state |= State_Enabled;
            label.palette.setCurrentColorGroup(QPalette::Active);
        }
        return QProxyStyle::drawControl(element, &label, painter, widget);
    }
    case CE_HeaderEmptyArea:
        return drawListHead(*painter, option->rect, false);
    case CE_ProgressBar: {
        const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option);
        const double steps = double(bar->maximum) - bar->minimum;
        return drawProgress(*painter, bar->rect, steps > 0 ? (bar->progress - bar->minimum) / steps : 0);
    }
    default:
        return QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void PaperStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        bar && control == CC_ScrollBar)
        return drawScrollBar(*painter, bar->rect, scrollBarPart(*bar, SC_ScrollBarSlider), bar->orientation);
    if (control == CC_ComboBox) return drawChoiceBox(*painter, *option);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void applyPaperStyle() {
    QApplication::setStyle(new PaperStyle);
    palette::use(palette::inUse());
    QApplication::setFont(fontOf(TextRole::body));
    QApplication::setFont(fontOf(TextRole::value), "QPushButton");
    QApplication::setFont(fontOf(TextRole::listHead), "QHeaderView");
    QToolTip::setFont(fontOf(TextRole::body));
}

void setOnDark(QAbstractButton& button) {
    button.setProperty(onDarkName, true);
    QPalette colours = button.palette();
    for (const auto role : {QPalette::ButtonText, QPalette::WindowText}) {
        colours.setColor(role, QColor::fromRgb(palette::textBright));
        colours.setColor(QPalette::Disabled, role, QColor::fromRgb(palette::textOff));
    }
    button.setPalette(colours);
}

void keepCaptionAlive(QAbstractButton& button) {
    button.setProperty(aliveName, true);
}

void setCaptionOffset(QAbstractButton& button, int offset) {
    button.setProperty(captionOffsetName, offset);
    button.updateGeometry();
}

} // namespace morvane
