#pragma once

namespace morvane {

/// Makes the family "Roboto" known in its weights Normal, Medium and Bold, out of the program itself, so that
/// no text depends on the fonts of the system. Needs a QGuiApplication. A second call does nothing.
void loadProgramFont();

} // namespace morvane
