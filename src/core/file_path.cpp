#include "core/file_path.h"

#include "core/error.h"
#include "core/native_spelling.h"
#include "core/numbers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <memory>

namespace morvane {

namespace {

bool isSeparator(QChar c) {
    return c == u'\\' || c == u'/';
}

bool isSafe(QStringView name) {
    // Windows drops dots and blanks at a name's end: of ".. " or " " nothing is left but the folder itself.
    const bool blank = std::all_of(name.begin(), name.end(), [](QChar c) { return c == u'.' || c == u' '; });
    return !blank && !name.contains(QChar(u'\0')) && !name.contains(u':');
}

} // namespace

FilePath::FilePath(const QString& systemPath) : root_(QDir::fromNativeSeparators(systemPath)) {
    while (root_.size() > 1 && root_.endsWith(u'/') && !root_.endsWith(u":/"))
        root_.chop(1);
}

FilePath FilePath::operator/(QStringView relative) const {
    FilePath joined = *this;
    joined.resolved_.clear();
    qsizetype start = 0;
    for (qsizetype i = 0; i <= relative.size(); ++i) {
        if (i < relative.size() && !isSeparator(relative[i])) continue;
        const QStringView name = relative.mid(start, i - start);
        start = i + 1;
        if (name.isEmpty() || name == u".") continue;
        if (!isSafe(name)) throw Error(ErrorCode::pathNotFound, name.toString());
        joined.names_.append(name.toString());
    }
    return joined;
}

bool FilePath::isChildName(const QString& name) {
    return isSafe(name) && std::none_of(name.begin(), name.end(), isSeparator);
}

FilePath FilePath::child(const QString& name) const {
    if (!isChildName(name)) throw Error(ErrorCode::pathNotFound, name);
    return *this / QStringView(name);
}

FilePath FilePath::exactChild(const QString& name) const {
    FilePath path = child(name);
    path.resolved_ = withSeparator(native()) + name;
    return path;
}

FilePath FilePath::withEnding(const QString& ending) const {
    FilePath path = *this;
    path.resolved_ = native() + ending;
    return path;
}

FilePath FilePath::parent() const {
    FilePath above = *this;
    above.resolved_.clear();
    if (!above.names_.isEmpty())
        above.names_.removeLast();
    else
        above.root_ = QFileInfo(root_).path();
    return above;
}

QString FilePath::fileName() const {
    return names_.isEmpty() ? QFileInfo(root_).fileName() : names_.last();
}

QString FilePath::text() const {
    const QString joined = names_.isEmpty() ? root_ : withSeparator(root_) + names_.join(u'/');
    return QDir::toNativeSeparators(joined);
}

FilePath FilePath::resolved() const {
    FilePath path = *this;
    path.resolved_ = native();
    return path;
}

QString FilePath::native() const {
    if (!resolved_.isEmpty()) return resolved_;
    if (names_.isEmpty()) return root_;
    return spelledAsOnDisk(root_, names_);
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
