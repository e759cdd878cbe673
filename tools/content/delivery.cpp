#include "delivery.h"

#include "core/file_fingerprint.h"
#include "core/literals.h"

namespace morvane {

Delivery::Delivery(FileSystem& files, const FilePath& home, const EarlierSums& earlier)
    : files_(files), home_(home), list_(files, home), kept_(files, home), earlier_(earlier) {}

/// The start picture of the simulator is kept in the place of a delivered one, and may look just like it.
/// What is marked as read-only, or is a link, a pilot has made so.
bool Delivery::isOurs(const FilePath& place, const QString& path, const QByteArray& contents) {
    const QString sum = fingerprintOf(contents).checksum.text();
    return (list_.has(path, sum) || earlier_.contains(sum)) &&
           path.compare(u"Media\\dlgsplash.bmp", Qt::CaseInsensitive) != 0 && !files_.isLink(place) &&
           !files_.isReadOnly(place);
}

void Delivery::put(const FilePath& file, const QByteArray& contents) {
    const QString path = file.relativeTo(home_);
    const std::optional<FilePath> place = kept_.deliveredPlace(path);
    if (!place) return;
    const std::optional<QByteArray> present = files_.readIfThere(*place);
    const QString sum = fingerprintOf(contents).checksum.text();
    if (present != contents) {
        if (present && !isOurs(*place, path, *present)) return;
        list_.announce(path, sum);
        files_.write(*place, contents);
        ++count_;
    }
    list_.settle(path, sum);
}

} // namespace morvane
