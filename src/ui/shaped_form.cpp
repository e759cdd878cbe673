#include "ui/shaped_form.h"

#include "core/literals.h"
#include "ui/controls/palette.h"
#include "ui/shell.h"
#include "ui/skin.h"
#include "ui/window_outline.h"

#include <QApplication>
#include <QBitmap>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>

namespace morvane {

namespace {

constexpr QSize mainSize{880, 580};
const QString mainRegion = u"MainRegion.dat"_s;

} // namespace

const WindowLook mainLook{u"MVMainInterface.bmp"_s, mainRegion, mainSize, false};
const WindowLook groundLook{u"MVGroundInterface.bmp"_s, mainRegion, mainSize, false};
const WindowLook skyLook{u"MVSkyInterface.bmp"_s, mainRegion, mainSize, false};
const WindowLook nightLook{u"MVNightInterface.bmp"_s, mainRegion, mainSize, false};
const WindowLook messageLook{u"MVMsg_BG.bmp"_s, u"MsgRegion.dat"_s, {400, 300}};
const WindowLook smallDialogLook{u"MVAdd_BG.bmp"_s, u"AddRegion.dat"_s, {400, 360}};
const WindowLook wideDialogLook{u"MVWide_BG.bmp"_s, u"RandomizerRegion.dat"_s, {700, 500}};
const WindowLook readyDialogLook{u"MVReady_BG.bmp"_s, u"ReadyRegion.dat"_s, {520, 424}};
const WindowLook sheetLook{u"MVSheet_BG.bmp"_s, u"SheetRegion.dat"_s, {880, 580}};

QRegion outlineOf(const QPixmap& picture, const QSize& size) {
    const QImage scaled = picture.toImage().scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return QRegion(QBitmap::fromImage(scaled.createAlphaMask(Qt::ThresholdDither)));
}

bool clsTransForm::ShapeMe(Skin& skin, const QString& regionFile) {
    const QRegion outline = skin.outline(regionFile);
    if (outline.isEmpty()) return false;
    form_.setMask(outline);
    return true;
}

void clsTransForm::DragForm(const QPoint& grabbedAt) {
    offset_ = grabbedAt - form_.pos();
    isDragging_ = !form_.windowHandle() || !form_.windowHandle()->startSystemMove();
}

void clsTransForm::moveTo(const QPoint& pointer) {
    if (isDragging_) form_.move(pointer - offset_);
}

ShapedForm::ShapedForm(Shell& shell, const QString& name, const WindowLook& look)
    : Form(shell, name), picture_(look.picture), isPaper_(look.isPaper), shape_(*this) {
    setFixedSize(look.size);
    setWindowTitle(u"Morvane"_s);
    // A picture that no outline cuts would show its key colour as holes: both or neither.
    if (!background().isNull() && shape_.ShapeMe(skin(), look.region))
        setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    else
        picture_.clear();
}

QPixmap ShapedForm::background() const {
    if (picture_.isEmpty()) return {};
    return isPaper_ ? skin().ground(picture_) : skin().picture(picture_);
}

void ShapedForm::centreOver(const QWidget* other) {
    const QRect place = other ? other->geometry() : QApplication::primaryScreen()->availableGeometry();
    move(place.center() - rect().center());
    keepOnScreen();
}

/// Wholly on the screen that holds most of it; where it is larger than the screen, its top left corner.
void ShapedForm::keepOnScreen() {
    const QScreen* screen = QApplication::screenAt(geometry().center());
    const QRect room = (screen ? screen : QApplication::primaryScreen())->availableGeometry();
    move(std::max(room.left(), std::min(x(), room.right() + 1 - width())),
         std::max(room.top(), std::min(y(), room.bottom() + 1 - height())));
}

/// At a scale the steps of the outline's points would be seen; and a window may come to a screen of another
/// one.
void ShapedForm::cutOutline() {
    cutScale_ = devicePixelRatioF();
    const QPixmap picture = background();
    if (picture.isNull() || !hasPixelOutlines() || (cutScale_ == 1 && !mask().isEmpty())) return;
    cutToPixels(*this, outlineOf(picture, size() * cutScale_));
}

void ShapedForm::showEvent(QShowEvent* event) {
    keepOnScreen();
    cutOutline();
    // Who goes by keys sees in the next window, too, where they lead.
    if (const QWidget* before = QApplication::activeWindow())
        setAttribute(Qt::WA_KeyboardFocusChange, before->testAttribute(Qt::WA_KeyboardFocusChange));
    Form::showEvent(event);
}

void ShapedForm::paintEvent(QPaintEvent*) {
    if (cutScale_ != devicePixelRatioF()) cutOutline();
    QPainter painter(this);
    const QPixmap picture = background();
    if (picture.isNull()) return painter.fillRect(rect(), QColor::fromRgb(palette::bezel));
    // On a dense display the picture's edge is finer than the outline that the window is cut to.
    painter.fillRect(rect(), QColor::fromRgb(palette::outline));
    painter.setRenderHint(QPainter::SmoothPixmapTransform); // letters in it would lose lines at 150 %
    painter.drawPixmap(rect(), picture);
}

void ShapedForm::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    setCursor(skin().cursor(u"HMOVE.cur"_s, Qt::SizeAllCursor));
    shape_.DragForm(event->globalPosition().toPoint());
}

void ShapedForm::mouseMoveEvent(QMouseEvent* event) {
    shape_.moveTo(event->globalPosition().toPoint());
}

void ShapedForm::mouseReleaseEvent(QMouseEvent*) {
    shape_.endDrag();
    unsetCursor();
}

void ShapedForm::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F1)
        shell().openHelp();
    else if (event->key() == Qt::Key_Escape)
        cancel();
    else
        Form::keyPressEvent(event);
}

void ShapedForm::closeEvent(QCloseEvent* event) {
    event->ignore();
    cancel();
}

} // namespace morvane
