#include "cli/command_helpers.h"
#include "cli/command_tables.h"
#include "cli/json_output.h"
#include "cli/terminal.h"
#include "simulator/kept_room.h"

#include <QJsonArray>

namespace morvane {

namespace {

QJsonObject toJson(const KeptItem& item) {
    QJsonObject object{{u"name"_s, item.name},
                       {u"count"_s, qint64(item.count)},
                       {u"bytes"_s, qint64(item.bytes)},
                       {u"removable"_s, item.isRemovable}};
    if (item.all != item.count) object[u"all"_s] = qint64(item.all);
    if (!item.remark.isEmpty()) object[u"remark"_s] = item.remark;
    return object;
}

QJsonObject toJson(const KeptRoom& room) {
    QJsonArray items;
    for (const KeptItem& item : room.items)
        items << toJson(item);
    return {{u"items"_s, items}, {u"bytes"_s, qint64(room.bytes())}, {u"free"_s, qint64(room.freeBytes)}};
}

void showSpace(CommandContext& context) {
    const KeptRoom room = keptRoom(context.session);
    if (context.options.contains(jsonOption.name)) return printJson(QJsonDocument(toJson(room)));
    QString lines;
    for (const KeptItem& item : room.items) {
        const QString name = item.remark.isEmpty() ? item.name : item.name + u", "_s + item.remark;
        lines += name.leftJustified(44) + u' ' + item.countWords().rightJustified(16) + u' ' +
                 keptText(item.bytes).rightJustified(8) + u'\n';
    }
    writeStandardOutput(lines + room.summary() + u'\n');
}

} // namespace

std::vector<Command> spaceCommands() {
    return {{.words = u"space"_s,
             .options = {jsonOption},
             .run = showSpace,
             .meaning = u"what Morvane keeps, how much room it takes, and what the disk has free"_s,
             .example = u"space"_s}};
}

} // namespace morvane
