#include "sets/set_names.h"

#include "core/literals.h"

#include <algorithm>

namespace morvane {

namespace {

bool isForbidden(QChar letter) {
    return letter.category() == QChar::Other_Control || u"\\/:*?\"<>|"_s.contains(letter);
}

} // namespace

QString newSetName(std::int16_t key, const QString& title) {
    QString name = QString::number(key) + u'-' + title;
    std::replace_if(name.begin(), name.end(), isForbidden, QChar(u'_'));
    name.truncate(longestSetName);
    // Half of a letter beyond 16 bits would have another spelling on the disk than in the store.
    if (name.back().isHighSurrogate()) name.chop(1);
    while (name.endsWith(u'.') || name.endsWith(u' '))
        name.chop(1);
    return name;
}

} // namespace morvane
