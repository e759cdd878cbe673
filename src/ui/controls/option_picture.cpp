#include "ui/controls/option_picture.h"

#include <QAbstractButton>
#include <QMouseEvent>

namespace morvane {

OptionPicture::OptionPicture(QAbstractButton& option, const QPixmap& picture, const QRect& place)
    : QLabel(option.parentWidget()), option_(option) {
    setPixmap(picture);
    setGeometry(place);
    setAccessibleName(option.accessibleName());
}

void OptionPicture::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return QLabel::mousePressEvent(event);
    option_.setFocus(Qt::MouseFocusReason);
    option_.click();
}

} // namespace morvane
