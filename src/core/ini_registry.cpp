#include "core/error.h"
#include "core/ini_file.h"
#include "core/literals.h"
#include "core/registry.h"

namespace morvane {

namespace {

const QString dwordMark = u"dword:"_s;

/// Empty for a number that is no root.
QString rootName(int root) {
    static const QString names[] = {u"HKEY_CURRENT_USER"_s, u"HKEY_LOCAL_MACHINE"_s, u"HKEY_USERS"_s,
                                    u"HKEY_CLASSES_ROOT"_s};
    return root >= 0 && root < 4 ? names[root] : QString();
}

QString sectionOf(int root, const QString& key) {
    return rootName(root) + u'\\' + key;
}

bool isDword(const QString& raw) {
    return raw.startsWith(dwordMark, Qt::CaseInsensitive);
}

} // namespace

QString IniRegistry::rawValue(int root, const QString& key, const QString& name,
                              const QString& machine) const {
    if (rootName(root).isEmpty() || !machine.isEmpty()) return {};
    try {
        return loadIni(files_, file_).rawValue(sectionOf(root, key), name).value_or(QString());
    } catch (const Error&) {
        return {};
    }
}

QString IniRegistry::GetRegString(int root, const QString& key, const QString& name,
                                  const QString& machine) const {
    const QString raw = rawValue(root, key, name, machine);
    if (isDword(raw)) return QString::number(raw.mid(dwordMark.size()).toUInt(nullptr, 16));
    const QString text = withoutQuotes(raw);
    const qsizetype nul = text.indexOf(QChar(u'\0'));
    return nul < 0 ? text : text.left(nul);
}

void IniRegistry::SetRegString(int root, const QString& key, const QString& name, const QString& text,
                               const QString& machine) {
    // A line break would turn the rest of the text into keys of its own.
    if (rootName(root).isEmpty() || !machine.isEmpty() || text.contains(u'\n') || text.contains(u'\r'))
        return;
    try {
        IniFile ini = loadIni(files_, file_);
        if (!ini.hasSection(sectionOf(root, key))) return;
        ini.setRawValue(sectionOf(root, key), name, u'"' + text + u'"');
        files_.write(file_, ini.toBytes());
    } catch (const Error&) {
    }
}

bool IniRegistry::RegValueIsDword(int root, const QString& key, const QString& name,
                                  const QString& machine) const {
    return isDword(rawValue(root, key, name, machine));
}

bool IniRegistry::hasValue(int root, const QString& key, const QString& name) const {
    try {
        return loadIni(files_, file_).rawValue(sectionOf(root, key), name).has_value();
    } catch (const Error&) {
        return false;
    }
}

bool IniRegistry::CreateRegKey(int root, const QString& key) {
    if (rootName(root).isEmpty()) return false;
    try {
        IniFile ini = loadIni(files_, file_);
        if (ini.hasSection(sectionOf(root, key))) return true;
        ini.addSection(sectionOf(root, key));
        files_.write(file_, ini.toBytes());
        return true;
    } catch (const Error&) {
        return false;
    }
}

} // namespace morvane
