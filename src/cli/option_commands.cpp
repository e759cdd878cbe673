#include "cli/option_commands.h"

#include "cli/command_helpers.h"
#include "cli/json_output.h"
#include "core/options.h"
#include "core/set_collections.h"
#include "simulator/backup_files.h"
#include "simulator/backup_restore.h"
#include "simulator/backups.h"
#include "simulator/base_install.h"
#include "simulator/configs.h"
#include "simulator/texture_switches.h"

#include <QJsonArray>
#include <algorithm>

namespace morvane {

namespace {

struct ConsoleOption {
    QString name;
    bool Session::*flag;
    bool (*set)(Session&, bool); ///< false after the message of a refusal
};

template <void (*set)(Session&, bool)>
bool always(Session& session, bool value) {
    set(session, value);
    return true;
}

const ConsoleOption* findOption(const QString& name) {
    static const ConsoleOption options[] = {
        {u"dutch"_s, &Session::IsDutch, switchDutch},
        {u"tropical"_s, &Session::IsTropical, switchTropical},
        {u"halo"_s, &Session::IsHalo, always<switchHalo>},
        {u"fastexit"_s, &Session::IsFastExit, always<switchFastExit>},
        {u"widefs"_s, &Session::IsWideClient, always<setSideFSVal>},
        {u"inhibitsplash"_s, &Session::InhibitCustomSplash, always<setCustomSplashVal>},
    };
    const auto option = std::ranges::find(options, name, &ConsoleOption::name);
    return option == std::end(options) ? nullptr : option;
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

} // namespace

bool baseList(CommandContext& context) {
    QJsonArray list;
    for (const auto& config : loadedCollection(context.session, context.session.gConfigs))
        list << toJson(*config);
    printJson(QJsonDocument(list));
    return true;
}

bool baseInstall(CommandContext& context) {
    if (context.arguments.isEmpty()) return false;
    const clsConfigs& configs = loadedCollection(context.session, context.session.gConfigs);
    const auto isKnown = [&](const QString& title) {
        return hasName(context, configs, u"base install"_s, title);
    };
    if (std::ranges::all_of(context.arguments, isKnown))
        copyBaseResources(context.session, context.arguments);
    return true;
}

bool backupCreate(CommandContext& context) {
    backupOnRequest(context.session);
    return true;
}

bool backupList(CommandContext& context) {
    QJsonArray list;
    for (const auto& backup : loadedCollection(context.session, context.session.gBackups))
        list << QJsonObject{{u"BackupID"_s, backup->BackupID},
                            {u"BackupName"_s, backup->BackupName},
                            {u"BackupDateTime"_s, backup->BackupDateTime.toString(Qt::ISODate)},
                            {u"complete"_s, isBackupComplete(context.session, backup->BackupName)}};
    printJson(QJsonDocument(list));
    return true;
}

bool backupRestore(CommandContext& context) {
    const QString& name = context.arguments[0];
    const clsBackups& backups = loadedCollection(context.session, context.session.gBackups);
    if (!hasName(context, backups, u"backup"_s, name)) return true;
    context.user.onModal = [&](Screen screen) {
        if (screen != Screen::frm_BackupList) return;
        context.session.modal.chosenBackup = name;
        context.session.modal.backupConfirmed = true;
    };
    restoreBackupOnRequest(context.session);
    return true;
}

bool optionGet(CommandContext& context) {
    const ConsoleOption* option = findOption(context.arguments[0]);
    if (!option) return false;
    getCustomSplashVal(context.session);
    printJson(QJsonDocument(QJsonObject{{option->name, context.session.*option->flag}}));
    return true;
}

bool optionSet(CommandContext& context) {
    const ConsoleOption* option = findOption(context.arguments[0]);
    const QString& value = context.arguments[1];
    if (!option || (value != u"on" && value != u"off")) return false;
    option->set(context.session, value == u"on");
    return true;
}

} // namespace morvane
