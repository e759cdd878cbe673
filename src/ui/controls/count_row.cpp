#include "ui/controls/count_row.h"

#include "core/literals.h"
#include "core/numbers.h"
#include "ui/controls/labels.h"
#include "ui/controls/palette.h"
#include "ui/controls/paper_drawing.h"
#include "ui/skin.h"

#include <QPainter>

namespace morvane {

CountRow::CountRow(Skin& skin, const QString& sign, QWidget* parent)
    : QAbstractButton(parent), skin_(skin), sign_(sign) {
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
}

void CountRow::setCount(const QString& what, std::int64_t count, bool isBold) {
    count_ = countText(count);
    isBold_ = isBold;
    setText(what);
    setAccessibleName(what + u": "_s + count_);
    update();
}

void CountRow::paintEvent(QPaintEvent*) {
    constexpr int signAt = 2, signSide = 16, textAt = 25;
    QPainter painter(this);
    if (isChecked()) painter.fillRect(rect(), QColor::fromRgb(palette::now(paper::selectedRow)));
    painter.fillRect(0, height() - 1, width(), 1, QColor::fromRgb(palette::now(paper::hair)));
    painter.drawPixmap(QRect(signAt, (height() - signSide) / 2, signSide, signSide), skin_.sign(sign_));
    QFont font = fontOf(TextRole::value);
    font.setWeight(isBold_ ? QFont::Bold : QFont::Normal);
    painter.setFont(font);
    painter.setPen(QColor::fromRgb(palette::now(paper::text)));
    const QRect line = rect().adjusted(textAt, 0, -2, -1);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, text());
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, count_);
    if (hasFocus()) drawFocusRing(painter, rect(), 3);
}

} // namespace morvane
