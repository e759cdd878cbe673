#include "weather/screens/link_label.h"

#include "ui/controls/labels.h"
#include "ui/controls/palette.h"
#include "ui/controls/paper_drawing.h"

#include <QPainter>

namespace morvane {

LinkLabel::LinkLabel(QWidget* parent) : QAbstractButton(parent) {
    setFont(fontOf(TextRole::fieldCaption));
    setFocusPolicy(Qt::TabFocus);
}

void LinkLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QFont font = this->font();
    font.setUnderline(isEnabled() && underMouse());
    painter.setFont(font);
    painter.setPen(QColor::fromRgb(palette::now(paper::text)));
    painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter, text());
    constexpr double radius = 3;
    if (hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange))
        drawFocusRing(painter, rect(), radius);
}

} // namespace morvane
