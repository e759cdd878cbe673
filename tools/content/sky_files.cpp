#include "sky_files.h"

#include "core/literals.h"
#include "sky_art.h"
#include "stock_files.h"

namespace morvane {

namespace {

const QString defaultSet = u"Default"_s;

void writeMaps(const QString& folder, const FilePath& target) {
    const QStringList names = skyMapNames(folder);
    for (int index = 0; index < names.size(); ++index)
        saveBitmap(drawSkyMap(folder, index), target.child(names[index]));
}

void writeSimulatorMaps(const QString& folder, const FilePath& textures) {
    const QStringList names = skyMapNames(folder);
    for (int index = 0; index < names.size(); ++index)
        saveBitmap(inSimulatorLook(drawSkyMap(folder, index)), textures.child(names[index].toUpper()));
}

} // namespace

void writeSkyStock(FileSystem& files, const FilePath& home, const FilePath& simulator) {
    for (const QString& folder : skyFolders())
        writeMaps(folder, (home / u"Resources\\Sky").child(folder));
    const FilePath delivered = (home / u"Sky Texture Sets").child(defaultSet);
    files.makeFolder(delivered);
    writeMaps(defaultSet, delivered);
    if (simulator.isEmpty()) return;
    // The base sets share their names, so one of them names all that the simulator has.
    for (const QString& folder : {defaultSet, u"Sunrise"_s, u"Sunset"_s})
        writeSimulatorMaps(folder, simulator / u"Texture");
}

} // namespace morvane
