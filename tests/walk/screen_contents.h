#pragma once

#include <QPoint>
#include <QStringList>

class QWidget;

namespace morvane::test {

/// The name of its object; for a button of the system's boxes its text.
QString nameOf(const QWidget& control);
/// The controls of a window that the user can use now, by their names and in no order. A list adds
/// "NAME|head" where a click on its head sorts it, and "NAME|tick" where its rows have boxes.
QStringList liveControls(const QWidget& window);

/// Where a click reaches the control, in its own coordinates; for a box its mark.
QPoint livePoint(const QWidget& control);
/// What the user sees of it: text, value, tick, rows and the one in hand.
QString stateOf(const QWidget& control);

} // namespace morvane::test
