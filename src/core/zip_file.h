#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <vector>

namespace morvane {

struct ZipEntry {
    QString name; ///< the way in the archive, parted by "/"
    QByteArray contents;
};

/// The bytes of an archive that every program for such opens: compressed, names in UTF-8, all of one time.
/// For a few files of some megabytes; raises "Overflow" for what its plain form does not hold.
QByteArray zipOf(const std::vector<ZipEntry>& entries, const QDateTime& time);

} // namespace morvane
