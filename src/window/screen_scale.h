#pragma once

#include <QSize>

namespace morvane {

/// The scale at which the main window fits on a screen, in pixels of the screen to a logical one. `room` is
/// the screen's size in logical pixels at the scale `chosen`. Where the window fits that is the scale, else
/// the largest in hundredths; never below 1, at which the toolkit's painters end.
double fittingScale(const QSize& room, double chosen);

/// Makes the program's scale such a one for the screen on which the main window opens. The toolkit reads it
/// once, so it has to be called before the application object is made; with the arguments of `main`, among
/// which the toolkit's own options are looked for.
void fitScaleToScreen(int argc, char** argv);

} // namespace morvane
