#include "ui/controls/skin_sign.h"

#include "ui/skin.h"

#include <QEvent>

namespace morvane {

void SkinSign::showSign(const QString& fileName) {
    fileName_ = fileName;
    setPixmap(fileName.isEmpty() ? QPixmap() : skin_.sign(fileName));
}

void SkinSign::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !fileName_.isEmpty()) showSign(fileName_);
}

} // namespace morvane
