#include "ui/page_form.h"

#include "ui/controls/labels.h"
#include "ui/controls/palette.h"
#include "ui/skin.h"
#include "ui/window_keys.h"

#include <QPainter>

namespace morvane {

Paper::Paper(Form& form, const QString& picture, Title title, QWidget* parent)
    : QWidget(parent ? parent : &form), form_(form), picture_(picture),
      picHeader_(new SkinSign(form.skin(), this)), lblHeader_(makeLabel(this, {}, {}, TextRole::pageTitle)) {
    const int lift = title == Title::compact ? 2 : 0;
    form.skin().ground(picture_); // where it is missing, that is noted before the first report
    resize(pagePlace.size());
    setAttribute(Qt::WA_OpaquePaintEvent); // else the window's picture is painted beneath at each change
    picHeader_->setObjectName(u"picHeader"_s);
    picHeader_->setGeometry(14, 9 - lift, 24, 24);
    lblHeader_->setObjectName(u"lblHeader"_s);
    lblHeader_->setGeometry(46, 11 - lift, 536, 20);
}

void Paper::setTitle(const QString& icon, const QString& text) {
    picHeader_->showSign(icon);
    picHeader_->setAccessibleName(text);
    lblHeader_->setText(text);
}

void Paper::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QPixmap background = form_.skin().ground(picture_);
    if (background.isNull())
        painter.fillRect(rect(), QColor::fromRgb(palette::now(paper::top)));
    else
        painter.drawPixmap(rect(), background);
}

PageForm::PageForm(Shell& shell, const QString& name, const QString& picture, Paper::Title title)
    : Form(shell, name), paper_(new Paper(*this, picture, title)) {
    resize(pagePlace.size());
}

void PageForm::setFootText(const FootText& text) {
    footText_ = text;
    if (isVisible()) standOnFootLine(text);
}

void PageForm::standOnFootLine(const FootText& text) {
    if (auto* line = window()->findChild<FootLine*>()) line->setStanding(text);
}

void PageForm::showEvent(QShowEvent* event) {
    Form::showEvent(event);
    standOnFootLine(footText_);
}

void PageForm::hideEvent(QHideEvent* event) {
    Form::hideEvent(event);
    standOnFootLine({});
}

void PageForm::markKey(const QString& key) {
    if (QWidget* host = parentWidget()) markWindowKey(*host, key);
}

} // namespace morvane
