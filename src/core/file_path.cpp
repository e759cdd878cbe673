#include "core/file_path.h"

#include "core/error.h"
#include "core/native_spelling.h"
#include "core/numbers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QVarLengthArray>
#include <algorithm>

namespace morvane {

/// One of a path's names, or its root.
struct PathName {
    std::shared_ptr<const PathName> above; ///< none above the root
    QString text;                          ///< of the root its whole path
    QString spelling = {};                 ///< the path on this system, where it was looked up
    bool isExact = false;                  ///< it is this text below that of the name above, which is settled

    PathName(std::shared_ptr<const PathName> folder, const QString& name)
        : above(std::move(folder)), text(name) {}
    /// Name by name, as a path may have any number of them.
    ~PathName() {
        while (above && above.use_count() == 1)
            above = std::shared_ptr(above->above);
    }
    bool isSettled() const { return isExact || !spelling.isEmpty(); }
};

namespace {

bool isSeparator(QChar c) {
    return c == u'\\' || c == u'/';
}

bool isSafe(QStringView name) {
    // Windows drops dots and blanks at a name's end: of ".. " or " " nothing is left but the folder itself.
    const bool blank = std::all_of(name.begin(), name.end(), [](QChar c) { return c == u'.' || c == u' '; });
    return !blank && !name.contains(QChar(u'\0')) && !name.contains(u':');
}

/// From the last one up, without the root.
using Names = QVarLengthArray<const PathName*, 16>;

Names namesOf(const PathName* last) {
    Names names;
    for (const PathName* name = last; name && name->above; name = name->above.get())
        names.append(name);
    return names;
}

/// Behind `start`, from the top down and but for the first few.
QString joined(QStringView start, const Names& names, QChar separator, qsizetype passed = 0) {
    qsizetype size = start.size();
    for (const PathName* name : names)
        size += name->text.size() + 1;
    QString text(size, Qt::Uninitialized);
    QChar* end = text.data();
    const auto add = [&end](QStringView name) { end = std::copy(name.begin(), name.end(), end); };
    add(start);
    for (qsizetype i = names.size() - 1 - passed; i >= 0; --i) {
        add(names[i]->text);
        if (i > 0) *end++ = separator;
    }
    text.truncate(end - text.constData());
    return text;
}

QString belowRoot(const QString& root, const Names& names) {
    return names.isEmpty() ? root : joined(withSeparator(root), names, u'/');
}

const QString& rootOf(const PathName& last) {
    const PathName* root = &last;
    while (root->above)
        root = root->above.get();
    return root->text;
}

/// The settled names below one that was looked up, or below the root.
QString exactSpelling(const PathName& last) {
    Names names;
    const PathName* name = &last;
    for (; name->isExact; name = name->above.get())
        names.append(name);
    return belowRoot(name->spelling.isEmpty() ? name->text : name->spelling, names);
}

} // namespace

FilePath::FilePath(const QString& systemPath) {
    QString root = QDir::fromNativeSeparators(systemPath);
    while (root.size() > 1 && root.endsWith(u'/') && !root.endsWith(u":/"))
        root.chop(1);
    last_ = std::make_shared<PathName>(nullptr, root);
}

FilePath FilePath::operator/(QStringView relative) const {
    auto last = last_ ? last_ : std::make_shared<PathName>(nullptr, QString());
    qsizetype start = 0;
    for (qsizetype i = 0; i <= relative.size(); ++i) {
        if (i < relative.size() && !isSeparator(relative[i])) continue;
        const QStringView name = relative.mid(start, i - start);
        start = i + 1;
        if (name.isEmpty() || name == u".") continue;
        if (!isSafe(name)) throw Error(ErrorCode::pathNotFound, name.toString());
        last = std::make_shared<PathName>(std::move(last), name.toString());
    }
    return FilePath(std::move(last));
}

bool FilePath::isChildName(const QString& name) {
    return isSafe(name) && std::none_of(name.begin(), name.end(), isSeparator);
}

FilePath FilePath::child(const QString& name) const {
    if (!isChildName(name)) throw Error(ErrorCode::pathNotFound, name);
    return FilePath(std::make_shared<PathName>(last_ ? last_ : FilePath(QString()).last_, name));
}

FilePath FilePath::exactChild(const QString& name) const {
    if (!isChildName(name)) throw Error(ErrorCode::pathNotFound, name);
    const FilePath folder = last_ && (last_->isSettled() || !last_->above) ? *this : resolved();
    const auto last = std::make_shared<PathName>(folder.last_, name);
    last->isExact = true;
    return FilePath(last);
}

FilePath FilePath::settled(const QString& spelling) const {
    const auto last =
        std::make_shared<PathName>(last_ ? last_->above : nullptr, last_ ? last_->text : QString());
    last->spelling = spelling;
    return FilePath(last);
}

FilePath FilePath::withEnding(const QString& ending) const {
    return settled(native() + ending);
}

FilePath FilePath::resolved() const {
    return settled(native());
}

FilePath FilePath::parent() const {
    if (last_ && last_->above) return FilePath(last_->above);
    return FilePath(QFileInfo(last_ ? last_->text : QString()).path());
}

bool FilePath::isResolved() const {
    return last_ && last_->isSettled();
}

bool FilePath::isEmpty() const {
    return !last_ || rootOf(*last_).isEmpty();
}

QString FilePath::fileName() const {
    if (!last_) return {};
    return last_->above ? last_->text : QFileInfo(last_->text).fileName();
}

QString FilePath::relativeTo(const FilePath& folder) const {
    return joined({}, namesOf(last_.get()), u'\\', namesOf(folder.last_.get()).size());
}

QString FilePath::text() const {
    if (!last_) return {};
    return QDir::toNativeSeparators(belowRoot(rootOf(*last_), namesOf(last_.get())));
}

QString FilePath::native() const {
    if (!last_) return {};
    if (!last_->spelling.isEmpty()) return last_->spelling;
    if (!last_->above) return last_->text;
    if (last_->isExact) return exactSpelling(*last_);
    const Names names = namesOf(last_.get());
    QStringList texts;
    for (qsizetype i = names.size() - 1; i >= 0; --i)
        texts << names[i]->text;
    return spelledAsOnDisk(rootOf(*last_), texts);
}

std::size_t qHash(const FilePath& path, std::size_t seed) {
    return qHash(path.fileName(), seed);
}

bool matchesMask(QStringView name, QStringView mask) {
    if (mask == u"*.*" || mask == u"*") return true;
    // Greedy walk with one point of return: the last "*" seen.
    qsizetype n = 0, m = 0, starMask = -1, starName = 0;
    while (n < name.size()) {
        const bool same =
            m < mask.size() && (mask[m] == u'?' || mask[m].toCaseFolded() == name[n].toCaseFolded());
        if (m < mask.size() && mask[m] == u'*') {
            starMask = m++;
            starName = n;
        } else if (same) {
            ++n, ++m;
        } else if (starMask >= 0) {
            m = starMask + 1;
            n = ++starName;
        } else {
            return false;
        }
    }
    while (m < mask.size() && mask[m] == u'*')
        ++m;
    return m == mask.size();
}

QString StripBackslash(const QString& path) {
    QString stripped = trimmedBlanks(path);
    if (stripped.endsWith(u'\\')) stripped.chop(1);
    return stripped;
}

} // namespace morvane
