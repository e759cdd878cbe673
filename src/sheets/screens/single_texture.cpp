#include "sheets/screens/single_texture.h"

#include "core/literals.h"
#include "ui/controls/labels.h"
#include "ui/controls/palette.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

namespace morvane {

namespace {

constexpr int margin = 12, gap = 10, captionHeight = 26;

QString sizeText(const QSize& size, double scale) {
    const QString sides = u"%1 x %2"_s.arg(size.width()).arg(size.height());
    return scale < 1 ? sides + u", shown at %1 %"_s.arg(qRound(100 * scale)) : sides;
}

} // namespace

SingleTexture::SingleTexture(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
}

void SingleTexture::setCaptions(const QString& base, const QString& own) {
    baseCaption_ = base;
    ownCaption_ = own;
}

void SingleTexture::setPair(const QString& name, const SheetPair& pair) {
    name_ = name;
    pair_ = pair;
    setAccessibleName(name + u", base and set side by side"_s);
    update();
}

void SingleTexture::showBase(bool isWanted) {
    showsBase_ = isWanted;
    update();
}

void SingleTexture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(palette::now(paper::field)));
    painter.setPen(QColor::fromRgb(palette::now(paper::fieldLine)));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const QSize room((width() - 2 * margin - gap) / 2, height() - 2 * margin - 2 * captionHeight);
    const QSize largest = pair_.base.size().expandedTo(pair_.own.size());
    if (largest.isEmpty()) return;
    const double scale =
        std::min({1.0, double(room.width()) / largest.width(), double(room.height()) / largest.height()});
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    int left = margin + std::max(0, room.width() - qRound(scale * largest.width()));
    const auto draw = [&](const QString& caption, const QImage& picture) {
        const QRect place(QPoint(left, margin + captionHeight), (QSizeF(largest) * scale).toSize());
        painter.setPen(QColor::fromRgb(palette::now(paper::text)));
        painter.setFont(fontOf(TextRole::value));
        painter.drawText(QRect(left, margin, place.width(), captionHeight), Qt::AlignVCenter, caption);
        if (!picture.isNull()) painter.drawImage(place, picture);
        left += place.width() + gap;
        return place;
    };
    draw(baseCaption_, pair_.base);
    const QRect last = draw(ownCaption_, showsBase_ ? pair_.base : pair_.own);
    painter.setFont(fontOf(TextRole::longHelp));
    painter.drawText(
        QRect(margin + std::max(0, room.width() - last.width()), last.bottom() + 6, width() - 2 * margin, 18),
        Qt::AlignVCenter, name_ + u"; "_s + sizeText(pair_.whole, scale));
}

void SingleTexture::mouseDoubleClickEvent(QMouseEvent*) {
    Q_EMIT left();
}

void SingleTexture::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Q_EMIT left();
    else
        event->ignore(); // the arrows, Space and Escape are the dialog's
}

} // namespace morvane
