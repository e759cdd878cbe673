#include "ui/skinned_button.h"

#include "core/literals.h"
#include "core/numbers.h"
#include "ui/controls/palette.h"
#include "ui/controls/wrapped_tip.h"
#include "ui/skin.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <array>
#include <utility>

namespace morvane {

namespace {

struct FamilyTraits {
    QSize size;    ///< of one frame
    QRect caption; ///< its place; empty for families without words
};

/// In the order of ButtonFamily.
constexpr std::array<FamilyTraits, 4> families{{
    {{128, 43}, {42, 8, 82, 28}},
    {{40, 28}, {}},
    {{48, 44}, {}},
    {{126, 44}, {40, 15, 84, 14}},
}};

constexpr int captionPixels = 12, captionPitch = 14;
constexpr int tipMilliseconds = 10'000;
constexpr int frameCount = 4;

const FamilyTraits& traitsOf(ButtonFamily family) {
    return families[static_cast<std::size_t>(family)];
}

/// "deactivate" looks like "disabled": both show the last frame.
int frameOf(ButtonState state) {
    return std::min(static_cast<int>(state), frameCount - 1);
}

bool isPressKey(const QKeyEvent& event) {
    return event.key() == Qt::Key_Space || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

SkinnedButton::SkinnedButton(ButtonFamily family, Skin& skin, QWidget* parent)
    : QWidget(parent), family_(family), skin_(skin) {
    setFixedSize(sizeOf(family));
    setFocusPolicy(Qt::TabFocus);
    setCursor(skin.cursor(u"Hand.cur"_s, Qt::PointingHandCursor));
    setToolTipDuration(tipMilliseconds);
}

QSize SkinnedButton::sizeOf(ButtonFamily family) {
    return traitsOf(family).size;
}

void SkinnedButton::setToolTip(const QString& text) {
    toolTip_ = text;
    QWidget::setToolTip(wrappedTip(text));
    refreshAccessibility();
}

void SkinnedButton::setButtonText(const QString& text) {
    buttonText_ = trimmedBlanks(text);
    refreshAccessibility();
    update();
}

void SkinnedButton::refreshAccessibility() {
    setAccessibleName(QString(buttonText_.isEmpty() ? toolTip_ : buttonText_).replace(u'\n', u' '));
    setAccessibleDescription(toolTip_);
}

void SkinnedButton::setPicture(const QString& name) {
    picture_ = trimmedBlanks(name);
    const QPixmap strip = skin_.picture(picture_ + u".bmp"_s);
    if (strip.isNull()) return;
    strip_ = strip;
    update();
}

void SkinnedButton::setState(ButtonState state) {
    const bool isDisabled = state == ButtonState::disabled;
    QAccessible::State change;
    change.disabled = isDisabled != (state_ == ButtonState::disabled);
    state_ = state;
    setFocusPolicy(isDisabled ? Qt::NoFocus : Qt::TabFocus);
    update();
    if (!change.disabled) return;
    QAccessibleStateChangeEvent event(this, change);
    QAccessible::updateAccessibility(&event);
}

int SkinnedButton::frameOffset() const {
    return -frameOf(shownState()) * height();
}

QFont SkinnedButton::captionFont() const {
    QFont captions = font();
    captions.setPixelSize(captionPixels);
    captions.setWeight(QFont::Medium);
    return captions;
}

QRect SkinnedButton::captionPlace() const {
    const QRect place = traitsOf(family_).caption;
    return state_ == ButtonState::down ? place.translated(0, 1) : place;
}

void SkinnedButton::press() {
    if (!isDead()) setState(ButtonState::down);
}

/// The key may be gone, or have another state, once the click has been dealt with.
void SkinnedButton::release() {
    if (state_ == ButtonState::disabled) return;
    if (state_ != ButtonState::deactivate) setState(ButtonState::highlight);
    mouseHasLeft_ = false;
    const QPointer<SkinnedButton> self(this);
    Q_EMIT dispatched(this);
    if (!self || isDead()) return;
    // Where the click opened a message, the mouse left while it stood there and will not leave again.
    setState(mouseHasLeft_ ? ButtonState::enabled : ButtonState::highlight);
}

void SkinnedButton::click_event() {
    press();
}

void SkinnedButton::click() {
    press();
    release();
}

/// A hidden window gets no leave event, so the key would come back lit.
void SkinnedButton::hideEvent(QHideEvent*) {
    takeMouseAway();
}

void SkinnedButton::takeMouseAway() {
    mouseHasLeft_ = true;
    if (!isDead()) setState(ButtonState::enabled);
}

void SkinnedButton::enterEvent(QEnterEvent*) {
    if (!isDead()) setState(ButtonState::highlight);
}

void SkinnedButton::leaveEvent(QEvent*) {
    takeMouseAway();
}

void SkinnedButton::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) press();
}

void SkinnedButton::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

void SkinnedButton::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) release();
}

