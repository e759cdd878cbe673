#include "cli/command_helpers.h"
#include "cli/command_tables.h"
#include "cli/json_output.h"
#include "cli/set_commands.h"
#include "ground/ground_generation.h"
#include "ground/ground_sets.h"
#include "ground/texture_catalogue.h"

namespace morvane {

namespace {

void showCatalogue(CommandContext& context) {
    TextureCatalogue catalogue(context.session);
    printJson(QJsonDocument(toJson(catalogue.popTextureList(0, 0, true, context.arguments[0]))));
}

void create(CommandContext& context) {
    const auto counts = countsOfArguments(context.arguments, 0);
    context.user.onModal = [&](Screen screen) {
        if (screen != Screen::frm_TsRequired) return;
        context.session.state<GroundSetCounts>().setCounts = counts;
        context.session.state<GroundSetCounts>().setCountsConfirmed = true;
    };
    GroundGeneration(context.session).createTextureSets(true);
}

} // namespace

std::vector<Command> groundCommands() {
    std::vector<Command> commands{
        {.words = u"catalogue"_s,
         .operands = {{u"SET"_s, u"the set's name; none needs to be there"_s}},
         .run = showCatalogue,
         .meaning = u"the base files that a ground set of that name is made of"_s,
         .example = u"catalogue \"2-Storm\""_s},
        {.words = u"ground create"_s,
         .operands = fiveCounts(),
         .writes = true,
         .run = create,
         .meaning = u"makes so many ground sets for each of the five cloud covers"_s,
         .example = u"ground create 1 1 2 2 1"_s},
    };
    std::ranges::move(SetCommands<GroundKind>::all(u"2-Storm"_s), std::back_inserter(commands));
    return commands;
}

} // namespace morvane
