#pragma once

#include "core/file_system.h"
#include "core/literals.h"

#include <QString>
#include <memory>

namespace morvane {

/// Root numbers as the program passes them; any other number names no key, so every call on it reads empty.
inline constexpr int HKEY_CURRENT_USER_ROOT = 0;
inline constexpr int HKEY_LOCAL_MACHINE_ROOT = 1;

inline const QString morvaneKey = u"Software\\Orrinsoft\\Morvane"_s;
inline const QString simulatorKey = u"Software\\Microsoft\\Microsoft Games\\Flight Simulator\\9.0"_s;

/// The registry's few operations. Nothing here reports: a missing key reads as empty, a failed write goes
/// unnoticed.
class Registry {
public:
    virtual ~Registry() = default;

    /// Text cut at its first NUL; a DWORD as decimal text. `machine` names a remote registry, empty for this
    /// one.
    virtual QString GetRegString(int root, const QString& key, const QString& name,
                                 const QString& machine = {}) const = 0;
    /// Writes a text; the key must exist.
    virtual void SetRegString(int root, const QString& key, const QString& name, const QString& text,
                              const QString& machine = {}) = 0;
    /// The value exists with type DWORD, whatever it holds.
    virtual bool RegValueIsDword(int root, const QString& key, const QString& name,
                                 const QString& machine = {}) const = 0;
    /// Makes the key or finds it; false when that cannot be.
    virtual bool CreateRegKey(int root, const QString& key) = 0;
};

/// A text of the program's own key.
QString ownValue(const Registry& registry, const QString& name);
/// Writes one, and makes the key where it is missing.
void storeOwnValue(Registry& registry, const QString& name, const QString& text);

/// The system's own registry on Windows; elsewhere `registry.ini` in the install folder.
std::unique_ptr<Registry> openRegistry(FileSystem& files, const FilePath& installFolder);

/// A registry in one INI file: a section a key ("[HKEY_LOCAL_MACHINE\Software\...]"), texts in double quotes
/// or bare, DWORDs as "dword:" and hexadecimal digits.
class IniRegistry : public Registry {
public:
    IniRegistry(FileSystem& files, const FilePath& file) : files_(files), file_(file) {}

    QString GetRegString(int root, const QString& key, const QString& name,
                         const QString& machine = {}) const override;
    void SetRegString(int root, const QString& key, const QString& name, const QString& text,
                      const QString& machine = {}) override;
    bool RegValueIsDword(int root, const QString& key, const QString& name,
                         const QString& machine = {}) const override;
    bool CreateRegKey(int root, const QString& key) override;

private:
    QString rawValue(int root, const QString& key, const QString& name, const QString& machine) const;
    FileSystem& files_;
    FilePath file_;
};

} // namespace morvane
