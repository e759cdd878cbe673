#include "app/joined_rooms.h"
#include "app/report.h"
#include "cli/command_helpers.h"
#include "cli/command_tables.h"
#include "core/registry.h"
#include "core/store_connection.h"

namespace morvane {

namespace {

/// Works without a simulator and on a store that is damaged: it is what one does when something is wrong.
void save(CommandContext& context) {
    Session& session = context.session;
    joinRooms(session);
    session.FSPath = FilePath(
        StripBackslash(session.registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, simulatorKey, u"EXE Path"_s)));
    connectDatabase(session, StoreAccess::reading);
    saveReport(session, pathOfArgument(context.arguments[0]));
}

} // namespace

std::vector<Command> reportCommands() {
    return {{.words = u"report"_s,
             .operands = {outFile},
             .needs = Needs::folder,
             .run = save,
             .meaning = u"log, versions, settings and rows in one zip, for who is to find out what went "
                        "wrong; nothing that you typed is in it"_s,
             .example = u"report morvane-report.zip"_s}};
}

} // namespace morvane
