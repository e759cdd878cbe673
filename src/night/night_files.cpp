#include "night/night_files.h"

#include "night/night_sets.h"

namespace morvane {

std::vector<CatalogueFile> popNightTextureList(Session& session, const QString& setName) {
    const std::pair<QString, QString> folders[] = {{u"GENERIC WORLD NIGHT"_s, u"Texture"_s},
                                                   {u"DUTCH NIGHT"_s, u"Dutch"_s}};
    std::vector<CatalogueFile> files;
    for (const auto& [resource, subfolder] : folders) {
        const FilePath source = session.AppPath / u"Resources" / resource;
        const FilePath target = nightSetFolder(session, setName) / subfolder;
        const FilePath temp = session.AppPath / u"TempBitmaps" / subfolder;
        for (const QString& name : session.files.list(source, u"*.bmp"_s))
            files.push_back({name, source, target, temp});
    }
    return files;
}

} // namespace morvane
