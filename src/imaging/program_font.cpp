#include "imaging/program_font.h"

#include "core/literals.h"

#include <QFile>
#include <QFontDatabase>

/// The linker leaves the resource of a static library out unless it is named, which works only outside a
/// namespace.
static void keepFontResource() {
    Q_INIT_RESOURCE(program_font);
}

namespace morvane {

void loadProgramFont() {
    static const bool isLoaded = [] {
        keepFontResource();
        for (const QString& weight : {u"Regular"_s, u"Medium"_s, u"Bold"_s}) {
            QFile file(u":/morvane/fonts/Roboto-%1.ttf"_s.arg(weight));
            if (file.open(QIODevice::ReadOnly)) QFontDatabase::addApplicationFontFromData(file.readAll());
        }
        return true;
    }();
    Q_UNUSED(isLoaded);
}

} // namespace morvane
