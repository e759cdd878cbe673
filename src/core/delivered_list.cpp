#include "core/delivered_list.h"

#include "core/literals.h"
#include "core/text_decoding.h"

#include <QRegularExpression>

namespace morvane {

namespace {

constexpr qsizetype sumLength = 40, triesByItself = 2;

QString lineOf(const QString& sum, const QString& path) {
    return sum + u'\t' + path + u'\n';
}

QVersionNumber programVersion() {
    return QVersionNumber::fromString(QStringLiteral(MORVANE_VERSION));
}

QString failureLine() {
    return u"failed %1 by %2"_s.arg(contentVersion).arg(programVersion().toString());
}

} // namespace

DeliveredList::DeliveredList(FileSystem& files, const FilePath& home)
    : files_(files), file_(home / u"content.version") {
    const QStringList lines = splitLines(QString::fromUtf8(files.readIfThere(file_).value_or(QByteArray())));
    static const QRegularExpression heading(u"^content (\\d+) density (\\d+)(?: by ([\\d.]+))?"_s);
    if (const auto match = heading.match(lines.value(0)); match.hasMatch()) {
        content_ = match.captured(1).toInt();
        density_ = match.captured(2).toInt();
        program_ = QVersionNumber::fromString(match.captured(3));
    }
    failures_ = lines.count(failureLine());
    for (const QString& line : lines) // one that a kill cut short has no path, or one that nothing has
        if (line.indexOf(u'\t') == sumLength) {
            const QString path = line.mid(sumLength + 1);
            Entry& entry = entries_[path.toCaseFolded()];
            entry.path = path;
            entry.sums << line.first(sumLength);
        }
}

bool DeliveredList::isOlder() const {
    return density_ > 0 &&
           (program_ < programVersion() || (program_ == programVersion() && content_ < contentVersion));
}

bool DeliveredList::awaitsUpdate() const {
    return isOlder() && failures_ < triesByItself && !files_.isReadOnly(file_);
}

void DeliveredList::noteFailure() {
    files_.append(file_, (u'\n' + failureLine() + u'\n').toUtf8());
    ++failures_;
}

bool DeliveredList::has(const QString& path, const QString& sum) const {
    return entries_.value(path.toCaseFolded()).sums.contains(sum);
}

void DeliveredList::announce(const QString& path, const QString& sum) {
    if (has(path, sum)) return;
    files_.append(file_, (u'\n' + lineOf(sum, path)).toUtf8()); // the line before may have been cut short
    Entry& entry = entries_[path.toCaseFolded()];
    entry.path = path;
    entry.sums << sum;
}

void DeliveredList::settle(const QString& path, const QString& sum) {
    entries_[path.toCaseFolded()] = {path, {sum}};
}

void DeliveredList::finish(const QByteArray& heading) {
    QString lines;
    for (const Entry& entry : entries_)
        for (const QString& sum : entry.sums)
            lines += lineOf(sum, entry.path);
    files_.write(file_, heading + lines.toUtf8());
}

QByteArray contentHeading(int density) {
    return u"content %1 density %2 by %3\n"_s.arg(contentVersion)
        .arg(density)
        .arg(programVersion().toString())
        .toUtf8();
}

} // namespace morvane
