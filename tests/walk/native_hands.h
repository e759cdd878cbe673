#pragma once

#include <QString>
#include <Qt>
#include <vector>

class QPoint;
class QWidget;

namespace morvane::test {

/// Ways to use a control: the mouse, and Tab to it and then Space, Enter, arrows or letters.
enum class Way { mouse, space, enter, arrows, letters, key };

QString wayName(Way way);
/// The ways that the control is to be used in. `part` is the word behind its name in the table; empty for
/// none.
std::vector<Way> waysOf(const QWidget& control, const QString& part);

/// Uses the control in that way. All events go to its native window.
void use(QWidget& control, const QString& part, Way way, const QString& typed);

void click(QWidget& control, const QPoint& place);
/// To the window that the widget lies on; whichever control has the keyboard there gets it.
void pressKey(QWidget& widget, Qt::Key key);

} // namespace morvane::test
