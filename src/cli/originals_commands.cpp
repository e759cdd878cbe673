#include "cli/command_helpers.h"
#include "cli/command_tables.h"
#include "cli/json_output.h"
#include "sets/simulator_copy.h"
#include "simulator/simulator_restore.h"

#include <QJsonArray>

namespace morvane {

namespace {

QJsonObject toJson(const KeptOriginal& original) {
    QJsonObject object{{u"path"_s, original.path},
                       {u"size"_s, qint64(original.size)},
                       {u"sha1"_s, original.checksum},
                       {u"number"_s, original.number},
                       {u"copy"_s, original.copy}};
    // Lists of old do not know these.
    if (original.day.isValid()) object[u"kept"_s] = original.day.toString(Qt::ISODate);
    if (original.mode) object[u"mode"_s] = QString::number(original.mode, 8).rightJustified(4, u'0');
    return object;
}

QJsonObject toJson(const OriginalsReport& report) {
    return {{u"putBack"_s, report.putBack},
            {u"takenAway"_s, report.takenAway},
            {u"left"_s, QJsonArray::fromStringList(report.left)},
            {u"damaged"_s, QJsonArray::fromStringList(report.damaged)}};
}

void list(CommandContext& context) {
    QJsonArray list;
    for (const KeptOriginal& original : originalsOf(context.session).list())
        list << toJson(original);
    printJson(QJsonDocument(list));
}

void restore(CommandContext& context) {
    if (const auto report = restoreOriginals(context.session)) printJson(QJsonDocument(toJson(*report)));
}

} // namespace

std::vector<Command> originalsCommands() {
    return {{.words = u"originals list"_s,
             .options = {{jsonOption.name, u"the same: the list is one JSON array in any case"_s}},
             .run = list,
             .meaning = u"the kept simulator files"_s,
             .example = u"originals list"_s},
            {.words = u"originals restore"_s,
             .writes = true,
             .run = restore,
             .meaning = u"gives the simulator back as it was, and tells which files it left"_s,
             .example = u"originals restore"_s}};
}

} // namespace morvane
