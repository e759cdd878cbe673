#include "ui/controls/picture_frame.h"

#include "core/literals.h"
#include "ui/controls/palette.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

namespace morvane {

namespace {

constexpr int margin = 6; // a line, a white line and a shadow of four

/// Four rings, fainter outward, one pixel lower than the picture.
void paintShadow(QPainter& painter, const QRect& place) {
    constexpr int reach = 4;
    QColor shade = QColor::fromRgba(palette::now(paper::pictureShade));
    const double most = shade.alphaF() / reach;
    painter.setPen(Qt::NoPen);
    for (int ring = 1; ring <= reach; ++ring) {
        shade.setAlphaF(static_cast<float>(most));
        painter.setBrush(shade);
        painter.drawRoundedRect(place.adjusted(-ring, 1 - ring, ring, 1 + ring), ring, ring);
    }
}

} // namespace

PictureFrame::PictureFrame(QWidget* parent) : QWidget(parent) {
    setAccessibleName(u"Picture"_s);
}

void PictureFrame::placePicture(const QRect& place) {
    setGeometry(place.adjusted(-margin, -margin, margin, margin));
}

QRect PictureFrame::picturePlace() const {
    return rect().adjusted(margin, margin, -margin, -margin);
}

void PictureFrame::setPicture(const QImage& picture) {
    picture_ = picture;
    sized_ = {};
    update(picturePlace());
}

void PictureFrame::setSmooth(bool isSmooth) {
    isSmooth_ = isSmooth;
    sized_ = {};
    update();
}

/// The picture at the size of its place on this screen, made once: a painter that enlarges spreads the work
/// over threads, which takes longer than all of a small picture.
const QImage& PictureFrame::sizedPicture() {
    const double ratio = devicePixelRatioF();
    const QSize dots = (QSizeF(picturePlace().size()) * ratio).toSize();
    if (sized_.size() == dots) return sized_;
    sized_ = picture_.scaled(dots, Qt::IgnoreAspectRatio,
                             isSmooth_ ? Qt::SmoothTransformation : Qt::FastTransformation);
    sized_.setDevicePixelRatio(ratio);
    return sized_;
}

void PictureFrame::paintFrame(QPainter& painter) const {
    const QRect place = picturePlace();
    painter.setRenderHint(QPainter::Antialiasing);
    paintShadow(painter, place.adjusted(-1, -1, 1, 1));
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(place.adjusted(-2, -2, 2, 2), QColor::fromRgb(palette::now(paper::pictureEdge)));
    const bool isInHand = hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange);
    painter.fillRect(
        place.adjusted(-1, -1, 1, 1),
        QColor::fromRgb(isInHand ? palette::now(paper::accent) : palette::now(paper::pictureLine)));
}

void PictureFrame::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) Q_EMIT opened();
}

void PictureFrame::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return QWidget::keyPressEvent(event);
    Q_EMIT opened();
}

void PictureFrame::focusInEvent(QFocusEvent*) {
    update();
}

void PictureFrame::focusOutEvent(QFocusEvent*) {
    update();
}

void PictureFrame::paintEvent(QPaintEvent* event) {
    const QRect place = picturePlace();
    QPainter painter(this);
    if (!place.contains(event->rect())) paintFrame(painter);
    if (picture_.isNull())
        painter.fillRect(place, QColor::fromRgb(palette::now(paper::foot)));
    else
        painter.drawImage(place.topLeft(), sizedPicture());
}

} // namespace morvane
