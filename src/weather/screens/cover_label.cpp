#include "weather/screens/cover_label.h"

#include "sets/cloud_cover.h"
#include "ui/form.h"
#include "ui/skin.h"

namespace morvane {

CoverLabel::CoverLabel(Form& form, const Names& names, const QPoint& place, int width)
    : picture_(new SkinSign(form.skin(), &form)),
      text_(makeLabel(&form, {}, {place.x() + side + 10, place.y(), width, side}, TextRole::value)) {
    picture_->setObjectName(names.picture);
    picture_->setGeometry({place, QSize(side, side)});
    text_->setObjectName(names.text);
    text_->setWordWrap(true);
}

void CoverLabel::showCover(int cloudClass) {
    const CloudCover& cover = coverOfClass(cloudClass);
    showText(cover.caption, Ink::text);
    picture_->showSign(cover.picture);
    picture_->setAccessibleName(cover.caption);
}

void CoverLabel::showText(const QString& text, Ink ink) {
    picture_->showSign({});
    picture_->setAccessibleName({});
    setInk(*text_, ink);
    text_->setText(text);
}

void CoverLabel::clear() {
    showText({}, Ink::text);
}

} // namespace morvane
