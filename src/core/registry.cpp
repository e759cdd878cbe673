#include "core/registry.h"

namespace morvane {

QString ownValue(const Registry& registry, const QString& name) {
    return registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, name);
}

void storeOwnValue(Registry& registry, const QString& name, const QString& text) {
    registry.CreateRegKey(HKEY_LOCAL_MACHINE_ROOT, morvaneKey);
    registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, name, text);
}

std::unique_ptr<Registry> openRegistry(FileSystem& files, const FilePath& installFolder,
                                       FolderChoice choice) {
    const FilePath file = installFolder / u"registry.ini";
    const bool isOwn = choice == FolderChoice::named || files.exists(file);
    std::unique_ptr<Registry> system = isOwn ? nullptr : systemRegistry();
    if (system) return std::make_unique<UserRegistry>(files, std::move(system));
    return std::make_unique<IniRegistry>(files, file);
}

} // namespace morvane
