#include "ui/controls/foot_line.h"

#include "ui/controls/labels.h"
#include "ui/controls/palette.h"
#include "ui/controls/wrapped_tip.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace morvane {

namespace {

constexpr QRect linePlace{157, 547, 567, 24};
constexpr int textLeft = 23, textTop = 4, lineHeight = 16, signTop = 5, gap = 14;

void paintTick(QPainter& painter) {
    painter.drawEllipse(QRectF(1.2, 1.2, 13.6, 13.6));
    painter.drawPolyline(QPolygonF({{4.8, 8.2}, {7.2, 10.6}, {11.2, 5.8}}));
}

void paintWarning(QPainter& painter) {
    painter.drawPolygon(QPolygonF({{8, 1.8}, {15, 14}, {1, 14}}));
    painter.drawLine(QPointF(8, 6.2), QPointF(8, 9.6));
    painter.drawPoint(QPointF(8, 11.8));
}

void paintCloud(QPainter& painter) {
    QPainterPath cloud(QPointF(4.2, 12.8));
    cloud.arcTo(QRectF(1, 6.6, 6.2, 6.2), 270, -150);
    cloud.arcTo(QRectF(4, 2.8, 7.2, 7.2), 160, -135);
    cloud.arcTo(QRectF(9, 6.8, 6, 6), 90, -180);
    cloud.closeSubpath();
    painter.drawPath(cloud);
}

QRgb colourOf(FootSign sign) {
    switch (sign) {
    case FootSign::tick:
        return palette::accent;
    case FootSign::warning:
        return palette::textBright;
    case FootSign::cloud:
        break;
    }
    return palette::textQuiet;
}

} // namespace

FootLine::FootLine(QWidget* window)
    : QWidget(window), lblText_(makeLabel(this, {}, {}, TextRole::darkCaption)),
      lblRemark_(makeLabel(this, {}, {}, TextRole::darkRemark)) {
    setGeometry(linePlace);
    lblText_->setObjectName(u"lblFootText"_s);
    lblRemark_->setObjectName(u"lblFootRemark"_s);
    refresh();
}

void FootLine::setStanding(const FootText& text) {
    standing_ = text;
    if (!isDone_) refresh();
}

void FootLine::tellDone(const DoneLine& line) {
    done_ = {line.text, line.remark, line.hasLeftOut ? FootSign::warning : FootSign::tick};
    isDone_ = true;
    qApp->installEventFilter(this);
    refresh();
    QAccessibleEvent alert(lblText_, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

bool FootLine::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress) endDone();
    return false;
}

void FootLine::endDone() {
    qApp->removeEventFilter(this);
    isDone_ = false;
    refresh();
}

void FootLine::refresh() {
    const FootText& line = shown();
    lblRemark_->setText(line.remark);
    const int remarkWidth = std::min(lblRemark_->sizeHint().width(), width() / 2);
    lblRemark_->setGeometry(width() - remarkWidth, textTop, remarkWidth, lineHeight);
    lblText_->setGeometry(textLeft, textTop, width() - textLeft - gap - remarkWidth, lineHeight);
    const QString cut = lblText_->fontMetrics().elidedText(line.text, Qt::ElideRight, lblText_->width());
    lblText_->setText(cut);
    lblText_->setAccessibleName(line.text);
    setInk(*lblText_, line.sign == FootSign::cloud ? Ink::quiet : Ink::bright);
    setToolTip(cut == line.text ? QString() : wrappedTip(line.text));
    setVisible(!line.text.isEmpty());
    update();
}

void FootLine::paintEvent(QPaintEvent*) {
    const FootSign sign = shown().sign;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor::fromRgb(colourOf(sign)), 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.translate(0, signTop);
    switch (sign) {
    case FootSign::tick:
        return paintTick(painter);
    case FootSign::warning:
        return paintWarning(painter);
    case FootSign::cloud:
        return paintCloud(painter);
    }
}

} // namespace morvane
