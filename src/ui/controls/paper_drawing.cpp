#include "ui/controls/paper_drawing.h"

#include "ui/controls/palette.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>
#include <algorithm>

namespace morvane {

namespace {

/// Antialiasing for as long as it lives: round corners need it, straight lines must not have it.
class Smooth {
public:
    explicit Smooth(QPainter& painter) : painter_(painter) {
        painter_.save();
        painter_.setRenderHint(QPainter::Antialiasing);
    }
    ~Smooth() { painter_.restore(); }
    Smooth(const Smooth&) = delete;
    Smooth& operator=(const Smooth&) = delete;

private:
    QPainter& painter_;
};

/// Along the middle of the place's outermost pixels.
QRectF borderOf(const QRect& place, double inset = 0) {
    const double half = inset + .5;
    return QRectF(place).adjusted(half, half, -half, -half);
}

QLinearGradient shadeFrom(const QRect& place, QRgb top, QRgb foot) {
    QLinearGradient ground(0, place.top(), 0, place.top() + place.height());
    ground.setColorAt(0, QColor::fromRgb(top));
    ground.setColorAt(1, QColor::fromRgb(foot));
    return ground;
}

void drawLine(QPainter& painter, const QRect& line, QRgb colour) {
    painter.fillRect(line, QColor::fromRgba(colour));
}

bool has(const QStyleOption& option, QStyle::StateFlag flag) {
    return option.state.testFlag(flag);
}

QRgb markOf(const QStyleOption& option) {
    return has(option, QStyle::State_Enabled) ? palette::now(paper::text) : palette::now(paper::markLine);
}

/// A button's ring is for those who go by keys: it shows once Tab was pressed in the window.
bool showsFocus(const QStyleOption& option) {
    return has(option, QStyle::State_HasFocus) && has(option, QStyle::State_KeyboardFocusChange);
}

PaperBox markBox(const QStyleOption& option, QRgb ground, double radius) {
    const bool isLit = has(option, QStyle::State_MouseOver) || showsFocus(option);
    return {ground, ground, isLit ? palette::now(paper::accent) : palette::now(paper::markLine), radius};
}

} // namespace

void drawPaperBox(QPainter& painter, const QRect& place, const PaperBox& box) {
    const Smooth smooth(painter);
    painter.setPen(QColor::fromRgb(box.border));
    painter.setBrush(shadeFrom(place, box.top, box.foot));
    const double radius = std::max(box.radius - .5, 0.0);
    painter.drawRoundedRect(borderOf(place), radius, radius);
}

void drawFocusRing(QPainter& painter, const QRect& place, double radius) {
    const Smooth smooth(painter);
    painter.setPen(QPen(QColor::fromRgb(palette::now(paper::accent)), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(borderOf(place, .5), radius - 1, radius - 1);
}

void drawPlainButton(QPainter& painter, const QStyleOption& option) {
    constexpr double radius = 4;
    const bool isDead = !has(option, QStyle::State_Enabled);
    const bool isPressed = has(option, QStyle::State_Sunken);
    const bool isHovered = has(option, QStyle::State_MouseOver) && !isDead;
    const PaperColour& top = isDead ? paper::buttonDead : isPressed ? paper::buttonFoot : paper::buttonTop;
    const PaperColour& foot = isDead ? paper::buttonDead : isPressed ? paper::buttonTop : paper::buttonFoot;
    drawPaperBox(painter, option.rect,
                 {palette::now(top), palette::now(foot),
                  palette::now(isHovered ? paper::accent : paper::fieldLine), radius});
    if (showsFocus(option)) drawFocusRing(painter, option.rect, radius);
}

void drawDarkButton(QPainter& painter, const QStyleOption& option) {
    constexpr double radius = 5;
    PaperBox box{palette::keyTop, palette::keyFoot, palette::line, radius};
    if (!has(option, QStyle::State_Enabled))
        box = {palette::keyDisabled, palette::keyDisabled, palette::line, radius};
    else if (has(option, QStyle::State_Sunken))
        box = {palette::keyPressedTop, palette::keyPressedFoot, palette::line, radius};
    else if (has(option, QStyle::State_MouseOver))
        box = {palette::keyHoverTop, palette::keyHoverFoot, palette::keyHoverLine, radius};
    drawPaperBox(painter, option.rect, box);
    const QRect inner = option.rect.adjusted(4, 1, -4, -1);
    drawLine(painter, {inner.left(), inner.top(), inner.width(), 1}, palette::keyLight);
    drawLine(painter, {inner.left(), inner.bottom(), inner.width(), 1}, palette::keyShade);
    if (showsFocus(option)) drawFocusRing(painter, option.rect, radius);
}

void drawCheckBox(QPainter& painter, const QStyleOption& option) {
    const bool isSet = has(option, QStyle::State_On);
    const QRect& place = option.rect;
    PaperBox box = markBox(option, isSet ? markOf(option) : palette::now(paper::field), 3);
    if (isSet) box.border = markOf(option);
    drawPaperBox(painter, place, box);
    if (showsFocus(option)) drawFocusRing(painter, place, 3);
    if (!isSet) return;
    const Smooth smooth(painter);
    painter.setPen(
        QPen(QColor::fromRgb(palette::now(paper::tick)), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF corner = place.topLeft();
    painter.drawPolyline(
        QPolygonF({corner + QPointF(4, 7.8), corner + QPointF(6.5, 10.3), corner + QPointF(11, 5)}));
}

void drawOptionBox(QPainter& painter, const QStyleOption& option) {
    const double round = option.rect.width() / 2.0;
    drawPaperBox(painter, option.rect, markBox(option, palette::now(paper::field), round));
    if (showsFocus(option)) drawFocusRing(painter, option.rect, round);
    if (!has(option, QStyle::State_On)) return;
    const Smooth smooth(painter);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(markOf(option)));
    painter.drawEllipse(QRectF(option.rect).center(), 3.5, 3.5);
}

void drawField(QPainter& painter, const QStyleOption& option) {
    constexpr double radius = 3;
    const QRect& place = option.rect;
    drawPaperBox(
        painter, place,
        {palette::now(paper::field), palette::now(paper::field), palette::now(paper::fieldLine), radius});
    drawLine(painter, {place.left() + 2, place.top() + 1, place.width() - 4, 1},
             palette::now(paper::fieldShade));
    if (has(option, QStyle::State_HasFocus)) drawFocusRing(painter, place, radius);
}

void drawChoiceBox(QPainter& painter, const QStyleOption& option) {
    drawField(painter, option);
    const Smooth smooth(painter);
    painter.setPen(QPen(QColor::fromRgb(markOf(option)), 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF tip(option.rect.right() - 10, option.rect.center().y() + 2.5);
    painter.drawPolyline(QPolygonF({tip + QPointF(-4, -4), tip, tip + QPointF(4, -4)}));
}

void drawListHead(QPainter& painter, const QRect& place, bool hasGap) {
    painter.fillRect(place, shadeFrom(place, palette::now(paper::headTop), palette::now(paper::headFoot)));
    drawLine(painter, {place.left(), place.bottom(), place.width(), 1}, palette::now(paper::rule));
    if (hasGap)
        drawLine(painter, {place.right(), place.top() + 4, 1, place.height() - 8},
                 palette::now(paper::headGap));
}

void drawRowCell(QPainter& painter, const QStyleOptionViewItem& option) {
    const QRect& place = option.rect;
    const bool isSelected = has(option, QStyle::State_Selected);
    if (isSelected) painter.fillRect(place, QColor::fromRgb(palette::now(paper::selectedRow)));
    drawLine(painter, {place.left(), place.bottom(), place.width(), 1}, palette::now(paper::rowLine));
    const bool isFirst = option.viewItemPosition == QStyleOptionViewItem::Beginning ||
                         option.viewItemPosition == QStyleOptionViewItem::OnlyOne;
    if (isSelected && isFirst)
        drawLine(painter, {place.left(), place.top(), 2, place.height()}, palette::now(paper::accent));
}

void drawScrollBar(QPainter& painter, const QRect& place, const QRect& handle, Qt::Orientation orientation) {
    constexpr int handleInset = 3; // leaves 7 of the bar's 12 beside the hair
    const bool isUpright = orientation == Qt::Vertical;
    painter.fillRect(place, QColor::fromRgb(palette::now(paper::scrollGround)));
    drawLine(painter,
             isUpright ? QRect(place.left(), place.top(), 1, place.height())
                       : QRect(place.left(), place.top(), place.width(), 1),
             palette::now(paper::hair));
    const Smooth smooth(painter);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(palette::now(paper::scrollHandle)));
    const QRect bar =
        isUpright ? handle.adjusted(handleInset, 3, -2, -3) : handle.adjusted(3, handleInset, -3, -2);
    painter.drawRoundedRect(bar, 3.5, 3.5);
}

void drawProgress(QPainter& painter, const QRect& place, double fraction) {
    const int inset = place.height() >= 16 ? 3 : 2;
    const Smooth smooth(painter);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(palette::line));
    painter.drawRoundedRect(place, place.height() / 2.0, place.height() / 2.0);
    const QRectF full = QRectF(place).adjusted(inset, inset, -inset, -inset);
    const double length = full.width() * std::clamp(fraction, 0.0, 1.0);
    if (length <= 0) return;
    const double round = full.height() / 2;
    // The round ends take a whole height: a shorter fill is the left part of that round.
    QPainterPath shape;
    shape.addRoundedRect({full.topLeft(), QSizeF(std::max(length, full.height()), full.height())}, round,
                         round);
    painter.setClipRect(QRectF(place.topLeft(), QSizeF(inset + length + inset, place.height())));
    painter.setPen(QPen(QColor::fromRgba(palette::glow), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(shape);
    painter.setClipRect(QRectF(full.topLeft(), QSizeF(length, full.height())));
    painter.fillPath(shape, shadeFrom(full.toRect(), palette::progressTop, palette::progressFoot));
}

} // namespace morvane
