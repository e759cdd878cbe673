#include "sky_files.h"

#include "core/literals.h"
#include "sky_art.h"
#include "stock_files.h"

namespace morvane {

namespace {

const QString defaultSet = u"Default"_s;

void writeMaps(const PutFile& put, const QString& folder, const FilePath& target) {
    const QStringList names = skyMapNames(folder);
    for (int index = 0; index < names.size(); ++index)
        put(target.child(names[index]), bitmapFile(drawSkyMap(folder, index)));
}

void writeSimulatorMaps(FileSystem& files, const QString& folder, const FilePath& textures) {
    const QStringList names = skyMapNames(folder);
    for (int index = 0; index < names.size(); ++index)
        files.write(textures.child(names[index].toUpper()),
                    bitmapFile(inSimulatorLook(drawSkyMap(folder, index))));
}

} // namespace

void writeSkyStock(const PutFile& put, const FilePath& home) {
    for (const QString& folder : skyFolders())
        writeMaps(put, folder, (home / u"Resources\\Sky").child(folder));
}

void writeSkySets(FileSystem& files, const FilePath& home, const FilePath& simulator) {
    const FilePath delivered = (home / u"Sky Texture Sets").child(defaultSet);
    files.makeFolder(delivered);
    const FilePath stock = (home / u"Resources\\Sky").child(defaultSet);
    for (const QString& name : skyMapNames(defaultSet))
        files.copyContents(stock.child(name), delivered.child(name));
    if (simulator.isEmpty()) return;
    // The base sets share their names, so one of them names all that the simulator has.
    for (const QString& folder : {defaultSet, u"Sunrise"_s, u"Sunset"_s})
        writeSimulatorMaps(files, folder, simulator / u"Texture");
}

} // namespace morvane
