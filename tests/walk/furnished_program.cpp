#include "core/registry.h"
#include "core/store.h"
#include "ground/ground_sets.h"
#include "ground/texture_sets.h"
#include "sets/simulator_copy.h"
#include "sets/undo_step.h"
#include "simulator/texture_switches.h"
#include "walk/walk_tables.h"
#include "weather/reports.h"
#include "weather/weather_rows.h"

namespace morvane::test {

namespace {

void addSets(WindowProgram& program) {
    program.install.addGroundSet(u"2-Fair"_s, u"Sky Clear"_s, true, {u"Texture\\029b2su6.bmp"_s});
    program.install.addGroundSet(u"3-Grey"_s, u"Overcast"_s, false);
    program.install.addSkySet(u"2-Calm"_s, u"Sky Clear"_s, true, {u"sky_afternoon_3.bmp"_s}, u"Sunny"_s);
    program.install.addSkySet(u"3-Storm"_s, u"Overcast"_s, false);
    addNightSet(program.install, u"2-Red"_s, true, {u"Texture\\029b2lm1.bmp"_s});
    addNightSet(program.install, u"3-Blue"_s, false);
    refreshGroundSets(program.session);
    program.session.rows<clsTextureSets>()->markInstalled(u"2-Fair"_s);
}

void addBaseTextures(Session& session) {
    for (const QString& title : {u"Global Coverage - Day"_s, u"Golf"_s})
        session.adoConn->execute(
            u"INSERT INTO MV_CONFIG(TITLE, MV_FOLDER, MV_IMAGE, FS_FOLDER, DESCRIPTION, INSTALLED) VALUES "
            u"('%1', "
            "'GENERIC WORLD', 'MV_Day.bmp', 'Scenery\\World\\texture', 'About %1', 0)"_s.arg(title));
}

/// What the options replace, which they only do where it is.
void addOptionFiles(WindowProgram& program) {
    Session& session = program.session;
    for (const bool isOn : {false, true})
        for (const auto& copies : {dutchCopies(session, isOn, u"2-Fair"_s, u"2-Red"_s),
                                   tropicalCopies(session, isOn, u"2-Fair"_s)})
            for (const FileCopy& copy : copies)
                writeFile(copy.target, "the pilot's");
    for (const char16_t* name : {u"Media\\halo.bmp", u"Media\\halodefault.bmp"})
        writeFile(program.install.home() / name, "a halo");
}

void addBackups(WindowProgram& program) {
    for (const QString& name : {u"1-Backup"_s, u"2-Backup"_s}) {
        program.session.adoConn->execute(
            u"INSERT INTO MV_BACKUP(BACKUP_NAME, BACKUP_DATE_TIME) VALUES ('%1', '2007/05/30 21:14:09')"_s
                .arg(name));
        writeFile(program.install.home() / u"Backup" / name / u"Texture\\029h2su6.bmp", name.toUtf8());
    }
}

/// An install that can be undone, of files that another hand has changed since.
void addInstall(Session& session) {
    UndoStep step(session);
    step.add(u"Ground set 2-Fair"_s);
    const FilePath target = session.FSPath / u"Scenery\\World\\texture",
                   set = groundSetFolder(session, u"2-Fair"_s);
    SimulatorCopier copier(session);
    std::vector<FileCopy> copies;
    for (const char16_t* name : {u"changed.bmp", u"changed too.bmp"})
        copies.push_back({set / u"Texture\\029b2su6.bmp", target / name});
    copier.prepare(copies);
    for (const FileCopy& copy : copies)
        copier.copy(copy);
    copier.finish();
    for (const FileCopy& copy : copies)
        writeFile(copy.target, "another hand's");
}

void addFlights(WindowProgram& program) {
    writeFile(program.install.home() / u"Flights\\flights.cfg",
              "[Flights]\r\ntotal=2\r\n1=Evening\r\n2=Late Rain\r\n");
    program.session.MyDocumentsPath = (program.install.folder / u"Dokümente").native() + u'/';
    for (const QString& name : {u"north.pln"_s, u"south.pln"_s})
        writeFile(program.install.folder / u"Dokümente\\Flight Simulator Files" / name,
                  "departure_name=" + name.toUtf8() +
                      "\r\nwaypoint.0=KSEA, A, N47* 27.0', W122* 18.6', 0,\r\n"
                      "waypoint.1=KPDX, A, N45* 35.0', W122* 36.0', 0,\r\n");
}

void addWeather(Session& session) {
    addAirports(
        session,
        {{u"KSEA"_s, u"Tacoma"_s, u"Seattle"_s, u"Washington"_s, u"United States"_s, u"47.45"_s,
          u"-122.31"_s},
         {u"KPDX"_s, u"Portland"_s, u"Portland"_s, u"Oregon"_s, u"United States"_s, u"45.59"_s, u"-122.60"_s},
         {u"DIAP"_s, u"Abidjan"_s, u"Abidjan"_s, {}, u"Côte d'Ivoire"_s, u"5.26"_s, u"-3.93"_s}});
    addStation(session, u"KPDX"_s, 5, 45.59, -122.60);
    addStation(session, u"KSEA"_s, 3, 47.45, -122.31);
    session.adoConn->execute(
        u"UPDATE DECODED_METAR SET METAR_WEATHER = 'Rain', METAR_FOG = 'Mist', METAR_CLOUD_COVER = "
        "'Overcast: Cumulus observed' WHERE METAR_ICAO = 'KPDX'"_s);
    clsWxFinders::reload(session);
}

void addAddresses(Registry& registry) {
    storeOwnValue(registry, u"WeatherSources"_s, u"noaa;awc"_s);
    for (const char16_t* value : {u"HomePage", u"UpdateServer", u"ActiveSkyPage"})
        registry.SetRegString(HKEY_LOCAL_MACHINE_ROOT, morvaneKey, QString::fromUtf16(value),
                              u"https://%1.example/"_s.arg(QString::fromUtf16(value).toLower()));
}

} // namespace

void furnish(WindowProgram& program) {
    addSets(program);
    addBaseTextures(program.session);
    addOptionFiles(program);
    addBackups(program);
    addInstall(program.session);
    addFlights(program);
    addWeather(program.session);
    addAddresses(program.install.registry);
    writeFile(program.install.home() / u"MV Help\\index.html", "<p>help</p>");
    program.shell.formatMainScreen();
}

} // namespace morvane::test
