#include "cli/originals_commands.h"

#include "cli/json_output.h"
#include "simulator/simulator_copy.h"
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

} // namespace

bool originalsList(CommandContext& context) {
    QJsonArray list;
    for (const KeptOriginal& original : originalsOf(context.session).list())
        list << toJson(original);
    printJson(QJsonDocument(list));
    return true;
}

bool originalsRestore(CommandContext& context) {
    if (const auto report = restoreOriginals(context.session)) printJson(QJsonDocument(toJson(*report)));
    return true;
}

} // namespace morvane
