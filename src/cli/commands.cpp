#include "cli/commands.h"

#include "cli/airport_commands.h"
#include "cli/command_helpers.h"
#include "cli/cycle_commands.h"
#include "cli/json_output.h"
#include "cli/night_commands.h"
#include "cli/option_commands.h"
#include "cli/route_commands.h"
#include "cli/set_commands.h"
#include "cli/set_kinds.h"
#include "cli/sky_commands.h"
#include "cli/stock_commands.h"
#include "cli/terminal.h"
#include "core/application.h"
#include "core/failure_report.h"
#include "core/file_helpers.h"
#include "core/numbers.h"
#include "core/options.h"
#include "core/text_decoding.h"
#include "core/writing.h"
#include "ground/colour_settings.h"
#include "ground/texture_catalogue.h"
#include "imaging/texture_codec.h"
#include "simulator/flights.h"
#include "simulator/originals.h"
#include "simulator/set_matching.h"
#include "weather/metar_decoder.h"

#include <QFile>
#include <QJsonArray>

namespace morvane {

namespace {

bool decode(CommandContext& context) {
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) throw Error(ErrorCode::ioFailure);
    QStringList lines = splitLines(decodeText(input.readAll()));
    if (!lines.isEmpty() && lines.last().isEmpty()) lines.removeLast();
    for (const QString& line : lines) {
        clsDecodeMetar report(context.user);
        report.decodeMetarString(line);
        printJson(QJsonDocument(toJson(report)));
    }
    return true;
}

bool recolourPicture(CommandContext& context) {
    ColourValues colours;
    try {
        colours = parseColourSettings(context.arguments[0]);
    } catch (const Error&) {
        return false;
    }
    recolourFile(context, [&](const cDIBSection& source, cDIBSection& result) {
        cColourise colourise(context.user);
        colourise.saturation = colours.saturation;
        colourise.Red = colours.red;
        colourise.green = colours.green;
        colourise.blue = colours.blue;
        colourise.brightness = colours.brightness;
        colourise.contrast = colours.contrast;
        colourise.process(source, result);
    });
    return true;
}

bool compress(CommandContext& context) {
    const FilePath source = pathOfArgument(context.arguments[0]);
    const FilePath target = pathOfArgument(context.arguments[1]);
    if (!BMPScompressBMPVB(context.session.files, source, u"1"_s, 10, -1, 0, target))
        fail(context, u"No texture was made of "_s + source.text());
    return true;
}

bool showCatalogue(CommandContext& context) {
    TextureCatalogue catalogue(context.session);
    printJson(QJsonDocument(toJson(catalogue.popTextureList(0, 0, true, context.arguments[0]))));
    return true;
}

bool groundCreate(CommandContext& context) {
    const auto counts = countsOfArguments(context.arguments, 0);
    if (!counts) return false;
    context.user.onModal = [&](Screen screen) {
        if (screen != Screen::frm_TsRequired) return;
        context.session.modal.setCounts = *counts;
        context.session.modal.setCountsConfirmed = true;
    };
    GroundGeneration(context.session).createTextureSets(true);
    return true;
}

Originals originalsOf(Session& session) {
    return Originals(session.files, session.FSPath, session.AppPath);
}

bool originalsList(CommandContext& context) {
    QJsonArray list;
    for (const KeptOriginal& original : originalsOf(context.session).list())
        list << toJson(original);
    printJson(QJsonDocument(list));
    return true;
}

bool originalsRestore(CommandContext& context) {
    const int count = originalsOf(context.session).restore();
    // The simulator shows the pilot's own files again, so no set of ours is the installed one.
    loadedGroundSets(context.session).markInstalled({});
    loadedSkySets(context.session).markInstalled({});
    loadedNightSets(context.session).markInstalled({});
    writeStandardError(u"%1 files put back\n"_s.arg(count));
    return true;
}

bool flightsList(CommandContext& context) {
    printJson(QJsonDocument(QJsonArray::fromStringList(savedFlights(context.session))));
    return true;
}

bool flightsLoad(CommandContext& context) {
    constexpr int documents = 5;
    context.session.MyDocumentsPath = GetSpecialFolder(documents);
    loadFlightFiles(context.session);
    return true;
}

bool flyWord(CommandContext& context) {
    context.session.CommandLineRun = true;
    getCustomSplashVal(context.session);
    runCommandLine(context.session, context.arguments[0]);
    return true;
}

bool flyMetar(CommandContext& context) {
    getCustomSplashVal(context.session);
    if (processMetarString(context.session, context.arguments[0])) flyWithCover(context.session);
    return true;
}

/// Everything does that needs an install and is not among those that tell something.
bool writes(const Command& command) {
    static const QStringList telling{u"catalogue"_s, u"list"_s, u"show"_s, u"get"_s,
                                     u"find"_s,      u"rows"_s, u"plan"_s, u"nearest"_s};
    return command.needsInstall && !telling.contains(command.words.last());
}

const Command* findCommand(const QStringList& words) {
    for (const Command& command : commandTable()) {
        const qsizetype rest = words.size() - command.words.size();
        if (command.argumentCount == anyArguments ? rest < 0 : rest != command.argumentCount) continue;
        if (words.first(command.words.size()) == command.words) return &command;
    }
    return nullptr;
}

} // namespace

