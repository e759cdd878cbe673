#include "sets/slider_values.h"

#include "core/session.h"
#include "sets/no_repeat.h"

namespace morvane {

void drawOne(Session& session, int low, int high, int& field) {
    clsNoRepeat draws(session.user, session.random);
    field = draws.Non_Repeating_Numbers(high, low).value_or(field);
}

} // namespace morvane
