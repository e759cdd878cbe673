#include "ui/controls/option_picture.h"

#include <QAbstractButton>
#include <QMouseEvent>

namespace morvane {

OptionPicture::OptionPicture(QAbstractButton& option, Skin& skin, const QString& picture, const QRect& place)
    : SkinSign(skin, option.parentWidget()), option_(option) {
    showSign(picture);
    setGeometry(place);
    setAccessibleName(option.accessibleName());
}

void OptionPicture::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return QLabel::mousePressEvent(event);
    option_.setFocus(Qt::MouseFocusReason);
    option_.click();
}

} // namespace morvane
