#pragma once

#include <QRect>
#include <QRgb>

class QPainter;
class QStyleOption;
class QStyleOptionViewItem;

namespace morvane {

/// The strokes of the plain controls. All sizes are logical pixels, lines are 1 wide on whole pixels.

/// A box with a 1 px border and rounded corners; its ground shades from `top` to `foot`.
struct PaperBox {
    QRgb top, foot, border;
    double radius;
};
void drawPaperBox(QPainter& painter, const QRect& place, const PaperBox& box);
/// A ring inside a box's border, both in accent, for the control that has the focus.
void drawFocusRing(QPainter& painter, const QRect& place, double radius);

void drawPlainButton(QPainter& painter, const QStyleOption& option);
/// The same for a button on bezel or deck.
void drawDarkButton(QPainter& painter, const QStyleOption& option);
void drawCheckBox(QPainter& painter, const QStyleOption& option);
void drawOptionBox(QPainter& painter, const QStyleOption& option);
/// The white ground of an edit or a list with its border.
void drawField(QPainter& painter, const QStyleOption& option);
/// A field that opens a list of choices: with an angle at its right.
void drawChoiceBox(QPainter& painter, const QStyleOption& option);
/// One head of a list, or the ground of the whole head.
void drawListHead(QPainter& painter, const QRect& place, bool hasGap);
/// The ground of one cell of a list's row.
void drawRowCell(QPainter& painter, const QStyleOptionViewItem& option);
/// The handle of a scroll bar on its ground.
void drawScrollBar(QPainter& painter, const QRect& place, const QRect& handle, Qt::Orientation orientation);
/// A full round trough, filled from the left; `fraction` is 0 to 1.
void drawProgress(QPainter& painter, const QRect& place, double fraction);

} // namespace morvane
