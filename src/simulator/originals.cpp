#include "simulator/originals.h"

#include "core/error.h"
#include "core/literals.h"
#include "core/safe_copy.h"
#include "core/text_decoding.h"

#include <algorithm>
#include <optional>

namespace morvane {

namespace {

/// Written in front of what is added: the line that a kill tore must not swallow the next one, and, torn
/// inside its path, must not pass for a line about another file. The tab gives it a field too many.
const QString tornLineEnd = u"\t\n"_s;

/// The simulator's names are read without regard to case, so the list's are, too.
QString keyOf(const QString& path) {
    return path.toCaseFolded();
}

QByteArray readIfThere(FileSystem& files, const FilePath& file) {
    try {
        return files.read(file);
    } catch (const Error& error) {
        if (error.code() == ErrorCode::fileNotFound) return {};
        throw; // an unreadable list must stop the install: without it our files would pass for the pilot's
    }
}

} // namespace

Originals::Originals(FileSystem& files, const FilePath& simulator, const FilePath& appPath)
    : files_(files), simulator_(simulator), folder_(appPath / u"Backup\\Originals"),
      listFile_(appPath / u"Backup\\Originals\\originals.lst") {
    load();
}

void Originals::load() {
    QByteArray whole = readIfThere(files_, listFile_);
    whole.truncate(whole.lastIndexOf('\n') + 1); // the line that a kill tore
    for (const QString& text : splitLines(QString::fromUtf8(whole))) {
        const QStringList fields = text.split(u'\t');
        if (fields.size() != 4 || fields[3].isEmpty()) continue; // the same, with tornLineEnd behind it
        const QString& path = fields[3];
        const FileFingerprint print{fields[1].toLongLong(), fields[2]};
        paths_.insert(keyOf(path), path);
        if (fields[0] == u"kept") kept_.insert(keyOf(path), {path, print.size, print.checksum});
        if (fields[0] == u"ours" && !ours_.contains(keyOf(path), print)) ours_.insert(keyOf(path), print);
    }
}

QString Originals::line(const char* fact, const FileFingerprint& print, const QString& path) {
    return QString::fromLatin1(fact) + u'\t' + QString::number(print.size) + u'\t' + print.checksum + u'\t' +
           path + u'\n';
}

void Originals::announce(const std::vector<FileCopy>& copies) {
    QString lines;
    for (const FileCopy& copy : copies) {
        const QString path = copy.target.relative();
        const FileFingerprint print = fingerprintOf(files_, copy.source);
        paths_.insert(keyOf(path), path);
        announced_.insert(keyOf(path), print); // of several copies to one path the last one stays
        if (ours_.contains(keyOf(path), print)) continue;
        ours_.insert(keyOf(path), print);
        lines += line("ours", print, path);
    }
    if (lines.isEmpty()) return;
    files_.makeFolder(folder_);
    files_.append(listFile_, (tornLineEnd + lines).toUtf8());
}

void Originals::settle() {
    for (auto latest = announced_.cbegin(); latest != announced_.cend(); ++latest) {
        ours_.remove(latest.key());
        ours_.insert(latest.key(), latest.value());
    }
    QString text;
    for (const KeptOriginal& original : list())
        text += line("kept", {original.size, original.checksum}, original.path);
    for (auto print = ours_.cbegin(); print != ours_.cend(); ++print)
        text += line("ours", print.value(), paths_.value(print.key()));
    files_.write(listFile_, text.toUtf8());
    announced_.clear();
}

bool Originals::isOurs(const QString& key, const FilePath& target) {
    if (!ours_.contains(key)) return false;
    try {
        return ours_.contains(key, fingerprintOf(files_, target));
    } catch (const Error& error) {
        if (error.code() != ErrorCode::fileNotFound) throw;
        return true; // not there: nothing to keep
    }
}

void Originals::makeFolderOnce(const FilePath& folder) {
    if (made_.contains(folder.relative())) return;
    files_.makeFolder(folder);
    made_.insert(folder.relative());
}

void Originals::keep(const FilePath& target) {
    const QString path = target.relative();
    if (kept_.contains(keyOf(path)) || isOurs(keyOf(path), target)) return;
    const FilePath place = folder_ / path, copy = place.parent().exactChild(place.fileName());
    if (!files_.exists(copy)) {
        const FilePath part(copy.native() + partialCopySuffix);
        makeFolderOnce(place.parent());
        try {
            files_.copyContents(target, part);
        } catch (const Error& error) {
            if (error.code() == ErrorCode::fileNotFound) return;
            throw;
        }
        files_.rename(part, copy);
    }
    const FileFingerprint print = fingerprintOf(files_, copy);
    files_.append(listFile_, (tornLineEnd + line("kept", print, path)).toUtf8());
    kept_.insert(keyOf(path), {path, print.size, print.checksum});
}

std::vector<KeptOriginal> Originals::list() const {
    std::vector<KeptOriginal> sorted(kept_.begin(), kept_.end());
    std::sort(sorted.begin(), sorted.end(), [](const auto& a, const auto& b) { return a.path < b.path; });
    return sorted;
}

void Originals::putBack(const KeptOriginal& original) {
    const FilePath target = (simulator_ / original.path).resolved();
    const bool wasReadOnly = files_.isReadOnly(target);
    if (wasReadOnly) files_.setReadOnly(target, false);
    replaceFile(files_, folder_ / original.path, target);
    if (wasReadOnly) files_.setReadOnly(target, true);
}

int Originals::restore() {
    int count = 0;
    std::optional<Error> firstFailure;
    for (const KeptOriginal& original : list()) {
        try {
            putBack(original);
            ++count;
        } catch (const Error& error) {
            if (!firstFailure) firstFailure = error;
        }
    }
    if (firstFailure) throw *firstFailure;
    return count;
}

} // namespace morvane
