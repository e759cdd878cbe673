#include "simulator/screens/palette_keeper.h"

#include "core/session.h"
#include "simulator/palette_choice.h"
#include "ui/controls/palette.h"

#include <chrono>

namespace morvane {

void usePaletteNow(Session& session) {
    const PaperPalette wanted = paletteNow(session);
    if (wanted != palette::inUse()) palette::use(wanted);
}

PaletteKeeper::PaletteKeeper(Session& session) {
    using namespace std::chrono_literals;
    usePaletteNow(session);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [&session] { usePaletteNow(session); });
    timer_.setTimerType(Qt::VeryCoarseTimer);
    timer_.start(1min);
}

} // namespace morvane
