#include "install_content.h"

#include "app/first_values.h"
#include "core/attempts.h"
#include "core/error.h"
#include "core/literals.h"
#include "core/registry.h"
#include "delivered_rows.h"
#include "delivery.h"
#include "flight_files.h"
#include "night_set_files.h"
#include "skin_files.h"
#include "sky_files.h"
#include "stock_files.h"
#include "version_two.h"

#include <QSet>
#include <algorithm>
#include <iterator>

namespace morvane {

namespace {

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

/// In the folder itself: whoever makes an install of it settles what of this is the user's.
void writeRegistry(FileSystem& files, const ContentRequest& request) {
    const auto registry = openRegistry(files, request.home, FolderChoice::named);
    writeFirstValues(*registry);
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

/// What a later version brings up to date. Sets and saved flights are not of it: they are the pilot's from
/// the first start on.
void deliver(const PutFile& put, FileSystem& files, const ContentRequest& request) {
    std::vector<BaseImage> stock = baseImageList(request.density);
    std::ranges::copy(nightImageList(request.density), std::back_inserter(stock));
    const FilePath media = request.home / u"Media";
    writeStock(put, files, request.home, request.simulator, stock, [&](std::size_t done) {
        request.onProgress(storeShare + static_cast<int>(stockShare * done / stock.size()));
    });
    writeSkyStock(put, request.home);
    writeSplashes(put, media);
    writeHalos(put, media);
    writeSkin(put, media);
    writeHelp(put, request.home / u"MV Help");
}

EarlierSums earlierSums(FileSystem& files, const FilePath& data) {
    const auto text = files.readIfThere(data / u"delivered\\earlier.sums").value_or(QByteArray());
    const QStringList sums = QString::fromLatin1(text).split(u'\n');
    return {sums.begin(), sums.end()};
}

void copyIntoSimulator(FileSystem& files, const ContentRequest& request) {
    const FilePath media = request.home / u"Media";
    files.copyContents(media / u"dlgsplash.bmp", request.simulator / u"Uires\\dlgsplash.bmp");
    files.copyContents(media / u"halodefault.bmp", request.simulator / u"Texture\\halo.bmp");
}

} // namespace

bool isContentCurrent(FileSystem& files, const ContentRequest& request) {
    const auto list = files.readIfThere(request.home / u"content.version");
    return list && list->startsWith(contentHeading(request.density)) && files.exists(storeFile(request)) &&
           (request.simulator.isEmpty() || files.exists(request.simulator / u"fs9.exe"));
}

int makeContent(FileSystem& files, const ContentRequest& request) {
    const auto count = baseImageList(request.density).size() + nightImageList(request.density).size();
    refuseUnlessEmpty(files, request.home);
    if (!request.simulator.isEmpty()) refuseUnlessEmpty(files, request.simulator);
    for (const char16_t* folder : installFolders)
        files.makeFolder(request.home / folder);
    if (!request.simulator.isEmpty()) makeSimulator(files, request);
    writeDeliveredStore(files, request.data, storeFile(request));
    request.onProgress(storeShare);
    Delivery delivery(files, request.home);
    deliver([&](const FilePath& file, const QByteArray& contents) { delivery.put(file, contents); }, files,
            request);
    if (!request.simulator.isEmpty()) copyIntoSimulator(files, request);
    writeNightSets(files, request.home);
    writeSkySets(files, request.home, request.simulator);
    writeFlights(files, request.home, request.simulator);
    writeRegistry(files, request);
    if (request.isVersionTwo) makeVersionTwo(files, request.home);
    delivery.finish(request.density);
    request.onProgress(100);
    return static_cast<int>(count);
}

int updateContent(FileSystem& files, const ContentRequest& present) {
    const DeliveredList list(files, present.home);
    if (list.density() == 0)
        throw Error::withDescription(ErrorCode::pathNotFound,
                                     u"'"_s + present.home.text() + u"' is no install that was filled."_s);
    if (!list.isOlder()) return 0;
    ContentRequest request = present;
    request.density = list.density();
    request.simulator = FilePath(); // the one that goes with a pilot's install is the pilot's
    for (const char16_t* folder : installFolders)
        files.makeFolder(request.home / folder);
    Delivery delivery(files, request.home, earlierSums(files, request.data));
    FirstFailure failure;
    deliver([&](const FilePath& file,
                const QByteArray& contents) { failure.attempt([&] { delivery.put(file, contents); }); },
            files, request);
    failure.raise(); // the next start tries the others again
    delivery.finish(request.density);
    request.onProgress(100);
    return delivery.count();
}

} // namespace morvane
