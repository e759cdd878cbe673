#include "simulator/kept_stock.h"

#include "core/attempts.h"
#include "core/safe_copy.h"
#include "core/text_decoding.h"

#include <algorithm>

namespace morvane {

namespace {

const QString keptWord = u"kept"_s, newWord = u"new"_s;

void removeIfThere(FileSystem& files, const FilePath& file) {
    try {
        files.remove(file);
    } catch (const Error& error) {
        if (error.code() != ErrorCode::fileNotFound) throw;
    }
}

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
    // A copy without a line is what a cut of power left of an import that replaced nothing; of a line without
    // a file nothing was replaced.
    kept_.removeIf([&](const QString& key) { return !facts_.contains(key); });
    isAhead_ = facts_.removeIf([&](const std::pair<const QString&, Fact&>& fact) {
        return fact.second.wasThere && !kept_.contains(fact.first);
    }) > 0;
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

void KeptStock::announce(const std::vector<InstallFile>& files, const std::function<void()>& pump) {
    if (isAhead_) writeList(); // a copy that a cut of power tore must not pass for one that it tells of
    for (const InstallFile& file : files)
        if (!facts_.contains(file.path().toCaseFolded())) add(file.path(), file.isThere);
    files_.makeFolder(keptPath_);
    copyFirst(files, pump);
    writeList();
}

void KeptStock::copyFirst(const std::vector<InstallFile>& files, const std::function<void()>& pump) {
    std::vector<FilePath> copies;
    for (const InstallFile& file : files) {
        const QString key = file.path().toCaseFolded();
        if (file.isThere && facts_.value(key).wasThere && !kept_.contains(key)) {
            copies.push_back(placeOf(keptPath_, file));
            replaceFile(files_, placeOf(appPath_, file), copies.back());
            kept_.insert(key);
            copied_.insert(key);
        }
        pump();
    }
    files_.makeDurable(copies);
}

void KeptStock::writeList() {
    QString list;
    for (const Fact& fact : facts_)
        list += (fact.wasThere ? keptWord : newWord) + u'\t' + fact.path + u'\n';
    writeDurably(files_, listFile_, list.toUtf8());
    files_.makeDurable({listFile_}); // its name, too
    isAhead_ = false;
}

void KeptStock::replace(const InstallFile& file, const FilePath& part) {
    const FilePath target = placeOf(appPath_, file);
    const bool isOwn = copied_.remove(file.path().toCaseFolded());
    if (isOwn) files_.rename(target, placeOf(keptPath_, file));
    try {
        files_.rename(part, target);
    } catch (const Error&) {
        if (isOwn && attempt([&] { files_.rename(placeOf(keptPath_, file), target); }))
            kept_.remove(file.path().toCaseFolded());
        throw;
    }
}

void KeptStock::forgetUnused() {
    const QSet<QString> unused = std::exchange(copied_, {});
    if (unused.isEmpty()) return;
    std::vector<FilePath> copies;
    for (const QString& key : unused)
        copies.push_back(keptPath_ / facts_.take(key).path);
    kept_.subtract(unused);
    writeList();
    for (const FilePath& copy : copies)
        files_.remove(copy);
}

std::optional<FilePath> KeptStock::deliveredPlace(const QString& path) const {
    const auto fact = facts_.constFind(path.toCaseFolded());
    if (fact == facts_.constEnd()) return appPath_ / path;
    if (!fact->wasThere) return std::nullopt;
    return (kept_.contains(fact.key()) ? keptPath_ : appPath_) / path;
}

/// The place of what comes or went. What does not lie here has not been replaced, or is back already.
std::optional<FilePath> KeptStock::copyBack(const Fact& fact) {
    const FilePath target = (appPath_ / fact.path).resolved();
    if (fact.wasThere) {
        if (!kept_.contains(fact.path.toCaseFolded())) return std::nullopt;
        files_.copyContents(keptPath_ / fact.path, partOf(target));
        putPart(files_, target);
        return target;
    }
    removeIfThere(files_, target); // the import may not have come that far
    return target;
}

int KeptStock::restore() {
    std::vector<FilePath> places;
    FirstFailure failure;
    for (const Fact& fact : facts_)
        failure.attempt([&] {
            if (const auto place = copyBack(fact)) places.push_back(*place);
        });
    failure.raise();
    files_.makeDurable(places);
    int count = 0;
    for (const Fact& fact : facts_) {
        if (!fact.wasThere || !kept_.contains(fact.path.toCaseFolded())) continue;
        files_.rename(keptPath_ / fact.path, appPath_ / fact.path);
        ++count;
    }
    removeIfThere(files_, listFile_);
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
    copied_.clear();
}

} // namespace morvane
