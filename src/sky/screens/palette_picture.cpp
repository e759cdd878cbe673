#include "sky/screens/palette_picture.h"

#include "core/literals.h"
#include "sky/sky_groups.h"
#include "sky/sky_tuning.h"
#include "ui/controls/palette.h"
#include "ui/controls/wrapped_tip.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>
#include <cmath>

namespace morvane {

namespace {

constexpr int cells = 32, blockRow = 255, blockLow = 3, blockHigh = 31;

/// The group's pixels, counted from 0 at the upper left corner.
QRect pixelsOf(const SkyGroupConstants& group) {
    const bool isBlock = group.y == blockRow;
    const int low = isBlock ? blockLow : group.y, high = isBlock ? blockHigh : group.y;
    return {QPoint(group.xLow - 1, cells - high), QPoint(group.xHigh - 1, cells - low)};
}

void paintRing(QPainter& painter, const QRectF& outside, QRgb colour) {
    QPainterPath ring;
    ring.addRect(outside);
    ring.addRect(outside.adjusted(1, 1, -1, -1));
    painter.fillPath(ring, QColor::fromRgb(colour));
}

/// How far a key goes in the order of the groups; 0 for any other key.
int stepOf(int key) {
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        return -1;
    case Qt::Key_Right:
    case Qt::Key_Down:
        return 1;
    default:
        return 0;
    }
}

} // namespace

PalettePicture::PalettePicture(QWidget* parent) : PictureFrame(parent) {
    setSmooth(false);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
}

void PalettePicture::setGroup(int number) {
    group_ = number;
    setAccessibleDescription(skyGroup(number).text);
    update();
}

void PalettePicture::mousePressEvent(QMouseEvent* event) {
    const QPointF place = event->position() - picturePlace().topLeft();
    const bool isOnPicture = QRectF(picturePlace()).contains(event->position());
    if (event->button() != Qt::LeftButton || !isOnPicture) return PictureFrame::mousePressEvent(event);
    Q_EMIT clicked(static_cast<float>(place.x()), static_cast<float>(place.y()));
}

void PalettePicture::mouseMoveEvent(QMouseEvent* event) {
    const QPointF place = event->position() - picturePlace().topLeft();
    if (!QRectF(picturePlace()).contains(event->position())) return;
    const auto tip = SkyTuning::tipAt(static_cast<float>(place.x()), static_cast<float>(place.y()));
    if (!tip || wrappedTip(*tip) == toolTip()) return;
    setToolTip(wrappedTip(*tip));
    // One that shows already would go on telling of the pixels before.
    if (QToolTip::isVisible()) QToolTip::showText(event->globalPosition().toPoint(), toolTip(), this);
}

/// The keys click into the middle of the next group.
void PalettePicture::keyPressEvent(QKeyEvent* event) {
    const int step = stepOf(event->key());
    const int next = group_ + step;
    if (step == 0) return PictureFrame::keyPressEvent(event);
    if (next < 1 || next > skyGroupCount) return;
    const QRectF cell(pixelsOf(skyGroup(next)).center(), QSizeF(1, 1));
    const double side = static_cast<double>(picturePlace().width()) / cells;
    Q_EMIT clicked(static_cast<float>(cell.center().x() * side),
                   static_cast<float>(cell.center().y() * side));
}

void PalettePicture::paintEvent(QPaintEvent* event) {
    PictureFrame::paintEvent(event);
    QPainter painter(this);
    if (!picture().isNull()) paintMark(painter);
    if (hasFocus())
        paintRing(painter, QRectF(picturePlace()).adjusted(-2, -2, 2, 2), palette::now(paper::accent));
}

/// Two lines inside the group's edge, which lies on whole dots of the screen as the enlarged pixels do.
void PalettePicture::paintMark(QPainter& painter) const {
    const QRectF place = picturePlace();
    const QRect pixels = pixelsOf(skyGroup(group_));
    const auto edge = [&](double start, int pixel) {
        const double dots = devicePixelRatioF();
        return std::round((start + pixel * place.width() / cells) * dots) / dots;
    };
    const QRectF mark(
        QPointF(edge(place.left(), pixels.left()), edge(place.top(), pixels.top())),
        QPointF(edge(place.left(), pixels.right() + 1), edge(place.top(), pixels.bottom() + 1)));
    paintRing(painter, mark, palette::outline);
    paintRing(painter, mark.adjusted(1, 1, -1, -1), palette::accent);
}

} // namespace morvane
