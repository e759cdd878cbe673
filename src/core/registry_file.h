#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace morvane {

/// The texts that the value has in those keys of a registry that Wine keeps as a file ("system.reg"), in the
/// order of the keys; empty where the key, the value or a text is missing. Names are alike in any case. Where
/// the file has a key or a value twice the last one counts, as it does for Wine. A damaged file gives what is
/// whole of it; nothing raises.
QStringList textsInRegistryFile(const QByteArray& contents, const QStringList& keys, const QString& name);

} // namespace morvane
