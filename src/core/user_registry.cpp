#include "core/attempts.h"
#include "core/file_helpers.h"
#include "core/registry.h"

namespace morvane {

namespace {

const QString simulatorPath = u"EXE Path"_s;

bool isSame(const QString& a, const QString& b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

bool isOwn(int root, const QString& key, const QString& machine = {}) {
    return root == HKEY_LOCAL_MACHINE_ROOT && machine.isEmpty() && isSame(key, morvaneKey);
}

bool isSimulatorKey(int root, const QString& key, const QString& machine = {}) {
    return root == HKEY_LOCAL_MACHINE_ROOT && machine.isEmpty() && isSame(key, simulatorKey);
}

} // namespace

bool UserRegistry::holdsSimulator(const QString& folder) const {
    bool isThere = false;
    attempt([&] { isThere = morvane::holdsSimulator(files_, folder); });
    return isThere;
}

/// Where the value is read.
int UserRegistry::rootOf(int root, const QString& key, const QString& name, const QString& machine) const {
    const bool isPath = isSimulatorKey(root, key, machine) && isSame(name, simulatorPath);
    if (!isPath && !isOwn(root, key, machine)) return root;
    if (!system_->hasValue(HKEY_CURRENT_USER_ROOT, key, name)) return root;
    const bool isOther =
        isPath && (holdsSimulator(system_->GetRegString(root, key, name)) ||
                   !holdsSimulator(system_->GetRegString(HKEY_CURRENT_USER_ROOT, key, name)));
    return isOther ? root : HKEY_CURRENT_USER_ROOT;
}

QString UserRegistry::GetRegString(int root, const QString& key, const QString& name,
                                   const QString& machine) const {
    return system_->GetRegString(rootOf(root, key, name, machine), key, name, machine);
}

void UserRegistry::SetRegString(int root, const QString& key, const QString& name, const QString& text,
                                const QString& machine) {
    const bool isUsers = isOwn(root, key, machine);
    if (!isUsers) system_->SetRegString(root, key, name, text, machine);
    const bool isRefused =
        isSimulatorKey(root, key, machine) && system_->GetRegString(root, key, name) != text;
    if (!isUsers && !isRefused) return;
    system_->CreateRegKey(HKEY_CURRENT_USER_ROOT, key);
    system_->SetRegString(HKEY_CURRENT_USER_ROOT, key, name, text);
}

bool UserRegistry::RegValueIsDword(int root, const QString& key, const QString& name,
                                   const QString& machine) const {
    return system_->RegValueIsDword(rootOf(root, key, name, machine), key, name, machine);
}

bool UserRegistry::hasValue(int root, const QString& key, const QString& name) const {
    return system_->hasValue(rootOf(root, key, name, {}), key, name);
}

bool UserRegistry::CreateRegKey(int root, const QString& key) {
    if (isOwn(root, key)) return system_->CreateRegKey(HKEY_CURRENT_USER_ROOT, key);
    const bool isMade = system_->CreateRegKey(root, key);
    return isMade || (isSimulatorKey(root, key) && system_->CreateRegKey(HKEY_CURRENT_USER_ROOT, key));
}

} // namespace morvane
