#include "window/letter_engine.h"

namespace morvane {

void chooseLetterEngine() {}

} // namespace morvane
