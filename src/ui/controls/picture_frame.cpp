#include "ui/controls/picture_frame.h"

#include "core/literals.h"
#include "ui/controls/palette.h"

#include <QPainter>

namespace morvane {

namespace {

constexpr int margin = 6; // a line, a white line and a shadow of four

/// Four rings, fainter outward, one pixel lower than the picture.
void paintShadow(QPainter& painter, const QRect& place) {
    constexpr int reach = 4;
    QColor shade = QColor::fromRgba(palette::pictureShade);
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
    update();
}

void PictureFrame::setSmooth(bool isSmooth) {
    isSmooth_ = isSmooth;
    update();
}

void PictureFrame::paintEvent(QPaintEvent*) {
    const QRect place = picturePlace();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintShadow(painter, place.adjusted(-1, -1, 1, 1));
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(place.adjusted(-2, -2, 2, 2), Qt::white);
    painter.fillRect(place.adjusted(-1, -1, 1, 1), QColor::fromRgb(palette::pictureLine));
    if (picture_.isNull()) return painter.fillRect(place, QColor::fromRgb(palette::paperFoot));
    painter.setRenderHint(QPainter::SmoothPixmapTransform, isSmooth_);
    painter.drawImage(place, picture_);
}

} // namespace morvane
