#pragma once

#include <QTimer>

namespace morvane {

class Session;

/// Paints everything that is open in the palette of this moment, where it is another one.
void usePaletteNow(Session& session);

/// Does so each minute: the sun sets, another airport is chosen, the console changes the setting.
class PaletteKeeper {
public:
    explicit PaletteKeeper(Session& session);

private:
    QTimer timer_;
};

} // namespace morvane
