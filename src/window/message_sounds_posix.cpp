#include "window/message_sounds.h"

namespace morvane {

void playMessageSound(MessageKind) {}

} // namespace morvane