void SkinnedButton::keyPressEvent(QKeyEvent* event) {
    if (!isPressKey(*event)) return QWidget::keyPressEvent(event);
    if (event->isAutoRepeat()) return;
    isKeyDown_ = true;
    press();
}

/// The release may belong to a press that closed a dialog above: alone it does nothing.
void SkinnedButton::keyReleaseEvent(QKeyEvent* event) {
    if (!isPressKey(*event)) return QWidget::keyReleaseEvent(event);
    const bool isAlive = state_ == ButtonState::down || state_ == ButtonState::deactivate;
    if (!event->isAutoRepeat() && std::exchange(isKeyDown_, false) && isAlive) release();
}

void SkinnedButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (strip_.isNull())
        paintPlain(painter);
    else
        painter.drawPixmap(rect(), strip_, frameInStrip());
    paintCaption(painter);
    if (!hasFocus() || !window()->testAttribute(Qt::WA_KeyboardFocusChange)) return;
    painter.setPen(QColor::fromRgb(palette::accent));
    painter.drawRoundedRect(QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5), 4, 4);
}

/// In the strip's own pixels, which are more than one to a logical pixel on a dense display.
QRect SkinnedButton::frameInStrip() const {
    const int frameHeight = strip_.height() / frameCount;
    return {0, frameOf(shownState()) * frameHeight, strip_.width(), frameHeight};
}

ButtonState SkinnedButton::shownState() const {
    return isLatched_ && !isDead() ? ButtonState::down : state_;
}

void SkinnedButton::setLatched(bool isLatched) {
    isLatched_ = isLatched;
    update();
}

void SkinnedButton::paintPlain(QPainter& painter) const {
    painter.setPen(QColor::fromRgb(palette::line));
    painter.setBrush(QColor::fromRgb(shownState() == ButtonState::down ? palette::deck : palette::bezelMid));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
    if (!traitsOf(family_).caption.isEmpty()) return;
    painter.setPen(QColor::fromRgb(palette::textBright));
    painter.setFont(captionFont());
    painter.drawText(rect(), Qt::AlignCenter, buttonType_.left(5));
}

void SkinnedButton::paintCaption(QPainter& painter) const {
    if (traitsOf(family_).caption.isEmpty()) return;
    // The disabled frame of a medium key marks the page one is on; that of a large one says it is dead. A
    // "deactivate" key is alive and keeps its bright caption.
    const bool isOff = state_ == ButtonState::disabled && family_ == ButtonFamily::LargeButton;
    const bool isLit = state_ == ButtonState::highlight || state_ == ButtonState::disabled;
    painter.setPen(isOff
                       ? QColor::fromRgb(palette::textOff)
                       : (isLit ? QColor::fromRgb(palette::textLit) : QColor::fromRgb(palette::textBright)));
    painter.setFont(captionFont());
    const QStringList lines = buttonText_.split(u'\n');
    const QRect place = captionPlace();
    QRect line(place.left(), place.center().y() + 1 - captionPitch * static_cast<int>(lines.size()) / 2,
               place.width(), captionPitch);
    for (const QString& text : lines) {
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, text);
        line.translate(0, captionPitch);
    }
}

} // namespace morvane
