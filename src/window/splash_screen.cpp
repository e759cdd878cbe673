#include "window/splash_screen.h"

#include "ui/controls/labels.h"
#include "ui/controls/palette.h"
#include "ui/controls/skinned_progress_bar.h"
#include "ui/skin.h"

#include <QGuiApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>

namespace morvane {

frm_Splash::frm_Splash(Shell& shell)
    : Form(shell, u"frm_Splash"_s), picture_(skin().picture(u"splash_screen.jpg"_s)),
      lblScanning_(makeLabel(this, {}, {372, 412, 300, 34}, TextRole::progressText)),
      pbMetar_(new SkinnedProgressBar(this)) {
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    setWindowTitle(u"Morvane"_s);
    setFixedSize(700, 500); // 10,500 by 7,500 twips
    lblScanning_->setObjectName(u"lblScanning"_s);
    lblScanning_->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    pbMetar_->setObjectName(u"pbMetar"_s);
    pbMetar_->setGeometry(372, 454, 300, 12);
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    move(room.center() - rect().center());
}

void frm_Splash::showStep(const QString& text, double value) {
    lblScanning_->setText(text);
    pbMetar_->setValue(value);
}

void frm_Splash::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor::fromRgb(palette::bezel));
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!picture_.isNull()) painter.drawPixmap(rect(), picture_);
}

} // namespace morvane
