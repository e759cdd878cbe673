#include "cli/command_helpers.h"
#include "cli/command_tables.h"
#include "cli/json_output.h"
#include "cli/terminal.h"
#include "sets/simulator_copy.h"
#include "sets/undo_step.h"
#include "simulator/difference_choices.h"
#include "simulator/simulator_check.h"
#include "simulator/simulator_restore.h"
#include "simulator/undo_install.h"

#include <QJsonArray>

namespace morvane {

namespace {

const QString deepOption = u"--deep"_s;

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

QJsonObject toJson(const InstalledPart& part) {
    return {{u"kind"_s, part.kind},       {u"name"_s, part.name},       {u"whole"_s, part.whole},
            {u"changed"_s, part.changed}, {u"missing"_s, part.missing}, {u"notThere"_s, part.notThere},
            {u"isTrue"_s, part.isWhole()}};
}

QJsonObject toJson(const CheckedPlace& place) {
    return {{u"path"_s, place.path},
            {u"state"_s, place.state == PlaceState::missing ? u"missing"_s : u"changed"_s},
            {u"from"_s, place.where},
            {u"keptOriginal"_s, !place.isKept       ? u"none"_s
                                : place.isKeptSound ? u"whole"_s
                                                    : u"damaged"_s}};
}

template <class Item>
QJsonArray toJsonArray(const std::vector<Item>& items) {
    QJsonArray array;
    for (const Item& item : items)
        array << toJson(item);
    return array;
}

QJsonObject toJson(const SimulatorCheck& check) {
    return {{u"isAsLeft"_s, check.isAsLeft()},
            {u"ours"_s, check.ours},
            {u"own"_s, check.pilots},
            {u"changed"_s, check.changed},
            {u"missing"_s, check.missing},
            {u"keptOriginals"_s, check.kept},
            {u"damagedOriginals"_s, QJsonArray::fromStringList(check.damagedKept)},
            {u"installed"_s, toJsonArray(check.installed)},
            {u"differences"_s, toJsonArray(check.differences())}};
}

void verify(CommandContext& context) {
    const CheckDepth depth =
        context.options.contains(deepOption) ? CheckDepth::everyFile : CheckDepth::changedFiles;
    const SimulatorCheck check = checkSimulator(context.session, depth, false);
    if (context.options.contains(jsonOption.name))
        printJson(QJsonDocument(toJson(check)));
    else
        writeStandardOutput(check.text());
    if (!check.isAsLeft()) fail(context, u"Not everything is as Morvane left it."_s);
}

template <DifferenceChoice choice>
void settle(CommandContext& context) {
    QStringList paths = context.arguments;
    for (QString& path : paths)
        path.replace(u'/', u'\\');
    const auto report = settleDifferences(context.session, choice, paths);
    if (report && (report->done < paths.size()))
        fail(context, u"Not all of these could be settled; \"verify\" names those that differ."_s);
}

void undo(CommandContext& context) {
    if (!canUndo(context.session)) return fail(context, u"There is no install to undo."_s);
    if (const auto report = undoLastInstall(context.session)) printJson(QJsonDocument(toJson(*report)));
}

/// One of the ways to settle what differs.
Command choiceCommand(const QString& word, void (*run)(CommandContext&), const QString& meaning) {
    const Operand path{.name = u"PATH"_s,
                       .meaning = u"as \"verify\" prints it, below the simulator's folder"_s,
                       .repeats = true};
    return {.words = u"originals "_s + word,
            .operands = {path},
            .writes = true,
            .run = run,
            .meaning = meaning,
            .example = u"originals "_s + word + u" \"Texture\\halo.bmp\""_s};
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
             .example = u"originals restore"_s},
            choiceCommand(u"take"_s, settle<DifferenceChoice::takeAsMine>,
                          u"what another program put there stays and counts as your own"_s),
            choiceCommand(u"own"_s, settle<DifferenceChoice::putOwnBack>,
                          u"your kept file returns to that place"_s),
            choiceCommand(u"ours"_s, settle<DifferenceChoice::putOursBack>,
                          u"Morvane's file is copied there again"_s),
            {.words = u"verify"_s,
             .options = {jsonOption, {deepOption, u"reads every file, not only those that look changed"_s}},
             .run = verify,
             .meaning = u"whether the simulator's files are as Morvane and you left them"_s,
             .example = u"verify --deep"_s},
            {.words = u"undo"_s,
             .writes = true,
             .run = undo,
             .meaning = u"gives the simulator's files back as they were before the last install"_s,
             .example = u"undo"_s}};
}

} // namespace morvane
