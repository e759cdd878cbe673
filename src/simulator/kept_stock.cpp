#include "simulator/kept_stock.h"

#include "core/attempts.h"
#include "core/text_decoding.h"

#include <algorithm>

namespace morvane {

namespace {

const QString keptWord = u"kept"_s, newWord = u"new"_s;

} // namespace

KeptStock::KeptStock(FileSystem& files, const FilePath& appPath)
    : files_(files), appPath_(appPath), keptPath_(appPath / u"Resources kept"),
      listFile_(keptPath_ / u"kept.lst") {
    load();
}

void KeptStock::load() {
    // A listing raises where a test of existence would say no, and "nothing kept" must never be said wrongly.
    if (files_.list(keptPath_, listFile_.fileName()).isEmpty()) return;
    for (const QString& line : splitLines(QString::fromUtf8(files_.read(listFile_))))
        if (const QStringList fields = line.split(u'\t'); fields.size() == 2)
            add(fields[1], fields[0] == keptWord);
    loadKept({});
}

void KeptStock::loadKept(const QString& folder) {
    const FilePath place = keptPath_ / folder;
    const QString beginning = folder.isEmpty() ? folder : folder + u'\\';
    for (const QString& name : files_.list(place, u"*.*"_s))
        kept_.insert((beginning + name).toCaseFolded());
    for (const QString& inner : files_.listFolders(place))
        loadKept(beginning + inner);
}

void KeptStock::add(const QString& path, bool wasThere) {
    facts_.insert(path.toCaseFolded(), {path, wasThere});
}

/// Folders are looked up once for their thousands of files.
FilePath KeptStock::placeOf(const FilePath& root, const InstallFile& file) {
    const QString key = root.text() + u'\n' + file.folder;
    if (!folders_.contains(key)) {
        files_.makeFolder(root / file.folder);
        folders_.insert(key, (root / file.folder).resolved());
    }
    return folders_.value(key).exactChild(file.name);
}

void KeptStock::announce(const std::vector<InstallFile>& files) {
    for (const InstallFile& file : files)
        if (!facts_.contains(file.path().toCaseFolded())) add(file.path(), file.isThere);
    QString list;
    for (const Fact& fact : facts_)
        list += (fact.wasThere ? keptWord : newWord) + u'\t' + fact.path + u'\n';
    files_.makeFolder(keptPath_);
    files_.write(listFile_, list.toUtf8());
}

void KeptStock::replace(const InstallFile& file, const FilePath& part) {
    const FilePath target = placeOf(appPath_, file);
    const QString key = file.path().toCaseFolded();
    const bool isOwn = file.isThere && facts_.value(key).wasThere && !kept_.contains(key);
    if (isOwn) {
        files_.rename(target, placeOf(keptPath_, file));
        kept_.insert(key);
    }
    try {
        files_.rename(part, target);
    } catch (const Error&) {
        if (isOwn && attempt([&] { files_.rename(placeOf(keptPath_, file), target); })) kept_.remove(key);
        throw;
    }
}

std::optional<FilePath> KeptStock::deliveredPlace(const QString& path) const {
    const auto fact = facts_.constFind(path.toCaseFolded());
    if (fact == facts_.constEnd()) return appPath_ / path;
    if (!fact->wasThere) return std::nullopt;
    return (kept_.contains(fact.key()) ? keptPath_ : appPath_) / path;
}

/// What does not lie here has not been replaced, or is back already.
bool KeptStock::putBack(const Fact& fact) {
    const FilePath target = appPath_ / fact.path;
    if (fact.wasThere) {
        if (!kept_.contains(fact.path.toCaseFolded())) return false;
        files_.rename(keptPath_ / fact.path, target);
        return true;
    }
    try {
        files_.remove(target);
    } catch (const Error& error) { // the import may not have come that far
        if (error.code() != ErrorCode::fileNotFound) throw;
    }
    return false;
}

int KeptStock::restore() {
    int count = 0;
    FirstFailure failure;
    for (const Fact& fact : facts_)
        failure.attempt([&] { count += putBack(fact); });
    failure.raise();
    if (!isEmpty()) files_.remove(listFile_);
    forget();
    return count;
}

/// Only folders without a file are left.
void KeptStock::forget() {
    QStringList folders{{}};
    for (const Fact& fact : facts_)
        for (QString path = fact.path; path.contains(u'\\');) {
            path.truncate(path.lastIndexOf(u'\\'));
            if (!folders.contains(path)) folders << path;
        }
    std::ranges::sort(folders, std::greater(), &QString::size); // the inner ones first
    attempt([&] {                                               // one that is left costs nothing but its name
        for (const QString& folder : folders)
            if (files_.isFolder(keptPath_ / folder)) files_.removeFolder(keptPath_ / folder);
    });
    facts_.clear();
    kept_.clear();
}

} // namespace morvane
