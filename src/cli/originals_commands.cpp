#include "cli/command_tables.h"
#include "cli/json_output.h"
#include "cli/terminal.h"
#include "ground/ground_sets.h"
#include "night/night_sets.h"
#include "simulator/originals.h"
#include "sky/sky_sets.h"

#include <QJsonArray>

namespace morvane {

namespace {

Originals originalsOf(Session& session) {
    return Originals(session.files, session.FSPath, session.AppPath);
}

void list(CommandContext& context) {
    QJsonArray list;
    for (const KeptOriginal& original : originalsOf(context.session).list())
        list << toJson(original);
    printJson(QJsonDocument(list));
}

void restore(CommandContext& context) {
    const int count = originalsOf(context.session).restore();
    // The simulator shows the pilot's own files again, so no set of ours is the installed one.
    loadedGroundSets(context.session).markInstalled({});
    loadedSkySets(context.session).markInstalled({});
    loadedNightSets(context.session).markInstalled({});
    writeStandardError(u"%1 files put back\n"_s.arg(count));
}

} // namespace

std::vector<Command> originalsCommands() {
    return {{.words = u"originals list"_s,
             .run = list,
             .meaning = u"the kept simulator files"_s,
             .example = u"originals list"_s},
            {.words = u"originals restore"_s,
             .writes = true,
             .run = restore,
             .meaning = u"puts the kept simulator files back, read-only ones included"_s,
             .example = u"originals restore"_s}};
}

} // namespace morvane