const std::vector<Command>& commandTable() {
    static const std::vector<Command> table{
        {{u"decode"_s}, 0, false, decode, u"decode  (METAR lines on stdin, one JSON object a line)"_s},
        {{u"recolour"_s}, 3, false, recolourPicture, u"recolour S:R:G:B:BR:C IN OUT"_s},
        {{u"recolour-sky"_s}, 3, false, recolourSky, u"recolour-sky GROUPS.json IN OUT"_s},
        {{u"compress"_s}, 2, false, compress, u"compress IN OUT"_s},
        {{u"catalogue"_s}, 1, true, showCatalogue, u"catalogue SET"_s},
        {{u"ground"_s, u"create"_s}, 5, true, groundCreate, u"ground create N1 N2 N3 N4 N5"_s},
        {{u"ground"_s, u"list"_s}, 0, true, SetCommands<GroundKind>::list, u"ground list"_s},
        {{u"ground"_s, u"activate"_s}, 1, true, SetCommands<GroundKind>::activate, u"ground activate NAME"_s},
        {{u"ground"_s, u"deactivate"_s},
         1,
         true,
         SetCommands<GroundKind>::deactivate,
         u"ground deactivate NAME"_s},
        {{u"ground"_s, u"delete"_s}, 1, true, SetCommands<GroundKind>::remove, u"ground delete NAME"_s},
        {{u"ground"_s, u"install"_s}, 1, true, SetCommands<GroundKind>::install, u"ground install NAME"_s},
        {{u"sky"_s, u"create"_s}, 6, true, skyCreate, u"sky create BASES N1 N2 N3 N4 N5"_s},
        {{u"sky"_s, u"list"_s}, 0, true, SetCommands<SkyKind>::list, u"sky list"_s},
        {{u"sky"_s, u"show"_s}, 1, true, skyShow, u"sky show NAME"_s},
        {{u"sky"_s, u"activate"_s}, 1, true, SetCommands<SkyKind>::activate, u"sky activate NAME"_s},
        {{u"sky"_s, u"deactivate"_s}, 1, true, SetCommands<SkyKind>::deactivate, u"sky deactivate NAME"_s},
        {{u"sky"_s, u"delete"_s}, 1, true, SetCommands<SkyKind>::remove, u"sky delete NAME"_s},
        {{u"sky"_s, u"install"_s}, 1, true, SetCommands<SkyKind>::install, u"sky install NAME"_s},
        {{u"night"_s, u"list"_s}, 0, true, SetCommands<NightKind>::list, u"night list"_s},
        {{u"night"_s, u"favourite"_s}, 2, true, nightFavourite, u"night favourite NAME S:R:G:B:BR:C"_s},
        {{u"night"_s, u"activate"_s}, 1, true, SetCommands<NightKind>::activate, u"night activate NAME"_s},
        {{u"night"_s, u"deactivate"_s},
         1,
         true,
         SetCommands<NightKind>::deactivate,
         u"night deactivate NAME"_s},
        {{u"night"_s, u"delete"_s}, 1, true, SetCommands<NightKind>::remove, u"night delete NAME"_s},
        {{u"night"_s, u"install"_s}, 1, true, SetCommands<NightKind>::install, u"night install NAME"_s},
        {{u"base"_s, u"list"_s}, 0, true, baseList, u"base list"_s},
        {{u"base"_s, u"install"_s}, anyArguments, true, baseInstall, u"base install TITLE..."_s},
        {{u"backup"_s, u"create"_s}, 0, true, backupCreate, u"backup create"_s},
        {{u"backup"_s, u"list"_s}, 0, true, backupList, u"backup list"_s},
        {{u"backup"_s, u"restore"_s}, 1, true, backupRestore, u"backup restore NAME"_s},
        {{u"option"_s, u"get"_s},
         1,
         true,
         optionGet,
         u"option get dutch|tropical|halo|fastexit|widefs|inhibitsplash"_s},
        {{u"option"_s, u"set"_s},
         2,
         true,
         optionSet,
         u"option set dutch|tropical|halo|fastexit|widefs|inhibitsplash on|off"_s},
        {{u"metar"_s, u"find"_s},
         anyArguments,
         true,
         metarFind,
         u"metar find [--precipitation W] [--intensity W] [--obscuration W] [--cover W] [--cb] [--tcu] "
         u"[--cu] "
         "[--icao PREFIX] [--max N]"_s},
        {{u"plan"_s}, 1, true, showPlan, u"plan FILE"_s},
        {{u"originals"_s, u"list"_s}, 0, true, originalsList, u"originals list"_s},
        {{u"originals"_s, u"restore"_s}, 0, true, originalsRestore, u"originals restore"_s},
        {{u"stock"_s, u"import"_s}, anyArguments, true, stockImport, u"stock import [--from DIR]"_s},
        {{u"stock"_s, u"restore"_s}, 0, true, stockRestore, u"stock restore"_s},
        {{u"flights"_s, u"list"_s}, 0, true, flightsList, u"flights list"_s},
        {{u"flights"_s, u"load"_s}, 0, true, flightsLoad, u"flights load"_s},
        {{u"metar"_s, u"show"_s}, 1, true, metarShow, u"metar show ICAO"_s},
        {{u"airport"_s, u"find"_s}, 1, true, airportFind, u"airport find ICAOPREFIX"_s},
        {{u"station"_s, u"nearest"_s}, 2, true, stationNearest, u"station nearest LAT LONG"_s},
        {{u"metar"_s, u"import"_s}, 1, true, metarImport, u"metar import FILE"_s},
        {{u"metar"_s, u"import"_s}, 2, true, metarImport, u"metar import FILE plain|noaa|asv6"_s},
        {{u"metar"_s, u"download"_s}, 0, true, metarDownload, u"metar download"_s},
        {{u"metar"_s, u"rows"_s}, 0, true, metarRows, u"metar rows  (one JSON object a row)"_s},
        {{u"fly"_s, u"--metar"_s}, 1, true, flyMetar, u"fly --metar \"TEXT\""_s},
        {{u"fly"_s}, 1, true, flyWord, u"fly WORD  (CLR, FEW, SCT, BKN or OVC)"_s},
    };
    return table;
}

QString usageText() {
    QString text = u"usage: morvane-cli [--home DIR] [--answer yes|no|ask] COMMAND\n"_s;
    for (const Command& command : commandTable())
        text += u"  "_s + command.usage + u'\n';
    return text;
}

int runCommand(const QStringList& words, Session& session, ConsoleUser& user) {
    const Command* command = findCommand(words);
    if (!command) return exitWrongUsage;
    std::optional<Writing> writing;
    if (writes(*command) && !writing.emplace(session)) return exitFailed;
    CommandContext context{session, user, words.mid(command->words.size())};
    bool understood = true;
    if (!command->needsInstall || startUp(session))
        reportFailures(user, {}, [&] { understood = command->run(context); });
    else
        return exitFailed;
    closeDatabase(session);
    if (!understood) return exitWrongUsage;
    return user.hasFailed() ? exitFailed : exitDone;
}

} // namespace morvane
