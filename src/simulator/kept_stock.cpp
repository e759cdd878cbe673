#include "simulator/kept_stock.h"

#include "core/error.h"
#include "core/safe_copy.h"
#include "core/text_decoding.h"

#include <algorithm>
#include <optional>

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
}

void KeptStock::add(const QString& path, bool wasThere) {
    facts_.insert(path.toCaseFolded(), {path, wasThere});
}

/// Looked up once for its thousands of files.
FilePath KeptStock::folderOf(const FilePath& root, const QString& folder) {
    const QString key = root.text() + u'\n' + folder;
    if (!folders_.contains(key)) {
        files_.makeFolder(root / folder);
        folders_.insert(key, (root / folder).resolved());
    }
    return folders_.value(key);
}

void KeptStock::keep(const InstallFile& file) {
    if (facts_.contains(file.path().toCaseFolded())) return;
    const FilePath target = folderOf(appPath_, file.folder).exactChild(file.name);
    if (file.isThere) replaceFile(files_, target, folderOf(keptPath_, file.folder).exactChild(file.name));
    add(file.path(), file.isThere);
}

void KeptStock::settle() {
    QString list;
    for (const Fact& fact : facts_)
        list += (fact.wasThere ? keptWord : newWord) + u'\t' + fact.path + u'\n';
    files_.makeFolder(keptPath_);
    files_.write(listFile_, list.toUtf8());
}

bool KeptStock::putBack(const Fact& fact) {
    const FilePath target = appPath_ / fact.path;
    if (fact.wasThere) {
        replaceFile(files_, keptPath_ / fact.path, target);
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
    std::optional<Error> failure;
    for (const Fact& fact : facts_) {
        try {
            count += putBack(fact);
        } catch (const Error& error) {
            if (!failure) failure = error;
        }
    }
    if (failure) throw *failure;
    if (!isEmpty()) files_.remove(listFile_);
    forget();
    return count;
}

/// The list is gone, so what cannot be removed now is only room; the next import writes over it.
void KeptStock::forget() {
    QStringList folders{{}};
    try {
        for (const Fact& fact : facts_) {
            const FilePath kept = keptPath_ / fact.path;
            if (fact.wasThere && files_.exists(kept)) files_.remove(kept);
            for (QString path = fact.path; path.contains(u'\\');) {
                path.truncate(path.lastIndexOf(u'\\'));
                if (!folders.contains(path)) folders << path;
            }
        }
        std::ranges::sort(folders, std::greater(), &QString::size); // the inner ones first
        for (const QString& folder : folders)
            if (files_.isFolder(keptPath_ / folder)) files_.removeFolder(keptPath_ / folder);
    } catch (const Error&) {
    }
    facts_.clear();
}

} // namespace morvane
