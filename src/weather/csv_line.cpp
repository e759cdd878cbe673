#include "weather/csv_line.h"

#include "core/literals.h"

namespace morvane {

namespace {

constexpr std::size_t mostFields = 500; // some ten times what a known table has

} // namespace

std::vector<QStringView> csvFields(QStringView line) {
    std::vector<QStringView> fields;
    bool isQuoted = false;
    qsizetype begin = 0;
    for (qsizetype at = 0; at < line.size() && fields.size() < mostFields; ++at) {
        if (line[at] == u'"') isQuoted = !isQuoted;
        if (line[at] != u',' || isQuoted) continue;
        fields.push_back(line.mid(begin, at - begin));
        begin = at + 1;
    }
    fields.push_back(line.mid(begin));
    return fields;
}

QString csvText(QStringView field) {
    if (!field.startsWith(u'"')) return field.toString();
    const bool isClosed = field.size() > 1 && field.endsWith(u'"');
    return field.mid(1, field.size() - (isClosed ? 2 : 1)).toString().replace(u"\"\""_s, u"\""_s);
}

} // namespace morvane
