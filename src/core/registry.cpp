#include "core/registry.h"

namespace morvane {

QString ownValue(const Registry& registry, const QString& name) {
    return registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, name);
}

void storeOwnValue(Registry& registry, const QString& name, const QString& text) {
    registry.CreateRegKey(HKEY_LOCAL_MACHINE_ROOT, morvaneKey);
    registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, name, text);
}

} // namespace morvane
