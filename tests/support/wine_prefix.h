#pragma once

#include "core/literals.h"
#include "support/temporary_folder.h"

#include <QDir>
#include <QFile>
#include <stdexcept>

namespace morvane::test {

/// A section of a prefix's registry that names a simulator; `path` as the file has it.
inline QByteArray simulatorSection(const QByteArray& path, const QByteArray& view = "Wow6432Node\\\\") {
    return "\n[Software\\\\" + view +
           "Microsoft\\\\Microsoft Games\\\\Flight Simulator\\\\9.0] 1795349000\n" +
           "#time=1dc5b9d0f3d1c2a\n\"EXE Path\"=\"" + path + "\"\n";
}

inline void link(const QString& target, const QString& name) {
    QDir().mkpath(QFileInfo(name).path());
    if (!QFile::link(target, name)) throw std::runtime_error("cannot link " + name.toStdString());
}

/// A prefix with a simulator on its drive "C:" that its registry names; gives the simulator's folder.
inline FilePath makePrefix(const QString& folder) {
    const FilePath simulator(folder + u"/drive_c/Program Files (x86)/FS 9"_s);
    writeFile(simulator / u"fs9.exe", "MZ");
    link(u"../drive_c"_s, folder + u"/dosdevices/c:"_s);
    writeFile(FilePath(folder) / u"system.reg",
              "WINE REGISTRY Version 2\n" + simulatorSection("C:\\\\program files (x86)\\\\FS 9\\\\"));
    return simulator;
}

} // namespace morvane::test
