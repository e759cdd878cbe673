#include "core/registry.h"

#include <QtEndian>
#include <memory>
#include <windows.h>

namespace morvane {

namespace {

/// The simulator, the weather program and the installer are 32-bit programs: on a 64-bit system their values
/// lie in a view of their own, which this program sees only when it asks for it.
constexpr REGSAM view = KEY_WOW64_32KEY;

/// A longer binary value reads as empty.
constexpr qsizetype binaryLimit = 254;

struct KeyCloser {
    using pointer = HKEY;
    void operator()(HKEY key) const { RegCloseKey(key); }
};
using Key = std::unique_ptr<HKEY, KeyCloser>;

struct Value {
    DWORD type = REG_NONE; ///< REG_NONE when there is no such value
    QByteArray data;
};

const wchar_t* wide(const QString& text) {
    return reinterpret_cast<const wchar_t*>(text.utf16());
}

/// Null for a number that is no root; the system's calls refuse it.
HKEY rootOf(int root) {
    const HKEY roots[] = {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE, HKEY_USERS, HKEY_CLASSES_ROOT};
    return root >= 0 && root < 4 ? roots[root] : nullptr;
}

Key remoteRoot(int root, const QString& machine) {
    HKEY remote = nullptr;
    const bool connected = RegConnectRegistryW(wide(machine), rootOf(root), &remote) == ERROR_SUCCESS;
    return Key(connected ? remote : nullptr);
}

/// Null when the key is missing, closed to this user, or its machine does not answer.
Key openKey(int root, const QString& key, REGSAM access, const QString& machine) {
    const Key remote = machine.isEmpty() ? nullptr : remoteRoot(root, machine);
    const HKEY from = machine.isEmpty() ? rootOf(root) : remote.get();
    HKEY opened = nullptr;
    const bool found = RegOpenKeyExW(from, wide(key), 0, access | view, &opened) == ERROR_SUCCESS;
    return Key(found ? opened : nullptr);
}

Value readValue(const Key& key, const QString& name) {
    Value value;
    DWORD size = 0;
    if (RegQueryValueExW(key.get(), wide(name), nullptr, nullptr, nullptr, &size) != ERROR_SUCCESS) return {};
    value.data.resize(size);
    const auto buffer = reinterpret_cast<BYTE*>(value.data.data());
    // Another program may have made the value longer meanwhile; then this call fails, which is no value, too.
    if (RegQueryValueExW(key.get(), wide(name), nullptr, &value.type, buffer, &size) != ERROR_SUCCESS)
        return {};
    value.data.truncate(size);
    return value;
}

QString untilNul(const QString& text) {
    return text.left(text.indexOf(QChar(u'\0'))); // -1 takes all of it: a value need not end in a NUL
}

QString textOf(const Value& value) {
    const QByteArray& data = value.data;
    switch (value.type) {
    case REG_SZ:
    case REG_EXPAND_SZ:
    case REG_MULTI_SZ:
        return untilNul(QString::fromUtf16(reinterpret_cast<const char16_t*>(data.constData()),
                                           data.size() / qsizetype{sizeof(char16_t)}));
    case REG_DWORD:
        return data.size() == sizeof(quint32) ? QString::number(qFromLittleEndian<quint32>(data.constData()))
                                              : QString();
    case REG_BINARY:
        return data.size() <= binaryLimit ? untilNul(QString::fromLocal8Bit(data)) : QString();
    default:
        return {};
    }
}

class WindowsRegistry : public Registry {
public:
    QString GetRegString(int root, const QString& key, const QString& name,
                         const QString& machine) const override {
        const Key opened = openKey(root, key, KEY_QUERY_VALUE, machine);
        return opened ? textOf(readValue(opened, name)) : QString();
    }

    void SetRegString(int root, const QString& key, const QString& name, const QString& text,
                      const QString& machine) override {
        const Key opened = openKey(root, key, KEY_ALL_ACCESS, machine);
        if (!opened) return;
        const auto size = static_cast<DWORD>((text.size() + 1) * qsizetype{sizeof(wchar_t)});
        const auto bytes = reinterpret_cast<const BYTE*>(text.utf16());
        RegSetValueExW(opened.get(), wide(name), 0, REG_SZ, bytes, size);
    }

    bool RegValueIsDword(int root, const QString& key, const QString& name,
                         const QString& machine) const override {
        const Key opened = openKey(root, key, KEY_QUERY_VALUE, machine);
        return opened && readValue(opened, name).type == REG_DWORD;
    }

    bool hasValue(int root, const QString& key, const QString& name) const override {
        const Key opened = openKey(root, key, KEY_QUERY_VALUE, {});
        return opened && readValue(opened, name).type != REG_NONE;
    }

    bool CreateRegKey(int root, const QString& key) override {
        HKEY made = nullptr;
        const auto status = RegCreateKeyExW(rootOf(root), wide(key), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                            KEY_ALL_ACCESS | view, nullptr, &made, nullptr);
        const Key closed(status == ERROR_SUCCESS ? made : nullptr);
        return closed != nullptr;
    }
};

} // namespace

std::unique_ptr<Registry> systemRegistry() {
    return std::make_unique<WindowsRegistry>();
}

} // namespace morvane
