#include "cli/sky_commands.h"

#include "cli/command_helpers.h"
#include "cli/set_commands.h"
#include "cli/set_kinds.h"
#include "core/numbers.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_generation.h"
#include "sky/sky_groups.h"

namespace morvane {

namespace {

/// The base sets of the argument, "Sunny,Pro Sky"; nothing when one of them is unknown.
std::optional<QStringList> baseSetsOf(const QString& argument) {
    QStringList names;
    for (const QString& part : argument.split(u',')) {
        const QString name = trimmedBlanks(part);
        if (!skyBaseSetBoxes().contains(name)) return std::nullopt;
        names << name;
    }
    return names;
}

/// Raises "Type mismatch" for anything but an array of ten colour texts.
SkyGroupTable readGroups(Session& session, const FilePath& path) {
    const QJsonArray texts = QJsonDocument::fromJson(session.files.read(path)).array();
    if (texts.size() != skyGroupCount) throw Error(ErrorCode::typeMismatch, path.text());
    SkyGroupTable groups;
    for (int number = 1; number <= skyGroupCount; ++number)
        if (const auto record = parseSkyColourString(texts[number - 1].toString()))
            skyRecord(groups, number) = *record;
    return groups;
}

} // namespace

bool skyCreate(CommandContext& context) {
    const auto baseSets = baseSetsOf(context.arguments[0]);
    const auto counts = countsOfArguments(context.arguments, 1);
    if (!baseSets || !counts) return false;
    context.user.onModal = [&](Screen screen) {
        if (screen != Screen::frm_SelectSkyTexture) return;
        context.session.modal.skyBaseSets = *baseSets;
        context.session.modal.skySetCounts = *counts;
        context.session.modal.skySetsConfirmed = true;
    };
    SkyGeneration(context.session).createSkySets(true);
    return true;
}

bool skyShow(CommandContext& context) {
    const auto set = SetCommands<SkyKind>::clickedSet(context);
    if (!set || !clsSkyTextureSubSets::reload(context.session, set->StsID)) return true;
    QJsonValue dayColours; // null for a set without colours
    for (const auto& subSet : *context.session.gSkyTextureSubSets)
        if (subSet->timeOfDay == skyDay) dayColours = toJson(*subSet);
    printJson(QJsonDocument(QJsonObject{{u"set"_s, toJson(*set)}, {u"subSet"_s, dayColours}}));
    return true;
}

bool recolourSky(CommandContext& context) {
    const SkyGroupTable groups = readGroups(context.session, pathOfArgument(context.arguments[0]));
    recolourFile(context, [&](const cDIBSection& source, cDIBSection& result) {
        cColourise colourise(context.user);
        colourise.skyTextureGroups = groups;
        colourise.processSkyTexture(source, result);
    });
    return true;
}

} // namespace morvane
