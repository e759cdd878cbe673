#include "cli/command_helpers.h"
#include "cli/command_tables.h"
#include "cli/set_commands.h"
#include "core/numbers.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_generation.h"
#include "sky/sky_sets.h"
#include "sky/sky_texture_sub_sets.h"

#include <algorithm>

namespace morvane {

namespace {

/// The base sets of the argument, "Sunny,Pro Sky".
QStringList baseSetsOf(const QString& argument) {
    QStringList names;
    for (const QString& part : argument.split(u','))
        names << trimmedBlanks(part);
    return names;
}

bool areBaseSets(const QString& argument) {
    return std::ranges::all_of(baseSetsOf(argument),
                               [](const QString& name) { return skyBaseSetBoxes().contains(name); });
}

void create(CommandContext& context) {
    const QStringList baseSets = baseSetsOf(context.arguments[0]);
    const auto counts = countsOfArguments(context.arguments, 1);
    context.user.onModal = [&](Screen screen) {
        if (screen != Screen::frm_SelectSkyTexture) return;
        context.session.state<SkySetCounts>().skyBaseSets = baseSets;
        context.session.state<SkySetCounts>().skySetCounts = counts;
        context.session.state<SkySetCounts>().skySetsConfirmed = true;
    };
    SkyGeneration(context.session).createSkySets(true);
}

/// One object: the head row as "set", the row of its colours as "subSet".
void show(CommandContext& context) {
    const auto set = SetCommands<SkyKind>::clickedSet(context);
    if (!set || !clsSkyTextureSubSets::reload(context.session, set->StsID)) return;
    QJsonValue dayColours; // null for a set without colours
    for (const auto& subSet : *context.session.rows<clsSkyTextureSubSets>())
        if (subSet->timeOfDay == skyDay) dayColours = toJson(*subSet);
    printJson(QJsonDocument(
        QJsonObject{{u"set"_s, toJson(*set, context.session.DecimalSep)}, {u"subSet"_s, dayColours}}));
}

Operand baseSetsOperand() {
    return {.name = u"BASES"_s,
            .meaning = u"base sets, joined by \",\"; N5 counts for \"Overcast\" alone"_s,
            .takes = u"names out of "_s + skyBaseSetBoxes().join(u", "_s) + u" joined by \",\""_s,
            .isTaken = areBaseSets};
}

} // namespace

std::vector<Command> skyCommands() {
    std::vector<Operand> operands = fiveCounts();
    operands.insert(operands.begin(), baseSetsOperand());
    std::vector<Command> commands{
        {.words = u"sky create"_s,
         .operands = operands,
         .writes = true,
         .run = create,
         .meaning = u"makes so many sky sets for each of the five cloud covers"_s,
         .example = u"sky create \"Sunny,Pro Sky\" 1 1 1 1 0"_s},
        {.words = u"sky show"_s,
         .operands = {setName},
         .run = show,
         .meaning = u"a sky set with its ten colour texts"_s,
         .example = u"sky show \"Default\""_s},
    };
    std::ranges::move(SetCommands<SkyKind>::all(
                          u"2-Dawn"_s, u"writes a set's files, those of sunrise and sunset included"_s),
                      std::back_inserter(commands));
    return commands;
}

} // namespace morvane
