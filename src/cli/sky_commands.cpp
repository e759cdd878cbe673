#include "cli/sky_commands.h"

#include "cli/command_helpers.h"
#include "cli/json_output.h"
#include "core/numbers.h"
#include "core/options.h"
#include "sky/sky_activation.h"
#include "sky/sky_base_sets.h"
#include "sky/sky_generation.h"
#include "sky/sky_groups.h"
#include "sky/sky_installation.h"
#include "sky/sky_selection.h"
#include "sky/sky_sets.h"

#include <QJsonArray>

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

/// The set of the first argument, selected as by a click on its row; nothing after the message that it is not
/// there.
std::shared_ptr<const clsSkyTextureSet> clickedSet(CommandContext& context) {
    const QString& name = context.arguments[0];
    const auto set = findSkySet(context.session, name);
    if (!set) fail(context, u"There is no sky texture set named '"_s + name + u"'"_s);
    return set && clickSkyRow(context.session, name) ? set : nullptr;
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

bool skyList(CommandContext& context) {
    QJsonArray sets;
    for (const auto& set : loadedSkySets(context.session))
        sets << toJson(*set);
    printJson(QJsonDocument(sets));
    return true;
}

bool skyShow(CommandContext& context) {
    const auto set = clickedSet(context);
    if (!set) return true;
    QJsonValue dayColours; // null for a set without colours
    for (const auto& subSet : *context.session.gSkyTextureSubSets)
        if (subSet->timeOfDay == skyDay) dayColours = toJson(*subSet);
    printJson(QJsonDocument(QJsonObject{{u"set"_s, toJson(*set)}, {u"subSet"_s, dayColours}}));
    return true;
}

bool skyActivate(CommandContext& context) {
    // Nothing is refused here: a second activation gives a generated set its files of sunrise and sunset.
    if (clickedSet(context)) SkyActivation(context.session).activateSkySet();
    return true;
}

bool skyDeactivate(CommandContext& context) {
    if (clickedSet(context)) SkyActivation(context.session).deleteSkySet(true);
    return true;
}

bool skyDelete(CommandContext& context) {
    if (clickedSet(context)) SkyActivation(context.session).deleteSkySet(false);
    return true;
}

bool skyInstall(CommandContext& context) {
    const auto set = clickedSet(context);
    if (set && set->Activated != flagText(true))
        fail(context, u"The sky texture set '"_s + set->SkyTextureSet + u"' is not activated"_s);
    else if (set)
        SkyInstallation(context.session).installSkySet(true);
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
