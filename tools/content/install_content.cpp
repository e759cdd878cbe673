#include "install_content.h"

#include "core/error.h"
#include "core/literals.h"
#include "core/registry.h"
#include "delivered_rows.h"
#include "stock_files.h"

namespace morvane {

namespace {

/// Raise it whenever what the tool makes changes: samples of another version are made anew.
constexpr int contentVersion = 1;

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
    u"Resources\\Sky",
    u"GENERIC WORLD",
    u"UT EUROPE",
    u"UTIND",
    u"DUTCH",
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
           QByteArray::number(request.density) + "\n";
}

void writeRegistry(FileSystem& files, const ContentRequest& request) {
    const auto registry = openRegistry(files, request.home);
    registry->CreateRegKey(HKEY_LOCAL_MACHINE_ROOT, simulatorKey);
    registry->SetRegString(HKEY_LOCAL_MACHINE_ROOT, simulatorKey, u"EXE Path"_s, request.simulator.native());
    registry->CreateRegKey(HKEY_LOCAL_MACHINE_ROOT, morvaneKey);
    registry->SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, u"IsWideClient"_s, u"False"_s);
}

} // namespace

bool isContentCurrent(FileSystem& files, const ContentRequest& request) {
    const FilePath mark = versionFile(request);
    return files.exists(mark) && files.read(mark) == versionMark(request) &&
           files.exists(request.simulator / u"fs9.exe");
}

int makeContent(FileSystem& files, const ContentRequest& request) {
    if (files.exists(request.home / u"Morvane.mdb"))
        throw Error(ErrorCode::permissionDenied, request.home.text() + u" holds an install already"_s);
    for (const char16_t* folder : installFolders)
        files.makeFolder(request.home / folder);
    for (const char16_t* folder : simulatorFolders)
        files.makeFolder(request.simulator / folder);
    const int count = writeStock(files, request.home, request.simulator, request.density);
    writeSplashes(files, request.home, request.simulator);
    writeDeliveredStore(files, request.data, request.home / u"Morvane.mdb");
    writeRegistry(files, request);
    files.write(request.simulator / u"fs9.exe", "A stand-in of the sample simulator.\r\n");
    files.write(versionFile(request), versionMark(request));
    return count;
}

} // namespace morvane
