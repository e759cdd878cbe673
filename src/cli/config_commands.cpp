#include "cli/command_helpers.h"
#include "cli/command_tables.h"
#include "cli/json_output.h"
#include "core/failure_report.h"
#include "core/file_helpers.h"
#include "core/flights_folder.h"
#include "core/registry.h"
#include "core/store.h"
#include "core/store_connection.h"
#include "simulator/option_table.h"
#include "simulator/options.h"
#include "simulator/palette_choice.h"
#include "weather/active_sky.h"
#include "weather/weather_sources.h"

#include <algorithm>

namespace morvane {

namespace {

const QString weatherSetting = u"weather"_s, paletteSetting = u"palette"_s;

/// A text among the registry values that the console can set.
struct Setting {
    QString name;
    QString key, value; ///< in the registry
    /// Why the text cannot be taken; empty when it can.
    QString (*problem)(Session&, const QString& text);
    bool isFolder;
};

QString simulatorProblem(Session& session, const QString& folder) {
    if (holdsSimulator(session.files, folder)) return {};
    return u"The folder does not contain FS9.EXE: "_s + folder;
}

QString flightsProblem(Session& session, const QString& folder) {
    if (!session.files.isFolder(FilePath(folder))) return u"Path not found: "_s + folder;
    if (!isOwnFlightsFolder(session, folder)) return {};
    return u"Morvane's own Flights folder cannot be the folder of your saved flights: "_s + folder;
}

QString weatherProblem(Session& session, const QString& names) {
    return weatherSourcesProblem(session.registry, names);
}

QString paletteProblem(Session&, const QString& word) {
    if (paletteWords().contains(word)) return {};
    return u"The palette is day, night or clock: "_s + word;
}

QString noProblem(Session&, const QString&) {
    return {};
}

const std::vector<Setting>& settings() {
    static const std::vector<Setting> all{
        {u"simulator"_s, simulatorKey, u"EXE Path"_s, simulatorProblem, true},
        {u"flights"_s, morvaneKey, u"NonEnglishPath"_s, flightsProblem, true},
        {u"runner"_s, morvaneKey, u"SimulatorRunner"_s, noProblem, false},
        {weatherSetting, morvaneKey, u"WeatherSources"_s, weatherProblem, false},
        {paletteSetting, morvaneKey, u"Palette"_s, paletteProblem, false},
    };
    return all;
}

const Setting& settingOf(const CommandContext& context) {
    return *std::ranges::find(settings(), context.arguments[0], &Setting::name);
}

QString textOf(const Session& session, const Setting& setting) {
    return session.registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, setting.key, setting.value);
}

QString ownText(const Session& session, const QString& value) {
    return session.registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, value);
}

/// Of weather and palette what is in force: a word that nobody knows is not.
QString shownText(const Session& session, const Setting& setting) {
    if (setting.name == paletteSetting)
        return paletteWords()[static_cast<qsizetype>(paletteChoice(session.registry))];
    if (setting.name != weatherSetting) return textOf(session, setting);
    const QStringList names = weatherSourceNames(session.registry);
    return names.isEmpty() ? u"none"_s : names.join(u';');
}

void get(CommandContext& context) {
    const Setting& setting = settingOf(context);
    printJson(QJsonDocument(QJsonObject{{setting.name, shownText(context.session, setting)}}));
}

void set(CommandContext& context) {
    const Setting& setting = settingOf(context);
    Session& session = context.session;
    const QString& typed = context.arguments[1];
    const QString text = setting.isFolder ? pathOfArgument(typed).text() : typed;
    if (const QString problem = setting.problem(session, text); !problem.isEmpty())
        return fail(context, problem);
    session.registry.CreateRegKey(HKEY_LOCAL_MACHINE_ROOT, setting.key);
    session.registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, setting.key, setting.value, text);
    // The registry reports nothing.
    if (textOf(session, setting) != text)
        return fail(context, u"The setting could not be stored: "_s + setting.name);
    get(context);
}

/// Those of a store that was never started are not known yet: null.
QJsonObject switchesOf(Session& session) {
    connectDatabase(session, StoreAccess::reading);
    const bool isKnown = session.adoConn && session.adoConn->isOpen() &&
                         !session.adoConn->columns(u"TEXTURE_SWITCH"_s).isEmpty();
    if (isKnown) readSwitches(session);
    QJsonObject switches;
    for (const SimulatorOption& option : simulatorOptions()) {
        const bool isOn =
            option.column ? session.state<OptionsInForce>().*option.flag : option.isSetInRegistry(session);
        switches.insert(QString::fromUtf16(option.name),
                        option.column && !isKnown ? QJsonValue() : QJsonValue(isOn));
    }
    return switches;
}

/// Works without a simulator, too: it is what one looks at when something is not found.
void show(CommandContext& context) {
    Session& session = context.session;
    QJsonObject shown{{u"home"_s, session.AppPath.text()}};
    for (const Setting& setting : settings())
        shown.insert(setting.name, shownText(session, setting));
    shown.insert(u"activesky"_s,
                 session.registry.GetRegString(HKEY_LOCAL_MACHINE_ROOT, activeSkyKey, u"Install_Path"_s));
    shown.insert(u"weather"_s, QJsonObject{{u"server"_s, ownText(session, u"WeatherServer"_s)},
                                           {u"path"_s, ownText(session, u"WeatherPath"_s)},
                                           {u"format"_s, ownText(session, u"WeatherFormat"_s)},
                                           {u"sources"_s, shown[weatherSetting]}});
    shown.insert(u"switches"_s, switchesOf(session));
    printJson(QJsonDocument(shown));
}

} // namespace

std::vector<Command> configCommands() {
    Operand setting{
        .name = u"SETTING"_s,
        .meaning = u"the simulator's folder, the saved flights' folder, the command that "
                   "starts Windows programs, the weather's sources in their order, or the palette of the "
                   "windows"_s};
    for (const Setting& each : settings())
        setting.entries << each.name;
    return {
        {.words = u"config show"_s,
         .needs = Needs::folder,
         .run = show,
         .meaning = u"paths, weather source and switches"_s,
         .example = u"config show"_s},
        {.words = u"config get"_s,
         .operands = {setting},
         .needs = Needs::folder,
         .run = get,
         .meaning = u"one of the settings"_s,
         .example = u"config get simulator"_s},
        {.words = u"config set"_s,
         .operands =
             {setting,
              {u"VALUE"_s,
               u"a folder, a command such as wine, sources such as \"awc;noaa\", or day, night or clock"_s}},
         .needs = Needs::folder,
         .writes = true,
         .run = set,
         .meaning = u"stores one of the settings"_s,
         .example = u"config set simulator \"/games/Flight Simulator 9\""_s}};
}

} // namespace morvane
