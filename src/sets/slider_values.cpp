#include "sets/slider_values.h"

#include "core/session.h"
#include "sets/no_repeat.h"

namespace morvane {

void drawOne(Session& session, int low, int high, int& field) {
    clsNoRepeat draws(session.user, session.random);
    if (const auto numbers = draws.Non_Repeating_Numbers(1, high, low)) field = numbers->front();
}

} // namespace morvane
