#include "sheets/screens/divided_picture.h"

#include "core/literals.h"
#include "ui/controls/palette.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace morvane {

namespace {

constexpr double keyStep = 0.05;
constexpr int handleRadius = 8;

} // namespace

DividedPicture::DividedPicture(QWidget* parent) : PictureFrame(parent) {
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::SplitHCursor);
    setAccessibleName(u"The base and this set, parted by a line"_s);
    setToolTip(u"Drag the line: the base is at its left, this set at its right."_s);
}

void DividedPicture::setPair(const SheetPair& pair) {
    pair_ = pair;
    compose();
}

void DividedPicture::showBase(bool isWanted) {
    showsBase_ = isWanted;
    compose();
}

void DividedPicture::moveTo(double part) {
    part_ = std::clamp(part, 0.0, 1.0);
    setAccessibleDescription(u"%1 % of it is the base"_s.arg(qRound(100 * part_)));
    compose();
}

/// The line is painted over the scaled picture, so that it stays sharp.
void DividedPicture::compose() {
    const QImage& shown = pair_.own.isNull() ? pair_.base : pair_.own;
    if (shown.isNull()) return setPicture({});
    const QSize dots = (QSizeF(picturePlace().size()) * devicePixelRatioF()).toSize();
    QImage whole(dots, QImage::Format_RGB32);
    QPainter painter(&whole);
    paintPair(painter, whole.rect(), pair_, {.isCut = true, .showsBase = showsBase_},
              static_cast<int>(part_ * dots.width()));
    painter.end();
    setPicture(whole);
}

void DividedPicture::paintEvent(QPaintEvent* event) {
    PictureFrame::paintEvent(event);
    if (pair_.own.isNull() || showsBase_) return;
    const QRect place = picturePlace();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF middle(place.left() + part_ * place.width(), place.center().y());
    painter.setClipRect(place);
    painter.setPen(QPen(hasFocus() ? QColor::fromRgb(palette::now(paper::accent))
                                   : QColor::fromRgb(palette::overPicture),
                        1.5));
    painter.setBrush(QColor::fromRgb(palette::deck));
    painter.drawEllipse(middle, handleRadius, handleRadius);
    painter.setPen(QPen(QColor::fromRgb(palette::overPicture), 1.4));
    for (const int way : {-1, 1}) {
        const QPointF tip = middle + QPointF(5 * way, 0);
        painter.drawPolyline(QPolygonF{tip + QPointF(-2.5 * way, -2.5), tip, tip + QPointF(-2.5 * way, 2.5)});
    }
}

void DividedPicture::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) mouseMoveEvent(event);
}

void DividedPicture::mouseMoveEvent(QMouseEvent* event) {
    moveTo((event->position().x() - picturePlace().left()) / picturePlace().width());
}

void DividedPicture::keyPressEvent(QKeyEvent* event) {
    const int way = event->key() == Qt::Key_Left ? -1 : event->key() == Qt::Key_Right ? 1 : 0;
    if (way == 0) return PictureFrame::keyPressEvent(event);
    moveTo(part_ + way * keyStep);
}

} // namespace morvane
