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
    /// The value exists, whatever it holds.
    virtual bool hasValue(int root, const QString& key, const QString& name) const = 0;
    /// Makes the key or finds it; false when that cannot be.
    virtual bool CreateRegKey(int root, const QString& key) = 0;
};

/// A text of the program's own key.
QString ownValue(const Registry& registry, const QString& name);
/// Writes one, and makes the key where it is missing.
void storeOwnValue(Registry& registry, const QString& name, const QString& text);

/// Who chose the install folder: one that was named for this start keeps what it knows to itself.
enum class FolderChoice { usual, named };

/// `registry.ini` in the install folder where it is there, where the folder was named or where the system has
/// no registry: everything in one folder, and the machine untouched. Else the system's, as a `UserRegistry`.
std::unique_ptr<Registry> openRegistry(FileSystem& files, const FilePath& installFolder,
                                       FolderChoice choice = FolderChoice::usual);

/// The system's own; null where it has none.
std::unique_ptr<Registry> systemRegistry();

/// A registry as a user without an administrator's rights works with it. The program's own values below
/// HKEY_LOCAL_MACHINE are written to HKEY_CURRENT_USER and read from there first. The simulator's path is
/// read where its installer left it; the user's own counts while that one names no folder with fs9.exe, and
/// is written where the machine's refuses.
class UserRegistry : public Registry {
public:
    UserRegistry(FileSystem& files, std::unique_ptr<Registry> system)
        : files_(files), system_(std::move(system)) {}

    QString GetRegString(int root, const QString& key, const QString& name,
                         const QString& machine = {}) const override;
    void SetRegString(int root, const QString& key, const QString& name, const QString& text,
                      const QString& machine = {}) override;
    bool RegValueIsDword(int root, const QString& key, const QString& name,
                         const QString& machine = {}) const override;
    bool hasValue(int root, const QString& key, const QString& name) const override;
    bool CreateRegKey(int root, const QString& key) override;

private:
    int rootOf(int root, const QString& key, const QString& name, const QString& machine) const;
    bool holdsSimulator(const QString& folder) const;

    FileSystem& files_;
    std::unique_ptr<Registry> system_;
};

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
    bool hasValue(int root, const QString& key, const QString& name) const override;
    bool CreateRegKey(int root, const QString& key) override;

private:
    QString rawValue(int root, const QString& key, const QString& name, const QString& machine) const;
    FileSystem& files_;
    FilePath file_;
};

} // namespace morvane
