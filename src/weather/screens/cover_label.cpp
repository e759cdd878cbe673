#include "weather/screens/cover_label.h"

#include "sets/cloud_cover.h"
#include "ui/controls/labels.h"
#include "ui/controls/palette.h"
#include "ui/form.h"
#include "ui/skin.h"

namespace morvane {

CoverLabel::CoverLabel(Form& form, const Names& names, const QPoint& place, int width)
    : form_(form), picture_(new QLabel(&form)),
      text_(makeLabel(&form, {}, {place.x() + side + 10, place.y(), width, side}, TextRole::value)) {
    picture_->setObjectName(names.picture);
    picture_->setGeometry({place, QSize(side, side)});
    text_->setObjectName(names.text);
    text_->setWordWrap(true);
}

void CoverLabel::showCover(int cloudClass) {
    const CloudCover& cover = coverOfClass(cloudClass);
    showText(cover.caption, palette::textBlue);
    picture_->setPixmap(form_.skin().picture(cover.picture));
    picture_->setAccessibleName(cover.caption);
}

void CoverLabel::showText(const QString& text, QRgb colour) {
    picture_->setPixmap({});
    picture_->setAccessibleName({});
    setTextColour(*text_, colour);
    text_->setText(text);
}

void CoverLabel::clear() {
    showText({}, palette::textBlue);
}

} // namespace morvane
