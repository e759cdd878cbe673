#include "ui/controls/slider_tip.h"

#include "core/literals.h"
#include "ui/controls/labels.h"
#include "ui/controls/palette.h"

#include <QLabel>
#include <QPainter>

namespace morvane {

namespace {

constexpr QSize spareSize(4, 3), labelPadding(16, 1);
constexpr int gapAbove = 5;

} // namespace

ucSliderTip::ucSliderTip(QWidget* slider)
    : QWidget(slider, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                          Qt::WindowDoesNotAcceptFocus) {
    setObjectName(u"ucSliderTip"_s);
    setAccessibleName(u"Value"_s);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    lblTip = makeLabel(this, u"0"_s, {}, TextRole::valueTip);
    lblTip->setObjectName(u"lblTip"_s);
}

void ucSliderTip::setValue(int value) {
    lblTip->setText(QString::number(value));
    lblTip->setGeometry({{spareSize.width() / 2, spareSize.height() / 2}, lblTip->sizeHint() + labelPadding});
    resize(lblTip->size() + spareSize);
    // A mask and no translucency: where nobody mixes windows, what shines through is black.
    QRegion outline;
    for (const int step : {0, 1, 2})
        outline += rect().adjusted(step, 2 - step, -step, step - 2);
    setMask(outline);
}

void ucSliderTip::showAbove(const QRect& thumb) {
    move(thumb.left() + (thumb.width() - width() - spareSize.width()) / 2, thumb.top() - height() - gapAbove);
    show();
}

void ucSliderTip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor outline = QColor::fromRgb(palette::outline);
    painter.fillRect(rect(), outline); // what the mask leaves of the corners
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(outline);
    painter.setBrush(QColor::fromRgb(palette::deck));
    painter.drawRoundedRect(QRectF(rect()).adjusted(.5, .5, -.5, -.5), 4, 4);
}

} // namespace morvane
