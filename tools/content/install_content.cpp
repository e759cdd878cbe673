#include "install_content.h"

#include "core/error.h"
#include "core/literals.h"
#include "core/registry.h"
#include "delivered_rows.h"
#include "flight_files.h"
#include "night_set_files.h"
#include "skin_files.h"
#include "sky_files.h"
#include "stock_files.h"
#include "version_two.h"

#include <algorithm>
#include <iterator>

namespace morvane {

namespace {

/// Raise it whenever what the tool makes changes: samples of another version are made anew.
constexpr int contentVersion = 7;

/// What the steps take of the whole, in hundredths; the splashes and the skin take the rest.
constexpr int storeShare = 5, stockShare = 80;

constexpr const char16_t* installFolders[] = {
    u"Media",
    u"Flights",
    u"METAR",
    u"Backup",
    u"MV Help",
    u"Resources\\GENERIC WORLD",
    u"Resources\\UT EUROPE",
    u"Resources\\UTIND",
    u"Resources\\DUTCH",
    u"Resources\\GENERIC WORLD NIGHT",
    u"Resources\\DUTCH NIGHT",
    u"Resources\\Sky\\Default",
    u"Resources\\Sky\\Default Softer",
    u"Resources\\Sky\\Horizons",
    u"Resources\\Sky\\Pro Sky",
    u"Resources\\Sky\\Sunny",
    u"Resources\\Sky\\Tropical",
    u"Resources\\Sky\\Overcast",
    u"Resources\\Sky\\Sunrise",
    u"Resources\\Sky\\Sunset",
    u"GENERIC WORLD",
    u"UT EUROPE",
    u"UTIND",
    u"DUTCH",
    u"GENERIC WORLD NIGHT",
    u"DUTCH NIGHT",
    u"Texture Sets",
    u"Night Texture Sets",
    u"Sky Texture Sets",
    u"TempBitmaps\\Texture",
    u"TempBitmaps\\UTEurLC",
    u"TempBitmaps\\Dutch",
};

constexpr const char16_t* simulatorFolders[] = {
    u"Scenery\\World\\Texture", u"Scenery\\UTEurLC\\Texture", u"Texture", u"Uires", u"Flights",
};

FilePath versionFile(const ContentRequest& request) {
    return request.home / u"content.version";
}

QByteArray versionMark(const ContentRequest& request) {
    return "content " + QByteArray::number(contentVersion) + " density " +
           QByteArray::number(request.density) + (request.isVersionTwo ? " of version 2\n" : "\n");
}

FilePath storeFile(const ContentRequest& request) {
    return request.home / u"Morvane.mdb";
}

void refuseUnlessEmpty(FileSystem& files, const FilePath& folder) {
    if (files.list(folder, u"*.*"_s).isEmpty() && files.listFolders(folder).isEmpty()) return;
    throw Error::withDescription(
        ErrorCode::permissionDenied,
        u"'"_s + folder.text() +
            u"' is not empty and nothing in it will be replaced. Name another folder; "
            "if it is an old sample or one that was cut short, remove it first."_s);
}

void writeRegistry(FileSystem& files, const ContentRequest& request) {
    // A sample with a simulator of its own leaves the machine's registry alone.
    const FolderChoice choice = request.simulator.isEmpty() ? FolderChoice::usual : FolderChoice::named;
    const auto registry = openRegistry(files, request.home, choice);
    registry->CreateRegKey(HKEY_LOCAL_MACHINE_ROOT, morvaneKey);
    registry->SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"IsWideClient"_s, u"False"_s);
    registry->SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"FirstTime"_s, u"True"_s);
    // The public weather service: Refresh works from the first start on.
    const std::pair<QString, QString> endpoint[] = {{u"WeatherServer"_s, u"https://tgftp.nws.noaa.gov"_s},
                                                    {u"WeatherPath"_s, u"/data/observations/metar/cycles/"_s},
                                                    {u"WeatherFormat"_s, u"noaa"_s}};
    for (const auto& [name, value] : endpoint)
        registry->SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, name, value);
    if (request.simulator.isEmpty()) return;
    registry->SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"NonEnglishPath"_s,
                           (request.simulator / u"Flights").text());
    registry->CreateRegKey(HKEY_LOCAL_MACHINE_ROOT, simulatorKey);
    registry->SetRegString(HKEY_LOCAL_MACHINE_ROOT, simulatorKey, u"EXE Path"_s, request.simulator.text());
}

void makeSimulator(FileSystem& files, const ContentRequest& request) {
    for (const char16_t* folder : simulatorFolders)
        files.makeFolder(request.simulator / folder);
    const FilePath program = request.simulator / u"fs9.exe";
    files.copyContents(request.simulatorProgram, program);
    files.copyMode(request.simulatorProgram, program);
}

} // namespace

bool isContentCurrent(FileSystem& files, const ContentRequest& request) {
    const FilePath mark = versionFile(request);
    return files.exists(mark) && files.read(mark) == versionMark(request) &&
           files.exists(storeFile(request)) &&
           (request.simulator.isEmpty() || files.exists(request.simulator / u"fs9.exe"));
}

int makeContent(FileSystem& files, const ContentRequest& request) {
    std::vector<BaseImage> stock = baseImageList(request.density);
    std::ranges::copy(nightImageList(request.density), std::back_inserter(stock));
    refuseUnlessEmpty(files, request.home);
    if (!request.simulator.isEmpty()) refuseUnlessEmpty(files, request.simulator);
    for (const char16_t* folder : installFolders)
        files.makeFolder(request.home / folder);
    if (!request.simulator.isEmpty()) makeSimulator(files, request);
    writeDeliveredStore(files, request.data, storeFile(request));
    request.onProgress(storeShare);
    writeStock(files, request.home, request.simulator, stock, [&](std::size_t done) {
        request.onProgress(storeShare + static_cast<int>(stockShare * done / stock.size()));
    });
    writeNightSets(files, request.home);
    writeSkyStock(files, request.home, request.simulator);
    writeFlights(files, request.home, request.simulator);
    writeSplashes(files, request.home, request.simulator);
    writeHalos(files, request.home, request.simulator);
    writeSkin(files, request.home / u"Media");
    writeHelp(files, request.home / u"MV Help");
    writeRegistry(files, request);
    if (request.isVersionTwo) makeVersionTwo(files, request.home);
    files.write(versionFile(request), versionMark(request));
    request.onProgress(100);
    return static_cast<int>(stock.size());
}

} // namespace morvane
