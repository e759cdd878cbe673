#include "cli/command_helpers.h"
#include "cli/command_tables.h"
#include "cli/json_output.h"
#include "sets/stored_rows.h"
#include "simulator/backup_files.h"
#include "simulator/backup_removal.h"
#include "simulator/backup_restore.h"
#include "simulator/backups.h"
#include "simulator/base_install.h"
#include "simulator/base_install_rows.h"
#include "simulator/option_table.h"

#include <QJsonArray>
#include <algorithm>

namespace morvane {

namespace {

QString nameOf(const SimulatorOption& option) {
    return QString::fromUtf16(option.name);
}

const SimulatorOption& optionOf(const CommandContext& context) {
    return *std::ranges::find(simulatorOptions(), context.arguments[0], nameOf);
}

QJsonObject toJson(const clsConfig& config) {
    return {{u"ConfigID"_s, config.ConfigID},
            {u"ConfigName"_s, config.ConfigName},
            {u"ConfigMVFolder"_s, config.ConfigMVFolder},
            {u"ConfigFSFolder"_s, config.ConfigFSFolder},
            {u"ConfigDescription"_s, config.ConfigDescription},
            {u"ConfigInstalled"_s, config.ConfigInstalled}};
}

template <class Record>
bool hasName(CommandContext& context, const KeyedCollection<Record>& records, const QString& what,
             const QString& name) {
    if (findTrimmedName(records, name)) return true;
    fail(context, u"There is no %1 named '%2'"_s.arg(what, name));
    return false;
}

void listBases(CommandContext& context) {
    QJsonArray list;
    for (const auto& config : loadedCollection(context.session, context.session.rows<clsConfigs>()))
        list << toJson(*config);
    printJson(QJsonDocument(list));
}

void installBases(CommandContext& context) {
    const clsConfigs& configs = loadedCollection(context.session, context.session.rows<clsConfigs>());
    const auto isKnown = [&](const QString& title) {
        return hasName(context, configs, u"base install"_s, title);
    };
    if (std::ranges::all_of(context.arguments, isKnown))
        copyBaseResources(context.session, context.arguments);
}

void createBackupOfAll(CommandContext& context) {
    backupOnRequest(context.session);
}

void listBackups(CommandContext& context) {
    QJsonArray list;
    for (const auto& backup : loadedCollection(context.session, context.session.rows<clsBackups>()))
        list << QJsonObject{{u"BackupID"_s, backup->BackupID},
                            {u"BackupName"_s, backup->BackupName},
                            {u"BackupDateTime"_s, backup->BackupDateTime.toString(Qt::ISODate)},
                            {u"complete"_s, isBackupComplete(context.session, backup->BackupName)}};
    printJson(QJsonDocument(list));
}

bool hasBackup(CommandContext& context) {
    const clsBackups& backups = loadedCollection(context.session, context.session.rows<clsBackups>());
    return hasName(context, backups, u"backup"_s, context.arguments[0]);
}

void removeBackupOf(CommandContext& context) {
    if (hasBackup(context)) removeBackup(context.session, context.arguments[0]);
}

void restoreBackupOf(CommandContext& context) {
    const QString& name = context.arguments[0];
    if (!hasBackup(context)) return;
    context.user.onModal = [&](Screen screen) {
        if (screen != Screen::frm_BackupList) return;
        context.session.state<BackupChoice>().chosenBackup = name;
        context.session.state<BackupChoice>().backupConfirmed = true;
    };
    restoreBackupOnRequest(context.session);
}

void getOption(CommandContext& context) {
    const SimulatorOption& option = optionOf(context);
    printJson(
        QJsonDocument(QJsonObject{{nameOf(option), context.session.state<OptionsInForce>().*option.flag}}));
}

void setOption(CommandContext& context) {
    optionOf(context).set(context.session, context.arguments[1] == u"on");
}

} // namespace

std::vector<Command> optionCommands() {
    const Operand backupName{u"NAME"_s, u"the backup's name"_s};
    Operand option{.name = u"OPTION"_s, .meaning = u"the option"_s};
    for (const SimulatorOption& each : simulatorOptions())
        option.entries << nameOf(each);
    return {
        {.words = u"base list"_s,
         .run = listBases,
         .meaning = u"the bodies of textures that come with Morvane"_s,
         .example = u"base list"_s},
        {.words = u"base install"_s,
         .operands = {{.name = u"TITLE"_s, .meaning = u"a title of the list"_s, .repeats = true}},
         .writes = true,
         .run = installBases,
         .meaning = u"copies the bodies of those titles into the simulator"_s,
         .example = u"base install \"Global Coverage - Day\""_s},
        {.words = u"backup create"_s,
         .writes = true,
         .run = createBackupOfAll,
         .meaning = u"backs the simulator's textures up"_s,
         .example = u"--answer yes backup create"_s},
        {.words = u"backup list"_s,
         .run = listBackups,
         .meaning = u"the backups"_s,
         .example = u"backup list"_s},
        {.words = u"backup remove"_s,
         .operands = {backupName},
         .writes = true,
         .run = removeBackupOf,
         .meaning = u"removes a backup; one with a last copy of the pilot's stays, with status 1"_s,
         .example = u"--answer yes backup remove 1-Backup"_s},
        {.words = u"backup restore"_s,
         .operands = {backupName},
         .writes = true,
         .run = restoreBackupOf,
         .meaning = u"puts a backup back"_s,
         .example = u"backup restore 1-Backup"_s},
        {.words = u"option get"_s,
         .operands = {option},
         .run = getOption,
         .meaning = u"one of the six options"_s,
         .example = u"option get halo"_s},
        {.words = u"option set"_s,
         .operands = {option,
                      {.name = u"VALUE"_s, .meaning = u"the new state"_s, .entries = {u"on"_s, u"off"_s}}},
         .writes = true,
         .run = setOption,
         .meaning = u"switches one of the six options at once"_s,
         .example = u"option set inhibitsplash on"_s}};
}

} // namespace morvane
